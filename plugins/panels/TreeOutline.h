// The trees, their templates and their menus as texts, for the console.
#pragma once

#include "plugins/panels/TreeContent.h"
#include "workspacecore/panel/TreeMenus.h"

namespace Orvane::Panels {

/// One line for each node, indented by its depth; a line has no end of its own.
using Lines = std::vector<CString>;

/// What nodes are called in the tree.
Lines ContentLines(const TreeNode& root);

/// The templates of all systems' topologies and functions, then those of disk and net. Each
/// node with its kind, and where configurations are added with the kind of those.
Lines TemplateLines();

/// Commands with their ids; "----" for a separator.
Lines MenuLines(const Workspace::MenuEntries& entries);

/// Where a path ends: names from the tree ("system", "disk", "net") down, with "/" between,
/// without regard to case. Names may themselves have a "/".
struct PathResult {
    const TreeNode* pNode = nullptr; ///< as far as the path could be followed
    CString rest;                    ///< what could not be followed; empty if all could
};
PathResult FollowPath(const TreeNode& root, const CString& path);

/// Why a path leads to nothing, and what is there instead.
CString DeadEnd(const PathResult& result);

} // namespace Orvane::Panels
