// Enumerations of commands. They are persisted and compared, so the values must not change.
#pragma once

namespace Orvane::Workspace {

/// Section of a menu in which a command appears.
enum enmCommandGroup : int {
    CommandGroupAdd = 1,
    CommandGroupEdit = 2, ///< edit, rename and copy
    CommandGroupDelete = 4,
    CommandGroupRun = 5,    ///< run and set as default; the default group
    CommandGroupHidden = 7, ///< not in menus: double click, drops, send to, toggles
    CommandGroupLast = 8,   ///< at the end, after a separator
};

/// How a command changes the tree.
enum enmTreeCommandBehavior : int {
    TreeBehaviorNone = 0,
    TreeBehaviorAdd = 1, ///< add, send to and item drop
    TreeBehaviorDelete = 2,
    TreeBehaviorSystemAdd = 5,
    TreeBehaviorSystemDelete = 6,
    TreeBehaviorEdit = 7, ///< edit and rename
};

} // namespace Orvane::Workspace
