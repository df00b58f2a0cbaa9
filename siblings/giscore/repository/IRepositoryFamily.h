// What a module provides for a family of configurations, so that every command works on it.
#pragma once

#include <optional>

#include "siblings/giscore/query/QueryDefinition.h"
#include "siblings/giscore/repository/RepositoryItemFactory.h"

namespace Orvane {

namespace System {
class CGisSystem;
}

/// One family: makes its items, asks the user what is to be in one, and carries one out.
/// Registered by tag (CRepositoryManager::RegisterRepositoryFamily), not owned: it has to live
/// as long as the process. Items that are handed in were made by the same family. Main thread
/// only.
///
/// The base executor does the rest: it finds item and place, asks for names, stores, copies,
/// sends and deletes, makes each command one step of the drawing's history, and reports.
class IRepositoryFamily : public CRepositoryItemFactory {
public:
    /// Asks for the content of an item, in a dialog or at the command line, with what the
    /// item has as the answers to fall back on. Its name and entity type are set already.
    /// \param pSystem the system that the user most likely has in mind; may be null
    /// \return false if it was cancelled or made no sense, which the user was told; the item
    ///     may then be changed in part
    virtual bool EditContent(CRepositoryItem& item, const System::CGisSystem* pSystem) = 0;

    /// Works on a system of the drawing, one whose topology has the item's kind of entities.
    /// \param pOnly narrows it to entities that fulfil a query; may be null
    /// \return how many entities it was about; nothing if it was not carried out, which the
    ///     user was told
    virtual std::optional<int> Run(const CRepositoryItem& item, System::CGisSystem& system,
                                   const Query::CQueryDefinition* pOnly) = 0;

    /// Shows the default item of a system whose drawing has just been opened, and prints
    /// nothing. Leaves what shows it already untouched, so that opening a drawing does not
    /// make it a changed one. Called only if the family's repository factory supports default
    /// items.
    /// \return whether there is anything to see
    virtual bool ShowDefault(const CRepositoryItem& /*item*/, System::CGisSystem& /*system*/) {
        return false;
    }

    /// Whether items of the family make sense in systems of a topology. The kinds of entities
    /// need not be looked at: the executor does.
    virtual bool ServesTopology(enmTopologyType /*type*/) const { return true; }
};

} // namespace Orvane
