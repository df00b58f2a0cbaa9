#include "workspacecore/tree/RepositoryItemRegistration.h"

#include <span>

#include "siblings/giscore/repository/RepositoryFactory.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "workspacecore/tree/RegistrationTarget.h"
#include "workspacecore/tree/StandardCommand.h"

namespace Orvane::Workspace {

namespace {

using Family = RepositoryItemRegistration;
using DefinitionPtr = boost::shared_ptr<CWsTreeItemDefinition>;

/// Kinds of entities a family can serve, in the order of its folders and commands. Other bits are
/// ignored.
constexpr unsigned int kEntityTypes[] = {1, 2, 16, 32, 64};

std::vector<enmEntityType> SelectedEntityTypes(const Family& family) {
    std::vector<enmEntityType> selected;
    for (const unsigned int type : kEntityTypes) {
        if ((family.entityTypes & type) == type) {
            selected.push_back(static_cast<enmEntityType>(type));
        }
    }
    return selected;
}

bool StandsIn(const Family& family, CWsRegistrationFactory::enmRegistrationTarget tree) {
    return family.target == tree || family.target == CWsRegistrationFactory::TargetBoth;
}

// Command ids.

/// Id prefix of a kind of command, and the flag it depends on.
struct CommandKind {
    const wchar_t* word;
    int Family::*flag;
};
constexpr CommandKind kAdd = {L"ADD", &Family::hasAdd};
constexpr CommandKind kEdit = {L"EDIT", &Family::hasEdit};
constexpr CommandKind kDelete = {L"DEL", &Family::hasDelete};
constexpr CommandKind kRename = {L"REN", &Family::hasRename};
constexpr CommandKind kRun = {L"RUN", &Family::hasRun};
constexpr CommandKind kDoubleClick = {L"DBLCLICK", &Family::hasDoubleClick};
constexpr CommandKind kQueryDrop = {L"QRYDROP", &Family::hasQueryDrop};
constexpr CommandKind kItemDrop = {L"RPODROP", &Family::hasRepositoryDrop};
constexpr CommandKind kCopy = {L"COPY", &Family::hasCopy};
constexpr CommandKind kSendTo = {L"SENDTO", &Family::hasSendToSystem};
constexpr CommandKind kSetAsDefault = {L"SETASDEFAULT", &Family::hasSendToSystem};

CString CommandId(const Family& family, const CommandKind& kind, enmEntityType entityType) {
    CString id;
    if (family.*kind.flag && family.commandsPerEntity) {
        id.Format(L"%s_%s_%d", kind.word, family.repositoryTag, entityType);
    } else if (family.*kind.flag) {
        id.Format(L"%s_%s", kind.word, family.repositoryTag);
    }
    return id;
}

// Definitions.

/// The item types used in one tree.
struct TreeKinds {
    enmWSTreeItemType root;
    enmWSTreeItemType folder;
    enmWSTreeItemType entityFolder;
    enmWSTreeItemType configuration;
};
constexpr TreeKinds kSystemTree = {WsItemSystem, WsItemSystemRepository, WsItemSystemEntityFolder,
                                   WsItemSystemConfiguration};
constexpr TreeKinds kRepositoryTree = {WsItemRepositoryRoot, WsItemRepository,
                                       WsItemRepositoryEntityFolder, WsItemRepositoryConfiguration};

/// The common part of folders, entity folders and configurations. Folders also get command ids
/// for entity type 0, although no such commands exist.
DefinitionPtr CreateDefinition(const Family& family, enmEntityType entityType,
                               enmWSTreeItemType type, enmWSTreeItemType parentType) {
    DefinitionPtr definition(new CWsTreeItemDefinition);
    definition->SetId(family.repositoryTag);
    definition->SetName(family.name);
    definition->SetIcon(family.icon);
    definition->SetRepositoryTag(family.repositoryTag);
    definition->SetWsItemType(type);
    definition->SetWsParentItemType(parentType);
    definition->SetAcceptRepositoryItemDrop(family.hasRepositoryDrop);
    definition->SetIsEntitySpecific(family.entitySpecific);
    definition->SetEntityType(entityType);
    definition->SetCmdIdDoubleClick(CommandId(family, kDoubleClick, entityType));
    definition->SetCmdIdQueryDrop(CommandId(family, kQueryDrop, entityType));
    definition->SetCmdIdRename(CommandId(family, kRename, entityType));
    definition->SetCmdIdRepositoryItemDrop(CommandId(family, kItemDrop, entityType));
    for (const auto& data : StandardTopologies(family.topologies, entityType)) {
        definition->AddWsTopologyData(data);
    }
    return definition;
}

void RegisterFolder(const Family& family, const TreeKinds& kinds) {
    RegistrationTarget().RegisterWsTreeItem(
        CreateDefinition(family, EntityNone, kinds.folder, kinds.root));
}

void RegisterEntityFolder(const Family& family, enmEntityType entityType, const TreeKinds& kinds) {
    const DefinitionPtr definition =
        CreateDefinition(family, entityType, kinds.entityFolder, kinds.folder);
    definition->SetId(FormatText(L"%s:ws%d:et%d", family.repositoryTag,
                                 static_cast<int>(kinds.entityFolder), entityType)
                          .c_str());
    definition->SetName(RegistrationTarget().GetEntityTypeName(entityType));
    definition->SetIcon(RegistrationTarget().Icons().Get(entityType));
    RegistrationTarget().RegisterWsTreeItem(definition);
}

/// All configurations of a family have its tag as their id.
DefinitionPtr RegisterConfiguration(const Family& family, enmEntityType entityType,
                                    const TreeKinds& kinds) {
    DefinitionPtr definition =
        CreateDefinition(family, entityType, kinds.configuration,
                         family.entitySpecific ? kinds.entityFolder : kinds.folder);
    definition->SetAcceptQueryDrop(family.hasQueryDrop);
    definition->SetAllowDragBegin(1);
    definition->SetAllowRename(family.hasRename);
    RegistrationTarget().RegisterWsTreeItem(definition);
    return definition;
}

std::vector<DefinitionPtr> RegisterTree(const Family& family, const TreeKinds& kinds) {
    std::vector<DefinitionPtr> configurations;
    RegisterFolder(family, kinds);
    if (!family.entitySpecific) {
        configurations.push_back(RegisterConfiguration(family, EntityNone, kinds));
        return configurations;
    }
    const std::vector<enmEntityType> entityTypes = SelectedEntityTypes(family);
    for (const enmEntityType type : entityTypes) {
        RegisterEntityFolder(family, type, kinds);
    }
    for (const enmEntityType type : entityTypes) {
        configurations.push_back(RegisterConfiguration(family, type, kinds));
    }
    return configurations;
}

// Commands.

/// Item types to which the commands apply.
struct ItemTypeSets {
    unsigned long deleteTypes = 0;
    unsigned long editTypes = 0;
    unsigned long sendToTypes = 0;
    unsigned long addTypes = 0;
    unsigned long dropTypes = 0;
};

ItemTypeSets MakeItemTypes(const Family& family, int hasSendToRepository) {
    ItemTypeSets types;
    if (StandsIn(family, CWsRegistrationFactory::TargetSystem)) {
        types.deleteTypes |= WsItemSystemConfiguration;
        types.editTypes |= WsItemSystemConfiguration;
        types.sendToTypes |= family.hasSendToSystem ? WsItemSystemConfiguration : WsItemNone;
        types.dropTypes |= WsItemSystemEntityFolder | WsItemSystemConfiguration;
        types.addTypes |= WsItemSystemEntityFolder | WsItemSystemConfiguration |
                          (family.entitySpecific ? WsItemNone : WsItemSystemRepository);
    }
    if (StandsIn(family, CWsRegistrationFactory::TargetRepository)) {
        types.deleteTypes |= WsItemRepositoryConfiguration;
        types.sendToTypes |= hasSendToRepository ? WsItemRepositoryConfiguration : WsItemNone;
    }
    return types;
}

struct CommandRow {
    CommandKind kind;
    enum enmExecutor { Base, Own } executor;
    enmCommandGroup group;
    int nameMessage;
    enmTreeCommandBehavior behavior;
    unsigned long ItemTypeSets::*itemTypes;
};
using Sets = ItemTypeSets;

/// For families in the system tree.
constexpr CommandRow kSystemRows[] = {
    {kAdd, CommandRow::Base, CommandGroupAdd, 4378, TreeBehaviorAdd, &Sets::addTypes},
    {kEdit, CommandRow::Base, CommandGroupEdit, 2910, TreeBehaviorEdit, &Sets::editTypes},
    {kRun, CommandRow::Own, CommandGroupRun, 6065, TreeBehaviorNone, &Sets::editTypes},
    {kDoubleClick, CommandRow::Own, CommandGroupHidden, 6065, TreeBehaviorNone, &Sets::editTypes},
    {kQueryDrop, CommandRow::Own, CommandGroupHidden, 6065, TreeBehaviorNone, &Sets::editTypes},
};

/// For every family. For a family that is in the repository trees only, the copy command applies
/// to no item and appears in no menu.
constexpr CommandRow kRows[] = {
    {kDelete, CommandRow::Base, CommandGroupDelete, 6043, TreeBehaviorDelete, &Sets::deleteTypes},
    {kRename, CommandRow::Base, CommandGroupEdit, 1379, TreeBehaviorEdit, &Sets::deleteTypes},
    {kCopy, CommandRow::Base, CommandGroupEdit, 6066, TreeBehaviorNone, &Sets::editTypes},
    {kSendTo, CommandRow::Base, CommandGroupHidden, 6072, TreeBehaviorAdd, &Sets::sendToTypes},
    {kItemDrop, CommandRow::Base, CommandGroupHidden, 6065, TreeBehaviorAdd, &Sets::dropTypes},
};

void RegisterRows(const Family& family, std::span<const CommandRow> rows, enmEntityType entityType,
                  const ItemTypeSets& types) {
    for (const CommandRow& row : rows) {
        const CString id = CommandId(family, row.kind, entityType);
        if (!id.IsEmpty()) {
            RegisterStandardCommand(
                {id, row.group, row.nameMessage, row.behavior, types.*row.itemTypes},
                row.executor == CommandRow::Own ? family.executor
                                                : RegistrationTarget().GetBaseExecutor(),
                family.repositoryTag, entityType,
                StandardTopologies(family.topologies, EntityNone));
        }
    }
}

/// Always registered for EntityNone, even with an empty id: of the families without one, only the
/// first gets its command.
void RegisterSetAsDefault(const Family& family, enmEntityType entityType) {
    RegisterStandardCommand({CommandId(family, kSetAsDefault, entityType), CommandGroupRun, 9056,
                             TreeBehaviorNone, WsItemSystemConfiguration},
                            RegistrationTarget().GetBaseExecutor(), family.repositoryTag,
                            EntityNone, StandardTopologies(family.topologies, EntityNone));
}

bool HasDefaultItem(const Family& family) {
    CRepositoryFactory* const pFactory =
        CRepositoryManager::Instance()->GetRepositoryfactory(family.repositoryTag);
    return pFactory && pFactory->SupportsDefaultItem();
}

} // namespace

void RegisterFamilyDefinitions(const Family& family, int doubleClickNotEdit) {
    if (StandsIn(family, CWsRegistrationFactory::TargetSystem)) {
        for (const DefinitionPtr& configuration : RegisterTree(family, kSystemTree)) {
            configuration->SetIsDoubleClickActionEdit(doubleClickNotEdit ? 0 : 1);
        }
    }
    if (StandsIn(family, CWsRegistrationFactory::TargetRepository)) {
        RegisterTree(family, kRepositoryTree);
    }
}

void RegisterFamilyCommands(const Family& family, int hasSendToRepository) {
    ItemTypeSets types = MakeItemTypes(family, hasSendToRepository);
    std::vector<enmEntityType> entityTypes = {EntityNone};
    if (family.commandsPerEntity) {
        entityTypes = SelectedEntityTypes(family);
        // With one set of commands per kind of entity, sending applies to the same items as
        // deleting.
        types.sendToTypes = types.deleteTypes;
    }
    const bool hasDefaultItem = HasDefaultItem(family);
    for (const enmEntityType type : entityTypes) {
        if (hasDefaultItem) {
            RegisterSetAsDefault(family, type);
        }
        if (StandsIn(family, CWsRegistrationFactory::TargetSystem)) {
            RegisterRows(family, kSystemRows, type, types);
        }
        RegisterRows(family, kRows, type, types);
    }
}

} // namespace Orvane::Workspace
