#include "plugins/panels/TreeOutline.h"

#include "plugins/panels/PanelTexts.h"
#include "siblings/giscore/topology/Topology.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Panels {

namespace {

using Workspace::CWsTreeItemDefinition;
using Workspace::CWsTreeTemplate;

CString Indent(int depth) {
    return CString(std::wstring(static_cast<std::size_t>(depth) * 2, L' '));
}

void AppendContent(const TreeNode& node, int depth, Lines& lines) {
    lines.push_back(Indent(depth) + node.text);
    for (const TreeNode& child : node.children) {
        AppendContent(child, depth + 1, lines);
    }
}

CString KindOf(const CWsTreeItemDefinition& definition) {
    return FormatText(L"%s, %d", definition.GetId(), definition.GetWsItemType());
}

void AppendTemplate(const CWsTreeTemplate& node, int depth, Lines& lines) {
    const auto& definition = node.GetItemDefinition();
    CString line = Indent(depth);
    if (definition) {
        const CString name = definition->GetName();
        line += name.IsEmpty() ? definition->GetId() : name;
        line += L"  [" + KindOf(*definition) + L"]";
    }
    if (node.IsPlaceToAddConfiguration()) {
        const auto& configuration = node.GetConfigurationDefinition();
        line += L"  " + Text(Msg::PlaceToAdd, configuration ? KindOf(*configuration) : L"-");
    }
    lines.push_back(line);
    for (const auto& child : *node.GetChildren()) {
        AppendTemplate(*child, depth + 1, lines);
    }
}

void AppendTree(const CString& title, const CWsTreeTemplate::Ptr& tree, Lines& lines) {
    lines.push_back(title);
    if (tree) {
        Workspace::CWsManager::Instance()->TreeMgr()->SortTreeTemplate(tree);
        AppendTemplate(*tree, 1, lines);
    } else {
        lines.push_back(Indent(1) + Text(Msg::NoTemplate));
    }
}

void AppendSystemTrees(const CTopology& topology, Lines& lines) {
    const auto& definitions =
        *Workspace::CWsManager::Instance()->TreeMgr()->GetTreeItemDefinitionList();
    const enmTopologyType type = topology.GetTopologyType();
    if (!topology.GetHasFunctions()) {
        AppendTree(Text(Msg::SystemTemplate, topology.GetNameUI(), CString(L"-")),
                   definitions.GetSystemTreeTemplate(type, 0), lines);
    }
    for (const CTopologyFunction& function : topology.GetTopologyFunctionVector()) {
        AppendTree(Text(Msg::SystemTemplate, topology.GetNameUI(), function.GetName()),
                   definitions.GetSystemTreeTemplate(type, function.GetId()), lines);
    }
}

bool StartsWith(std::wstring_view text, const CString& name) {
    return !name.IsEmpty() && text.size() >= name.View().size() &&
           CString(text.substr(0, name.View().size())).CompareNoCase(name) == 0;
}

/// The child whose name matches the start of the path up to its end or a "/"; the longest match
/// wins.
const TreeNode* StepDown(const TreeNode& node, std::wstring_view rest) {
    const TreeNode* pBest = nullptr;
    for (const TreeNode& child : node.children) {
        const std::size_t length = child.name.View().size();
        const bool fits =
            StartsWith(rest, child.name) && (rest.size() == length || rest[length] == L'/');
        if (fits && (!pBest || length > pBest->name.View().size())) {
            pBest = &child;
        }
    }
    return pBest;
}

} // namespace

Lines ContentLines(const TreeNode& root) {
    Lines lines;
    AppendContent(root, 0, lines);
    return lines;
}

Lines TemplateLines() {
    Lines lines;
    for (const CTopology& topology :
         CModuleConfiguration::Instance()->GetTopologyConfiguration()->GetTopologyVector()) {
        AppendSystemTrees(topology, lines);
    }
    const auto& definitions =
        *Workspace::CWsManager::Instance()->TreeMgr()->GetTreeItemDefinitionList();
    AppendTree(Text(Msg::DiskRepository), definitions.GetDiskTreeTemplate(), lines);
    AppendTree(Text(Msg::NetRepository), definitions.GetNetTreeTemplate(), lines);
    return lines;
}

Lines MenuLines(const Workspace::MenuEntries& entries) {
    Lines lines;
    for (const auto& command : entries) {
        lines.push_back(command
                            ? CString(FormatText(L"%s  (%s)", command->GetName(), command->GetId()))
                            : CString(L"----"));
    }
    return lines;
}

PathResult FollowPath(const TreeNode& root, const CString& path) {
    const TreeNode* pNode = &root;
    std::wstring_view rest = path.View();
    while (!rest.empty()) {
        const TreeNode* const pChild = StepDown(*pNode, rest);
        if (!pChild) {
            break;
        }
        pNode = pChild;
        rest.remove_prefix(std::min(rest.size(), pChild->name.View().size() + 1));
    }
    return {pNode, CString(rest)};
}

CString DeadEnd(const PathResult& result) {
    CString names;
    for (const TreeNode& child : result.pNode->children) {
        names += (names.IsEmpty() ? L"" : L", ") + child.name;
    }
    return Text(Msg::NoSuchNode, result.rest, result.pNode->name) + L" " +
           (names.IsEmpty() ? Text(Msg::NoChildren) : Text(Msg::ThereIs, names));
}

} // namespace Orvane::Panels
