// Node data owned by running commands.
#pragma once

#include <functional>
#include <memory>

#include "workspacecore/tree/WsTreeItemData.h"

namespace Orvane::Panels {

using LentItem = std::shared_ptr<Workspace::CWsTreeItemData>;

/// A copy that stays valid as long as the command holds it, even if the tree is refilled. Its tree
/// node and system are reset to null when these are deleted.
LentItem LendItem(const Workspace::CWsTreeItemData& item);

/// Calls `call` for every copy still in use.
void ForEachLentItem(const std::function<void(Workspace::CWsTreeItemData&)>& call);

} // namespace Orvane::Panels
