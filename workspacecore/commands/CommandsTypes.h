// Numbers of the commands. They are persisted and compared, so the values stand.
#pragma once

namespace Orvane::Workspace {

/// Section of a menu in which a command stands.
enum enmCommandGroup : int {
    CommandGroupAdd = 1,
    CommandGroupEdit = 2, ///< edit, rename and copy
    CommandGroupDelete = 4,
    CommandGroupRun = 5,    ///< run and set as default; the group of a fresh record
    CommandGroupHidden = 7, ///< in no menu: double click, drops, send to, toggles
    CommandGroupLast = 8,   ///< behind everything else, after a separator
};

/// What a command does to the tree once it has run.
enum enmTreeCommandBehavior : int {
    TreeBehaviorNone = 0,
    TreeBehaviorAdd = 1, ///< add, send to and item drop
    TreeBehaviorDelete = 2,
    TreeBehaviorSystemAdd = 5,
    TreeBehaviorSystemDelete = 6,
    TreeBehaviorEdit = 7, ///< edit and rename
};

} // namespace Orvane::Workspace
