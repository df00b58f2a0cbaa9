// The content of the three trees as plain data, built from the templates, the systems of the
// drawing and the configurations in the stores. Needs no window.
#pragma once

#include <vector>

#include "workspacecore/tree/WsTreeTemplate.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Panels {

/// A tree node. Does not own its system.
struct TreeNode {
    using DefinitionPtr = boost::shared_ptr<Workspace::CWsTreeItemDefinition>;

    CString name;             ///< of the system or configuration, for editing
    CString text;             ///< as shown: the name with marks
    DefinitionPtr definition; ///< null for a node that only reports a problem
    CString guid;             ///< of a system or a configuration; empty for folders
    System::CGisSystem* pSystem = nullptr;
    bool isTargetNet = false;
    bool isGray = false; ///< belongs to a hidden system
    std::vector<TreeNode> children;
};

enum class TreeKind { Systems, Disk, Net };
inline constexpr TreeKind kTreeKinds[] = {TreeKind::Systems, TreeKind::Disk, TreeKind::Net};

/// The root with all its descendants. If the root has no definition, the node is empty.
TreeNode TreeContent(TreeKind kind);

/// Identifies a node among its siblings, independently of their names.
CString KeyOf(const TreeNode& node);
CString KeyOf(const Workspace::CWsTreeItemDefinition& definition, const CString& guid);

} // namespace Orvane::Panels
