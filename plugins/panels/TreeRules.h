// What nodes of the trees do when somebody clicks, types or drops: rules without a window.
#pragma once

#include "workspacecore/tree/WsTreeItemData.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Panels {

/// A node that stands for something, a system or a configuration; folders do not.
bool IsObject(const Workspace::CWsTreeItemData& node);

/// Command of a double click or Enter; empty for folders, which only open and close.
CString DoubleClickCommand(const Workspace::CWsTreeItemData& node);
/// Command of a new name; empty if the node cannot be renamed.
CString RenameCommand(const Workspace::CWsTreeItemData& node);
/// The command of the node's menu that deletes; empty if it has none.
CString DeleteCommand(const Workspace::CWsTreeItemData& node);
bool CanDrag(const Workspace::CWsTreeItemData& node);

/// What a drop of one node on another does.
struct DropPlan {
    CString commandId;    ///< empty: the target does not take it
    bool isQuery = false; ///< the query itself is handed over, to be run; else the item is copied
};
DropPlan PlanDrop(const Workspace::CWsTreeItemData& dragged,
                  const Workspace::CWsTreeItemData& target);

} // namespace Orvane::Panels
