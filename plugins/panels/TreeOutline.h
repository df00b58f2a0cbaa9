// The trees, their templates and their menus as text for the console.
#pragma once

#include "plugins/panels/TreeContent.h"
#include "workspacecore/panel/TreeMenus.h"

namespace Orvane::Panels {

/// One line per node, indented by depth, without line ends.
using Lines = std::vector<CString>;

/// The texts of the nodes.
Lines ContentLines(const TreeNode& root);

/// The templates of all topologies and functions, then those of disk and net. Lists the type of
/// each node and, where configurations are added, their type.
Lines TemplateLines();

/// Commands with their ids; "----" for a separator.
Lines MenuLines(const Workspace::MenuEntries& entries);

/// The result of following a path of node names from the tree ("system", "disk", "net") down,
/// separated by "/", ignoring case. Names may contain "/".
struct PathResult {
    const TreeNode* pNode = nullptr; ///< the last node that was found
    CString rest;                    ///< the part that was not found; empty on success
};
PathResult FollowPath(const TreeNode& root, const CString& path);

/// Reports where a path failed and which nodes exist there.
CString DeadEnd(const PathResult& result);

} // namespace Orvane::Panels
