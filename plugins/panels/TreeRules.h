// What nodes do on clicks, keys and drops: rules without a window.
#pragma once

#include "workspacecore/tree/WsTreeItemData.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Panels {

/// Whether the node is a system or a configuration, not a folder.
bool IsObject(const Workspace::CWsTreeItemData& node);

/// The command for a double click or Enter; empty for folders, which only expand and collapse.
CString DoubleClickCommand(const Workspace::CWsTreeItemData& node);
/// The command that renames the node; empty if it cannot be renamed.
CString RenameCommand(const Workspace::CWsTreeItemData& node);
/// The command of the node's menu that deletes it; empty if there is none.
CString DeleteCommand(const Workspace::CWsTreeItemData& node);
bool CanDrag(const Workspace::CWsTreeItemData& node);

/// The effect of dropping one node on another.
struct DropPlan {
    CString commandId;    ///< empty if the target does not accept the drop
    bool isQuery = false; ///< pass the query itself, to be run; otherwise the item is copied
};
DropPlan PlanDrop(const Workspace::CWsTreeItemData& dragged,
                  const Workspace::CWsTreeItemData& target);

} // namespace Orvane::Panels
