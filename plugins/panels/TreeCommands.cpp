// TREE_TEMPLATES, TREE_MENU and TREE: print the content of the trees.
#include "platform/arx/EdPrompt.h"
#include "plugins/panels/PanelCommands.h"
#include "plugins/panels/PanelTexts.h"
#include "plugins/panels/TreeOutline.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Panels {

namespace {

/// First parts of paths; the same in every language.
constexpr struct {
    const wchar_t* word;
    TreeKind kind;
} kTrees[] = {
    {L"system", TreeKind::Systems},
    {L"disk", TreeKind::Disk},
    {L"net", TreeKind::Net},
};

bool Print(const Lines& lines, const wchar_t* indent = L"") {
    for (const CString& line : lines) {
        acutPrintf(L"%s%s\n", indent, line);
    }
    return true;
}

bool PrintTemplates() {
    return Print(TemplateLines());
}

bool PrintTrees() {
    for (const auto& tree : kTrees) {
        Print(ContentLines(TreeContent(tree.kind)));
    }
    return true;
}

bool PrintMenuOf(const TreeNode& node) {
    if (!node.definition) {
        acutPrintf(L"%s\n", Text(Msg::NoTemplate));
        return false;
    }
    const auto& registry = *Workspace::CWsManager::Instance()->CmdMgr()->GetCommandRegistry();
    const auto entries = Workspace::TreeMenuEntries(registry, Workspace::MenuTopology(node.pSystem),
                                                    *node.definition);
    acutPrintf(L"%s\n", entries.empty() ? Text(Msg::EmptyMenu, node.text) : node.text);
    return Print(MenuLines(entries), L"  ");
}

bool PrintMenu() {
    CString path;
    if (acedGetString(kGetStringAllowBlanks, Text(Msg::AskPath), path) != RTNORM) {
        return false;
    }
    path.Trim();
    const int slash = path.Find(L'/');
    const CString first = slash < 0 ? path : path.Left(slash);
    CString trees;
    for (const auto& tree : kTrees) {
        trees += (trees.IsEmpty() ? L"" : L", ") + CString(tree.word);
        if (first.CompareNoCase(tree.word) == 0) {
            const TreeNode root = TreeContent(tree.kind);
            const PathResult result = FollowPath(root, slash < 0 ? CString() : path.Mid(slash + 1));
            if (result.rest.IsEmpty()) {
                return PrintMenuOf(*result.pNode);
            }
            acutPrintf(L"%s\n", DeadEnd(result));
            return false;
        }
    }
    acutPrintf(L"%s\n", Text(Msg::ThereIs, trees));
    return false;
}

constexpr PanelCommand kCommands[] = {
    {L"TREE_TEMPLATES", 900590, 900591, PrintTemplates},
    {L"TREE_MENU", 900592, 900593, PrintMenu},
    {L"TREE", 900594, 900595, PrintTrees},
};

} // namespace

std::span<const PanelCommand> TreeCommands() {
    return kCommands;
}

} // namespace Orvane::Panels
