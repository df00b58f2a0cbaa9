// The target of a command on configurations, from its tree node or from prompts.
#pragma once

#include <optional>

#include "plugins/repository/RepositoryCommandId.h"
#include "siblings/giscore/repository/RepositoryFactory.h"
#include "siblings/giscore/repository/RepositoryStore.h"

namespace Orvane {
class IRepositoryFamily;
}

namespace Orvane::Workspace {
class CWsTreeItemData;
}

namespace Orvane::Repository {

/// A place that holds items of a family.
struct RepositoryTarget {
    CRepositoryFactory::StorePtr store;
    /// The items' system, or for disk and net the active system to run them on. May be null.
    System::CGisSystem* pSystem = nullptr;
    /// From the command or the node; EntityNone if neither has one.
    enmEntityType entityType = EntityNone;
    CString guid; ///< the node's item; empty for folders
};

/// The place of a node: the disk or net repository for nodes of those trees, otherwise the node's
/// system or the active one. Without a node and an active system, the disk. Reports the reason and
/// returns nothing if that place does not exist.
std::optional<RepositoryTarget> TargetOf(const RepositoryCommandId& command,
                                         const Workspace::CWsTreeItemData* pNode);

/// The target's item, restricted to its entity type if it has one. If the node has no item, asks
/// for the name, searches disk and net as well, and updates the target to where the item was found.
/// Reports the reason and returns null if there is none.
CRepositoryStore::ItemPtr ItemOf(RepositoryTarget& target);

/// The item dropped on a node: the query, or the item of the node that the target node's custom
/// data points to. Null if there is none of this family.
CRepositoryStore::ItemPtr DroppedItem(const CString& tag, const CRepositoryItem* pQuery,
                                      const Workspace::CWsTreeItemData* pNode);

/// Whether a system has the entities that items of this family and entity type apply to; always
/// true for folders. Reports the reason if not.
bool HasPlaceFor(const IRepositoryFamily& family, enmEntityType type,
                 const System::CGisSystem* pSystem);

/// Stores an item in a place if the place supports it, asking before replacing an existing one.
/// Reports the reason and returns false if it was not stored.
bool PutItem(CRepositoryStore& store, const CRepositoryItem& item);

/// Notifies the trees that items of a family were added, removed or changed: publisher
/// "REFRESH_CHILDREN", with the system (null for folders) and the family's tag as hints.
void RefreshTrees(CRepositoryStore& store);

} // namespace Orvane::Repository
