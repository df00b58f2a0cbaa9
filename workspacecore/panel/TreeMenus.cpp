#include "workspacecore/panel/TreeMenus.h"

#include <algorithm>
#include <iterator>

#include "platform/mfc/Menu.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "workspacecore/commands/WsCommandManager.h"
#include "workspacecore/panel/WsTreeManager.h"
#include "workspacecore/tree/WsTreeItemDefinition.h"

namespace Orvane::Workspace {

namespace {

constexpr int kLastGroup = 23;
const MenuEntry kSeparator;

bool IsForEntities(const CWsCommand& command, const CWsTreeItemDefinition& definition) {
    return definition.GetEntityType() == EntityNone || command.GetEntityType() == EntityNone ||
           command.GetEntityType() == definition.GetEntityType();
}

MenuEntries CommandsOfGroup(const CWsCommandRegistry& registry, enmCommandGroup group,
                            const MenuTopology& topology, const CWsTreeItemDefinition& definition) {
    return registry.GetWsCommandByGroup(group, topology.type, topology.function,
                                        definition.GetWsItemType(), definition.GetRepositoryTag());
}

/// The commands offered for the item, group by group. Groups without commands are omitted; groups
/// whose commands all apply to other kinds of entities are empty.
std::vector<MenuEntries> Sections(const CWsCommandRegistry& registry, const MenuTopology& topology,
                                  const CWsTreeItemDefinition& definition) {
    std::vector<MenuEntries> sections;
    for (int group = CommandGroupAdd; group <= kLastGroup; ++group) {
        if (group == CommandGroupHidden) {
            continue;
        }
        MenuEntries section =
            CommandsOfGroup(registry, static_cast<enmCommandGroup>(group), topology, definition);
        if (!section.empty()) {
            std::erase_if(section, [&](const MenuEntry& command) {
                return !IsForEntities(*command, definition);
            });
            sections.push_back(std::move(section));
        }
    }
    return sections;
}

bool AddsHere(const CWsCommand& command, const CWsTreeItemDefinition& selected) {
    return command.GetTreeCmdBehavior() == TreeBehaviorAdd && command.GetId().Find(L"SEND") < 0 &&
           IsForEntities(command, selected) && command.GetCmdGroup() != CommandGroupLast;
}

void AppendGeneralCommands(MenuEntries& entries, const CWsCommandRegistry& registry) {
    enmCommandGroup current = CommandGroupAdd;
    for (const MenuEntry& command : *registry.GetWsCommandVector()) {
        const enmCommandGroup group = command->GetCmdGroup();
        if (command->GetTreeCmdBehavior() != TreeBehaviorSystemAdd || group == CommandGroupLast) {
            continue;
        }
        if (group != current) {
            entries.push_back(kSeparator);
            current = group;
        }
        entries.push_back(command);
    }
}

void AppendClosingCommands(MenuEntries& entries, const CWsCommandRegistry& registry) {
    bool first = true;
    for (const MenuEntry& command : *registry.GetWsCommandVector()) {
        if (command->GetCmdGroup() == CommandGroupLast) {
            if (first) {
                entries.push_back(kSeparator);
            }
            first = false;
            entries.push_back(command);
        }
    }
}

} // namespace

MenuTopology::MenuTopology(System::CGisSystem* pSystem) {
    if (pSystem) {
        type = pSystem->GetTopologyType();
        function = pSystem->GetSystemFunction();
    }
}

MenuEntries TreeMenuEntries(const CWsCommandRegistry& registry, const MenuTopology& topology,
                            const CWsTreeItemDefinition& definition) {
    MenuEntries entries;
    bool first = true;
    for (const MenuEntries& section : Sections(registry, topology, definition)) {
        // Every non-empty group but the first gets a separator in front, even if all groups
        // before it are empty; an empty first group thus leaves a separator at the top.
        if (!first && !section.empty()) {
            entries.push_back(kSeparator);
        }
        entries.insert(entries.end(), section.begin(), section.end());
        first = false;
    }
    return entries;
}

MenuEntries AddMenuEntries(const CWsCommandRegistry& registry, const MenuTopology& topology,
                           const CWsTreeItemDefinition* pSelected) {
    MenuEntries entries;
    if (pSelected) {
        const MenuEntries answer = CommandsOfGroup(registry, CommandGroupAdd, topology, *pSelected);
        std::copy_if(answer.begin(), answer.end(), std::back_inserter(entries),
                     [&](const MenuEntry& command) { return AddsHere(*command, *pSelected); });
        if (!entries.empty()) {
            entries.push_back(kSeparator);
        }
    }
    AppendGeneralCommands(entries, registry);
    AppendClosingCommands(entries, registry);
    return entries;
}

void AppendMenuEntries(CMenu& menu, const MenuEntries& entries) {
    for (const MenuEntry& command : entries) {
        if (command) {
            menu.AppendMenu(MF_STRING, command->GetMenuCmdId(), command->GetName());
        } else {
            menu.AppendMenu(MF_SEPARATOR);
        }
    }
}

int CWsTreeManager::GetMenuBar(CMenu& menu, CWsTreeItemData* pItemData,
                               System::CGisSystem* pSystem) const {
    const CWsTreeItemData* const pItem = pItemData ? pItemData : GetSelectedItemData();
    if (!m_pCommands || !pItem || !pItem->GetPtrItemDefinition()) {
        return 0;
    }
    const MenuEntries entries = TreeMenuEntries(
        *m_pCommands->GetCommandRegistry(), MenuTopology(pSystem), *pItem->GetPtrItemDefinition());
    AppendMenuEntries(menu, entries);
    return entries.empty() ? 0 : 1;
}

CWsCommand* CWsTreeManager::GetMenuCommand(unsigned int menuCmdId) const {
    return m_pCommands ? m_pCommands->GetCommandRegistry()->GetWsCommandByMenuId(menuCmdId).get()
                       : nullptr;
}

} // namespace Orvane::Workspace
