// Contents of the tree context menus and the add menu.
#pragma once

#include <vector>

#include "workspacecore/commands/WsCommandRegistry.h"

class CMenu;

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Workspace {

class CWsTreeItemDefinition;

/// The topology and function to look for commands for; by default those of no system.
struct WORKSPACE_API MenuTopology {
    MenuTopology() = default;
    /// Those of a system, which may be null.
    explicit MenuTopology(System::CGisSystem* pSystem);

    enmTopologyType type = static_cast<enmTopologyType>(-1);
    int function = -1;
};

/// One menu line: a command, or null for a separator.
using MenuEntry = CWsCommandRegistry::CommandPtr;
using MenuEntries = std::vector<MenuEntry>;

/// The commands for a tree item, group by group with separators in between. Empty if there are
/// none; may start with a separator.
WORKSPACE_API MenuEntries TreeMenuEntries(const CWsCommandRegistry& registry,
                                          const MenuTopology& topology,
                                          const CWsTreeItemDefinition& definition);

/// The add menu: commands that add to the selected item, then commands that add systems, then
/// those at the end of every add menu.
/// \param pSelected null without an active system or selected item
WORKSPACE_API MenuEntries AddMenuEntries(const CWsCommandRegistry& registry,
                                         const MenuTopology& topology,
                                         const CWsTreeItemDefinition* pSelected);

/// Appends the entries to a menu.
WORKSPACE_API void AppendMenuEntries(CMenu& menu, const MenuEntries& entries);

} // namespace Orvane::Workspace
