#include "workspacecore/tree/WsRegistrationFactory.h"

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "workspacecore/tree/RegistrationTarget.h"
#include "workspacecore/tree/RepositoryItemRegistration.h"
#include "workspacecore/tree/StandardCommand.h"

namespace Orvane::Workspace {

namespace {

using DefinitionPtr = boost::shared_ptr<CWsTreeItemDefinition>;
using TopologyDataVector = CWsTopologyDataSet::Vector;

constexpr struct {
    const wchar_t* id;
    int nameMessage;
    TreeIcons::enmIcon icon;
    enmWSTreeItemType itemType;
    int acceptRepositoryItemDrop;
} kBasicItems[] = {
    {L"SYSTEMMANAGER", 2780, TreeIcons::SystemManagerIcon, WsItemSystemManager, 0},
    {L"DISKREPO", 5764, TreeIcons::DiskRepositoryIcon, WsItemRepositoryRoot, 1},
};

constexpr struct {
    const wchar_t* id;
    enmCommandGroup group;
    int nameMessage;
    enmTreeCommandBehavior behavior;
    unsigned long itemTypes;
} kSystemCommands[] = {
    {L"SYSTEM_ADD", CommandGroupAdd, 1264, TreeBehaviorSystemAdd,
     WsItemSystemManager | WsItemSystem},
    {L"SYSTEM_EDIT", CommandGroupEdit, 2910, TreeBehaviorEdit, WsItemSystem},
    {L"SYSTEM_DEL", CommandGroupDelete, 4037, TreeBehaviorSystemDelete, WsItemSystem},
    {L"SILENT_SYSTEM_DEL", CommandGroupHidden, 4037, TreeBehaviorSystemDelete, WsItemSystem},
    {L"SYSTEM_DBLCLICK", CommandGroupHidden, 4037, TreeBehaviorNone, WsItemSystem},
    {L"SYSTEM_DROPITEM", CommandGroupHidden, 4037, TreeBehaviorNone, WsItemSystem},
    {L"SYSTEM_TOGGLEVISIBILITY", CommandGroupHidden, 6218, TreeBehaviorNone, WsItemSystem},
};

/// In order of registration, which differs from the order in templates.
constexpr struct {
    const wchar_t* idFormat; ///< arguments: topology type and function
    int nameMessage;
    TreeIcons::enmIcon icon;
    enmWSTreeItemType itemType;
} kToolGroups[] = {
    {L"SYSTEM_TOOLDRAW_%d_%d", 975, TreeIcons::DrawToolIcon, WsItemSystemToolDraw},
    {L"SYSTEM_TOOLEDIT_%d_%d", 1124, TreeIcons::EditToolIcon, WsItemSystemToolEdit},
    {L"SYSTEM_TOOLSETDATA_%d_%d", 55006, TreeIcons::SetDataToolIcon, WsItemSystemToolSetData},
    {L"SYSTEM_TOOLMANAGER_%d_%d", 9571, TreeIcons::ManagerToolIcon, WsItemSystemToolManager},
    {L"SYSTEM_TOOLFASTCMD_%d_%d", 10831, TreeIcons::FastCommandIcon, WsItemSystemToolFastCommand},
    {L"SYSTEM_TOOL_%d_%d", 5376, TreeIcons::SystemToolIcon, WsItemSystemTool},
};

CString Message(int id) {
    return CModuleConfiguration::Instance()->GetMsg(id);
}

void AddTopologies(CWsTreeItemDefinition& definition, const TopologyDataVector& topologies) {
    for (const auto& data : topologies) {
        definition.AddWsTopologyData(data);
    }
}

void RegisterSystemCommands(IWsCommandExecutor* executor, const TopologyDataVector& topologies) {
    for (const auto& row : kSystemCommands) {
        RegisterStandardCommand({row.id, row.group, row.nameMessage, row.behavior, row.itemTypes},
                                executor, L"", EntityNone, topologies);
    }
}

void RegisterToolGroups(const TopologyDataVector& topologies) {
    for (const auto& row : kToolGroups) {
        for (const auto& data : topologies) {
            const DefinitionPtr definition(new CWsTreeItemDefinition);
            definition->SetId(
                FormatText(row.idFormat, data->GetTopologyType(), data->GetTopologyFunction())
                    .c_str());
            definition->SetName(Message(row.nameMessage));
            definition->SetIcon(RegistrationTarget().Icons().Get(row.icon));
            definition->SetWsItemType(row.itemType);
            definition->SetWsParentItemType(WsItemSystem);
            definition->AddWsTopologyData(data);
            RegistrationTarget().RegisterWsTreeItem(definition);
        }
    }
}

} // namespace

void CWsRegistrationFactory::RegisterBasicItems() {
    for (const auto& row : kBasicItems) {
        const DefinitionPtr definition(new CWsTreeItemDefinition);
        definition->SetId(row.id);
        definition->SetName(Message(row.nameMessage));
        definition->SetIcon(RegistrationTarget().Icons().Get(row.icon));
        definition->SetWsItemType(row.itemType);
        definition->SetAcceptRepositoryItemDrop(row.acceptRepositoryItemDrop);
        RegistrationTarget().RegisterWsTreeItem(definition);
    }
}

boost::shared_ptr<CWsTreeItemDefinition>
CWsRegistrationFactory::RegisterSystemItem(IWsCommandExecutor* executor,
                                           TopologyDataVector* topologies, int registerCommands,
                                           int registerTools) {
    const TopologyDataVector records = StandardTopologies(topologies, EntityNone);
    DefinitionPtr definition(new CWsTreeItemDefinition);
    definition->SetId(L"SYSTEM");
    // Systems of all topologies share one icon.
    definition->SetIcon(RegistrationTarget().Icons().Get(TopologyPolygon));
    definition->SetWsItemType(WsItemSystem);
    definition->SetWsParentItemType(WsItemSystemManager);
    definition->SetAcceptRepositoryItemDrop(1);
    AddTopologies(*definition, records);
    if (registerCommands) {
        definition->SetCmdIdDoubleClick(L"SYSTEM_DBLCLICK");
        // Optional: a plug-in may register a command with this id.
        definition->SetCmdIdRename(L"SYSTEM_REN");
        definition->SetCmdIdRepositoryItemDrop(L"SYSTEM_DROPITEM");
        RegisterSystemCommands(executor, records);
    }
    RegistrationTarget().RegisterWsTreeItem(definition);
    if (registerTools) {
        RegisterToolGroups(records);
    }
    return definition;
}

void CWsRegistrationFactory::RegisterRepositoryItem(
    const wchar_t* repositoryTag, const wchar_t* name, HICON icon, unsigned int entityTypes,
    IWsCommandExecutor* executor, TopologyDataVector* topologies, enmRegistrationTarget target,
    int entitySpecific, int commandsPerEntity, int hasAdd, int hasEdit, int hasDelete,
    int hasRename, int hasRun, int hasDoubleClick, int hasQueryDrop, int hasRepositoryDrop,
    int hasCopy, int hasSendToSystem, int hasSendToRepository, int doubleClickNotEdit) {
    const RepositoryItemRegistration family{
        .repositoryTag = repositoryTag,
        .name = name,
        .icon = icon,
        .entityTypes = entityTypes,
        .executor = executor,
        .topologies = topologies,
        .target = target,
        .entitySpecific = entitySpecific,
        .commandsPerEntity = commandsPerEntity,
        .hasAdd = hasAdd,
        .hasEdit = hasEdit,
        .hasDelete = hasDelete,
        .hasRename = hasRename,
        .hasRun = hasRun,
        .hasDoubleClick = hasDoubleClick,
        .hasQueryDrop = hasQueryDrop,
        .hasRepositoryDrop = hasRepositoryDrop,
        .hasCopy = hasCopy,
        .hasSendToSystem = hasSendToSystem,
    };
    RegisterFamilyDefinitions(family, doubleClickNotEdit);
    RegisterFamilyCommands(family, hasSendToRepository);
}

} // namespace Orvane::Workspace
