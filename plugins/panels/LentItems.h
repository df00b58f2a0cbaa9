// Item data in the hands of commands.
#pragma once

#include <functional>
#include <memory>

#include "workspacecore/tree/WsTreeItemData.h"

namespace Orvane::Panels {

using LentItem = std::shared_ptr<Workspace::CWsTreeItemData>;

/// A copy that stays valid as long as the command holds it, whatever becomes of the tree. Its
/// node and its system are taken out of it once they go.
LentItem LendItem(const Workspace::CWsTreeItemData& item);

/// Calls for everything that is lent.
void ForEachLentItem(const std::function<void(Workspace::CWsTreeItemData&)>& call);

} // namespace Orvane::Panels
