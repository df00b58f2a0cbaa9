// What the families of configurations have in common.
#pragma once

#include <optional>

#include "siblings/giscore/QueryDefinition.h"
#include "siblings/giscore/RepositoryItemFactory.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Repository {

/// One family: makes its items, asks the user what is to be in one, and carries one out.
/// Items that are handed in were made by the same family. Lives as long as the process.
class RepositoryFamily : public CRepositoryItemFactory {
public:
    virtual const wchar_t* Tag() const = 0;

    /// Asks at the command line, with what the item has as the answers to fall back on.
    /// \param pSystem what the user is likely to think of; may be null
    /// \return false if it was cancelled or made no sense, which the user was told; the item
    ///     may then be changed in part
    virtual bool AskContent(CRepositoryItem& item, const System::CGisSystem* pSystem) = 0;

    /// Works on a system of the drawing.
    /// \param pOnly narrows it to entities that fulfil a query; may be null
    /// \return how many entities it was about; nothing if it was not carried out, which the
    ///     user was told
    virtual std::optional<int> Run(const CRepositoryItem& item, System::CGisSystem& system,
                                   const Query::CQueryDefinition* pOnly) = 0;
};

} // namespace Orvane::Repository
