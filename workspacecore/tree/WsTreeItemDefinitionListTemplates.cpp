// Assembly of the tree templates.
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "workspacecore/tree/TreeItemIndex.h"

namespace Orvane::Workspace {

namespace {

using TemplatePtr = CWsTreeItemDefinitionList::TemplatePtr;
using DefinitionPtr = CWsTreeItemDefinitionList::DefinitionPtr;

constexpr TreeItemIndex::Kinds kSystemTree = {WsItemSystemEntityFolder, WsItemSystemConfiguration,
                                              true};
constexpr TreeItemIndex::Kinds kRepositoryTree = {WsItemRepositoryEntityFolder,
                                                  WsItemRepositoryConfiguration, false};

/// The tool groups of a system, in display order.
constexpr enmWSTreeItemType kToolGroups[] = {WsItemSystemToolDraw,    WsItemSystemToolEdit,
                                             WsItemSystemToolSetData, WsItemSystemToolManager,
                                             WsItemSystemTool,        WsItemSystemToolFastCommand};

CString MapKey(enmTopologyType type, int function) {
    return CWsTopologyData(type, function).GetMapKey();
}

std::vector<enmEntityType> EntityTypes(const CTopology& topology) {
    std::vector<enmEntityType> types;
    for (const CTopologyEntityType& entry : topology.GetEntityTypeVector()) {
        types.push_back(entry.GetType());
    }
    return types;
}

/// The kinds of entities of all enabled topologies; those used by two topologies occur twice.
std::vector<enmEntityType> EntityTypesInUse() {
    std::vector<enmEntityType> all;
    for (const CTopology& topology :
         CModuleConfiguration::Instance()->GetTopologyConfiguration()->GetTopologyVector()) {
        if (topology.GetOnOff()) {
            const std::vector<enmEntityType> types = EntityTypes(topology);
            all.insert(all.end(), types.begin(), types.end());
        }
    }
    return all;
}

} // namespace

/// Builds templates. A friend of the templates, as is the list.
class TreeTemplateAssembly {
public:
    static TemplatePtr Append(const TemplatePtr& parent, const DefinitionPtr& definition) {
        TemplatePtr node(new CWsTreeTemplate);
        node->m_itemDefinition = definition;
        node->m_parentItem = parent;
        parent->m_children.push_back(node);
        return node;
    }

