// Workspace commands of the panels.
#pragma once

#include <span>

#include "workspacecore/commands/IWsCommandExecutor.h"

namespace Orvane::Panels {

/// A command: its registration and its function, which returns false, after reporting why, if the
/// command was not carried out.
struct PanelCommand {
    const wchar_t* id;
    int msgName;
    int msgDescription;
    bool (*run)();
};

/// Commands that print trees, templates and menus.
std::span<const PanelCommand> TreeCommands();
/// Commands that open dialogs; in a console they prompt and print instead.
std::span<const PanelCommand> DialogCommands();

class CPanelExecutor final : public Workspace::IWsCommandExecutor {
public:
    boost::shared_ptr<Workspace::CExecutorReturnValue>
    Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
            Workspace::CWsTreeItemData* pItemData) override;
};

/// Takes the names from the message catalogue.
void RegisterPanelCommands(CPanelExecutor& executor);

} // namespace Orvane::Panels
