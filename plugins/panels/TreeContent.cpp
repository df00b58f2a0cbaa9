#include "plugins/panels/TreeContent.h"

#include <algorithm>
#include <set>

#include "plugins/panels/PanelTexts.h"
#include "siblings/giscore/repository/RepositoryFactory.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/repository/RepositoryStore.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Panels {

namespace {

using Workspace::CWsTreeItemDefinition;
using Workspace::CWsTreeTemplate;

/// The tree under construction and the current position in it.
struct Place {
    TreeKind kind;
    System::CGisSystem* pSystem = nullptr;
    bool isGray = false;
};

TreeNode MakeNode(const TreeNode::DefinitionPtr& definition, const Place& place) {
    TreeNode node;
    node.definition = definition;
    node.name = definition ? definition->GetName() : CString();
    node.text = node.name;
    node.pSystem = place.pSystem;
    node.isTargetNet = place.kind == TreeKind::Net;
    node.isGray = place.isGray;
    return node;
}

CRepositoryFactory::StorePtr StoreOf(const CString& tag, const Place& place) {
    CRepositoryFactory* const pFactory = CRepositoryManager::Instance()->GetRepositoryfactory(tag);
    if (!pFactory) {
        return {};
    }
    return place.kind == TreeKind::Systems ? pFactory->GetSystemStore(place.pSystem)
           : place.kind == TreeKind::Net   ? pFactory->GetNetStore()
                                           : pFactory->GetDiskStore();
}

void AddConfigurations(TreeNode& folder, const CWsTreeTemplate& slot, const Place& place) {
    const auto& definition = slot.GetConfigurationDefinition();
    const auto store = definition ? StoreOf(definition->GetRepositoryTag(), place) : nullptr;
    if (!store) {
        return;
    }
    const enmEntityType type = slot.GetConfigurationEntityType();
    const CString standard = store->GetDefault(type);
    for (const RepositoryItemHead& item : store->GetHeads(type)) {
        TreeNode node = MakeNode(definition, place);
        node.name = item.name;
        node.guid = item.guid;
        node.text = !standard.IsEmpty() && node.guid == standard ? Text(Msg::DefaultMark, node.name)
                                                                 : node.name;
        folder.children.push_back(std::move(node));
    }
}

/// The disk and net templates repeat an entity folder for each topology with such entities; all of
/// them would show the same configurations.
bool HasChildOf(const TreeNode& parent, const TreeNode::DefinitionPtr& definition) {
    return std::any_of(parent.children.begin(), parent.children.end(), [&](const TreeNode& child) {
        return definition && child.definition == definition;
    });
}

void AddTemplate(TreeNode& parent, const CWsTreeTemplate& slot, const Place& place) {
    if (HasChildOf(parent, slot.GetItemDefinition())) {
        return;
    }
    TreeNode node = MakeNode(slot.GetItemDefinition(), place);
    for (const auto& child : *slot.GetChildren()) {
        AddTemplate(node, *child, place);
    }
    if (slot.IsPlaceToAddConfiguration()) {
        AddConfigurations(node, slot, place);
    }
    parent.children.push_back(std::move(node));
}

void AddChildren(TreeNode& parent, const CWsTreeTemplate::Ptr& tree, const Place& place) {
    Workspace::CWsManager::Instance()->TreeMgr()->SortTreeTemplate(tree);
    for (const auto& child : *tree->GetChildren()) {
        AddTemplate(parent, *child, place);
    }
}

TreeNode::DefinitionPtr FindDefinition(Workspace::enmWSTreeItemType type) {
    for (const auto& definition : *Workspace::CWsManager::Instance()
                                       ->TreeMgr()
                                       ->GetTreeItemDefinitionList()
                                       ->GetWsTreeItemDefinitionVector()) {
        if (definition->GetWsItemType() == type) {
            return definition;
        }
    }
    return {};
}

CString SystemText(const System::CGisSystem& system) {
    CString text = system.GetSystemName();
    if (!system.GetVisibility()) {
        text = Text(Msg::HiddenMark, text);
    }
    return system.GetActive() ? Text(Msg::ActiveMark, text) : text;
}

void AddSystem(TreeNode& root, System::CGisSystem& system) {
    const auto tree = Workspace::CWsManager::Instance()
                          ->TreeMgr()
                          ->GetTreeItemDefinitionList()
                          ->GetSystemTreeTemplate(&system);
    const Place place{TreeKind::Systems, &system, !system.GetVisibility()};
    TreeNode node =
        MakeNode(tree ? tree->GetItemDefinition() : FindDefinition(Workspace::WsItemSystem), place);
    node.name = system.GetSystemName();
    node.text = SystemText(system);
    node.guid = system.GetGuid();
    if (tree) {
        AddChildren(node, tree, place);
    }
    root.children.push_back(std::move(node));
}

TreeNode SystemContent() {
    TreeNode root = MakeNode(FindDefinition(Workspace::WsItemSystemManager), {TreeKind::Systems});
    System::CGisSystems* const pSystems = System::CSystemManager::Instance()->GetSystems();
    if (root.definition && pSystems) {
        for (System::CGisSystem* const pSystem : pSystems->GetSystemList()) {
            AddSystem(root, *pSystem);
        }
    }
    return root;
}

/// A folder that cannot be reached, and configurations that cannot be read. A folder that all
/// families miss is one problem.
void AddProblems(TreeNode& root, const Place& place) {
    std::set<CString, CStringLess> problems;
    for (const CString& tag : CRepositoryManager::Instance()->GetRepositoryFamilyTags()) {
        if (const auto store = StoreOf(tag, place)) {
            const auto found = store->GetProblems();
            problems.insert(found.begin(), found.end());
        }
    }
    for (const CString& problem : problems) {
        TreeNode node = MakeNode(nullptr, place);
        node.name = node.text = problem;
        node.isGray = true;
        root.children.push_back(std::move(node));
    }
}

TreeNode RepositoryContent(TreeKind kind) {
    const Workspace::CWsTreeItemDefinitionList& definitions =
        *Workspace::CWsManager::Instance()->TreeMgr()->GetTreeItemDefinitionList();
    const auto tree = kind == TreeKind::Net ? definitions.GetNetTreeTemplate()
                                            : definitions.GetDiskTreeTemplate();
    const Place place{kind};
    TreeNode root = MakeNode(tree ? tree->GetItemDefinition() : nullptr, place);
    // Both repository trees share their root's definition, and with it the name.
    if (root.definition && kind == TreeKind::Net) {
        root.name = root.text = Text(Msg::NetRepository);
    }
    if (root.definition) {
        AddChildren(root, tree, place);
        AddProblems(root, place);
    }
    return root;
}

} // namespace

TreeNode TreeContent(TreeKind kind) {
    return kind == TreeKind::Systems ? SystemContent() : RepositoryContent(kind);
}

CString KeyOf(const CWsTreeItemDefinition& definition, const CString& guid) {
    // The folder of a family and its configurations have the same id.
    return FormatText(L"%s:%d:%d:%s", definition.GetId(), definition.GetWsItemType(),
                      definition.GetEntityType(), guid);
}

CString KeyOf(const TreeNode& node) {
    return node.definition ? KeyOf(*node.definition, node.guid) : CString(node.text);
}

} // namespace Orvane::Panels