    /// Appends a repository folder with its content.
    /// \param topology a key of topology data; empty in the repository trees
    static void AppendRepositoryFolder(const TemplatePtr& root, const DefinitionPtr& definition,
                                       const TreeItemIndex& index, const CString& topology,
                                       const std::vector<enmEntityType>& entityTypes) {
        const TemplatePtr folder = Append(root, definition);
        const TreeItemIndex::Family family = index.In(definition->GetRepositoryTag(), topology);
        if (!definition->GetIsEntitySpecific()) {
            folder->m_bIsPlaceToAddConfiguration = 1;
            folder->m_configurationDefinition = family.Configuration();
            return;
        }
        for (const enmEntityType type : entityTypes) {
            AppendEntityFolders(folder, family, type);
        }
    }

private:
    static void AppendEntityFolders(const TemplatePtr& folder, const TreeItemIndex::Family& family,
                                    enmEntityType type) {
        for (const DefinitionPtr& definition : family.EntityFolders(type)) {
            const TemplatePtr node = Append(folder, definition);
            node->m_bIsEntitySpecificConfiguration = 1;
            node->m_configurationEntityType = type;
            node->m_bIsPlaceToAddConfiguration = 1;
            node->m_configurationDefinition = family.Configuration(type);
        }
    }
};

TemplatePtr CWsTreeItemDefinitionList::GetSystemTreeTemplate(System::CGisSystem* pSystem) const {
    return pSystem ? GetSystemTreeTemplate(pSystem->GetTopologyType(), pSystem->GetSystemFunction())
                   : nullptr;
}

TemplatePtr
CWsTreeItemDefinitionList::GetSystemTreeTemplate(const CWsTopologyDataSet::Ptr& data) const {
    return data ? GetSystemTreeTemplate(data->GetTopologyType(), data->GetTopologyFunction())
                : nullptr;
}

TemplatePtr CWsTreeItemDefinitionList::GetSystemTreeTemplate(enmTopologyType type,
                                                             int function) const {
    const CTopology* const pTopology = CModuleConfiguration::Instance()->GetTopology(type);
    if (!pTopology) {
        return nullptr;
    }
    const auto hit =
        m_systemTreeTemplateMap.find(MapKey(type, pTopology->GetHasFunctions() ? function : 0));
    return hit == m_systemTreeTemplateMap.end() ? nullptr : hit->second;
}

DefinitionPtr CWsTreeItemDefinitionList::GetSystemItem() const {
    for (const DefinitionPtr& definition : m_wsTreeItemDefinitionVector) {
        if (definition->GetWsItemType() == WsItemSystem) {
            return definition;
        }
    }
    return nullptr;
}

void CWsTreeItemDefinitionList::InitializeSystemTreeTemplate() {
    const DefinitionPtr systemItem = GetSystemItem();
    if (!systemItem) {
        return;
    }
    AddSystemRoots(systemItem);
    AddToolGroups();
    const TreeItemIndex index(m_wsTreeItemDefinitionMapByType, kSystemTree);
    const auto [first, last] = m_wsTreeItemDefinitionMapByType.equal_range(WsItemSystemRepository);
    for (auto entry = first; entry != last; ++entry) {
        AddSystemRepositoryDefinition(entry->second, index);
    }
}

void CWsTreeItemDefinitionList::AddSystemRoots(const DefinitionPtr& systemItem) {
    const auto add = [&](enmTopologyType type, int function) {
        TemplatePtr root(new CWsTreeTemplate);
        root->m_itemDefinition = systemItem;
        root->m_nTopologyType = type;
        root->m_nTopologyFunction = function;
        m_systemTreeTemplateMap.emplace(MapKey(type, function), root);
    };
    for (const CTopology& topology :
         CModuleConfiguration::Instance()->GetTopologyConfiguration()->GetTopologyVector()) {
        for (const CTopologyFunction& function : topology.GetTopologyFunctionVector()) {
            add(topology.GetTopologyType(), function.GetId());
        }
        if (!topology.GetHasFunctions()) {
            add(topology.GetTopologyType(), 0);
        }
    }
}

void CWsTreeItemDefinitionList::AddToolGroups() {
    for (const enmWSTreeItemType group : kToolGroups) {
        const auto [first, last] = m_wsTreeItemDefinitionMapByType.equal_range(group);
        for (auto entry = first; entry != last; ++entry) {
            for (const auto& data : *entry->second->GetWsTopologyDataVector()) {
                if (const TemplatePtr root = GetSystemTreeTemplate(data)) {
                    TreeTemplateAssembly::Append(root, entry->second);
                }
            }
        }
    }
}

void CWsTreeItemDefinitionList::AddSystemRepositoryDefinition(const DefinitionPtr& definition,
                                                              const TreeItemIndex& index) {
    if (definition->GetWsItemType() != WsItemSystemRepository) {
        return;
    }
    for (const auto& data : *definition->GetWsTopologyDataVector()) {
        if (const TemplatePtr root = GetSystemTreeTemplate(data)) {
            const auto type = static_cast<enmTopologyType>(root->m_nTopologyType);
            TreeTemplateAssembly::AppendRepositoryFolder(
                root, definition, index, MapKey(type, root->m_nTopologyFunction),
                EntityTypes(*CModuleConfiguration::Instance()->GetTopology(type)));
        }
    }
}

void CWsTreeItemDefinitionList::InitializeDiskTreeTemplate() {
    InitializeRepositoryTree(m_diskTreeTemplate);
}

void CWsTreeItemDefinitionList::InitializeNetTreeTemplate() {
    InitializeRepositoryTree(m_netTreeTemplate);
}

void CWsTreeItemDefinitionList::InitializeRepositoryTree(TemplatePtr& tree) {
    if (tree) {
        return;
    }
    tree = MakeRepositoryRoot();
    const TreeItemIndex index(m_wsTreeItemDefinitionMapByType, kRepositoryTree);
    const std::vector<enmEntityType> entityTypes = EntityTypesInUse();
    const auto [first, last] = m_wsTreeItemDefinitionMapByType.equal_range(WsItemRepository);
    for (auto entry = first; entry != last; ++entry) {
        if (entry->second->GetWsItemType() == WsItemRepository) {
            TreeTemplateAssembly::AppendRepositoryFolder(tree, entry->second, index, L"",
                                                         entityTypes);
        }
    }
}

TemplatePtr CWsTreeItemDefinitionList::MakeRepositoryRoot() const {
    TemplatePtr root(new CWsTreeTemplate);
    // The type is not compared: the root has the lowest number of all types outside the system
    // tree.
    const auto hit = m_wsTreeItemDefinitionMapByType.lower_bound(WsItemRepositoryRoot);
    if (hit != m_wsTreeItemDefinitionMapByType.end()) {
        root->m_itemDefinition = hit->second;
    }
    return root;
}

} // namespace Orvane::Workspace
