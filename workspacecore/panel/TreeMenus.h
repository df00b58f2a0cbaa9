// What the context menus of the trees and the add menu contain.
#pragma once

#include <vector>

#include "workspacecore/commands/WsCommandRegistry.h"

class CMenu;

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Workspace {

class CWsTreeItemDefinition;

/// The topology and the function for which commands are asked for; by default no system's.
struct WORKSPACE_API MenuTopology {
    MenuTopology() = default;
    /// Those of a system; of none if null.
    explicit MenuTopology(System::CGisSystem* pSystem);

    enmTopologyType type = static_cast<enmTopologyType>(-1);
    int function = -1;
};

/// One line of a menu: a command, or null for a separator.
using MenuEntry = CWsCommandRegistry::CommandPtr;
using MenuEntries = std::vector<MenuEntry>;

/// The commands for a tree item, section by section, with the separators between them.
/// Empty if there is no command at all; a separator at the very beginning is possible.
WORKSPACE_API MenuEntries TreeMenuEntries(const CWsCommandRegistry& registry,
                                          const MenuTopology& topology,
                                          const CWsTreeItemDefinition& definition);

/// The menu that adds things: what can be added at the selected item, then the commands
/// that add systems, then those that close every such menu.
/// \param pSelected null without an active system or without a selected item
WORKSPACE_API MenuEntries AddMenuEntries(const CWsCommandRegistry& registry,
                                         const MenuTopology& topology,
                                         const CWsTreeItemDefinition* pSelected);

/// Puts the entries behind what the menu holds already.
WORKSPACE_API void AppendMenuEntries(CMenu& menu, const MenuEntries& entries);

} // namespace Orvane::Workspace
