// What the three trees show, as plain data: made of the templates, the systems of the drawing
// and the configurations of the stores, without a window.
#pragma once

#include <vector>

#include "workspacecore/tree/WsTreeTemplate.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Panels {

/// One node. It does not own its system.
struct TreeNode {
    using DefinitionPtr = boost::shared_ptr<Workspace::CWsTreeItemDefinition>;

    CString name; ///< of what it stands for, as it can be edited
    CString text; ///< as it is shown: the name, with marks
    DefinitionPtr definition;
    CString guid; ///< of a system or a configuration; empty for folders
    System::CGisSystem* pSystem = nullptr;
    bool isTargetNet = false;
    bool isGray = false; ///< what belongs to a hidden system
    std::vector<TreeNode> children;
};

enum class TreeKind { Systems, Disk, Net };
inline constexpr TreeKind kTreeKinds[] = {TreeKind::Systems, TreeKind::Disk, TreeKind::Net};

/// The root with all below it. Without a definition for the root it has none either, and
/// nothing below it.
TreeNode TreeContent(TreeKind kind);

/// Tells a node from those beside it, whatever they are called.
CString KeyOf(const TreeNode& node);
CString KeyOf(const Workspace::CWsTreeItemDefinition& definition, const CString& guid);

} // namespace Orvane::Panels
