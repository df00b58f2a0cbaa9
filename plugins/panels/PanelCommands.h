// The workspace commands of the panels.
#pragma once

#include <span>

#include "workspacecore/commands/IWsCommandExecutor.h"

namespace Orvane::Panels {

/// What the registry lists of a command, and what it does. The function answers false if it
/// was not carried out; it has told the user why.
struct PanelCommand {
    const wchar_t* id;
    int msgName;
    int msgDescription;
    bool (*run)();
};

/// Those that print trees, templates and menus.
std::span<const PanelCommand> TreeCommands();
/// Those that open dialogs; in a console they ask and print instead.
std::span<const PanelCommand> DialogCommands();

class CPanelExecutor final : public Workspace::IWsCommandExecutor {
public:
    boost::shared_ptr<Workspace::CExecutorReturnValue>
    Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
            Workspace::CWsTreeItemData* pItemData) override;
};

/// With their names from the message catalogue.
void RegisterPanelCommands(CPanelExecutor& executor);

} // namespace Orvane::Panels
