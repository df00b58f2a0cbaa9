// What a command on configurations is about: read from the node of a tree, or asked for.
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

/// A place where items of a family are kept.
struct RepositoryTarget {
    CRepositoryFactory::StorePtr store;
    /// That the items stand under; else the active one, to run them on. May be null.
    System::CGisSystem* pSystem = nullptr;
    /// Of the command, or of the node; EntityNone for neither.
    enmEntityType entityType = EntityNone;
    CString guid; ///< of the node's item; empty for folders
};

/// The place of a node: the repository on disk or net for nodes of those trees, otherwise
/// the node's system or the active one. Without a node, and without an active system, the
/// disk. Nothing if there is no such place, which the user is told.
std::optional<RepositoryTarget> TargetOf(const RepositoryCommandId& command,
                                         const Workspace::CWsTreeItemData* pNode);

/// The item of a target, of its entity type if that is any. Without a node's item the user is
/// asked for the name, which is then also looked for on disk and net, and the target changes
/// to where it was found. Null if there is none, which the user is told.
CRepositoryStore::ItemPtr ItemOf(RepositoryTarget& target);

/// The item that is dropped on a node: the query, or what stands at the node that the
/// target node's custom data points to. Null if there is none of the family.
CRepositoryStore::ItemPtr DroppedItem(const CString& tag, const CRepositoryItem* pQuery,
                                      const Workspace::CWsTreeItemData* pNode);

/// Whether a system has what items of a family and an entity type are about; folders have
/// everything. If not, the user is told.
bool HasPlaceFor(const IRepositoryFamily& family, enmEntityType type,
                 const System::CGisSystem* pSystem);

/// Puts an item into a place, if that has any use for it. If it is there already, the user is asked
/// whether it may be replaced. False if it was not done, which the user is told.
bool PutItem(CRepositoryStore& store, const CRepositoryItem& item);

/// Tells the trees that items of a family have come, gone or changed: publisher
/// "REFRESH_CHILDREN", hints the system (null for folders) and the family's tag.
void RefreshTrees(CRepositoryStore& store);

} // namespace Orvane::Repository
