#include "plugins/panels/PanelCommands.h"

#include "plugins/common/CommandIds.h"
#include "plugins/panels/PanelTexts.h"
#include "workspacecore/commands/CommandScope.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Panels {

namespace {

template <class Call>
void ForEachCommand(Call call) {
    for (const auto commands : {TreeCommands(), DialogCommands()}) {
        for (const PanelCommand& command : commands) {
            call(command);
        }
    }
}

} // namespace

boost::shared_ptr<Workspace::CExecutorReturnValue>
CPanelExecutor::Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition*,
                        Workspace::CWsTreeItemData*) {
    auto result = Workspace::NeutralReturnValue();
    const CString id = Plugins::OwnCommandId(lpszCommandId);
    ForEachCommand([&](const PanelCommand& command) {
        if (id == command.id) {
            Workspace::CommandScope::Run(command.id,
                                         [&] { result->m_nStatus = command.run() ? 1 : 0; });
        }
    });
    return result;
}

void RegisterPanelCommands(CPanelExecutor& executor) {
    const CModuleConfiguration& messages = *CModuleConfiguration::Instance();
    ForEachCommand([&](const PanelCommand& entry) {
        boost::shared_ptr<Workspace::CWsCommand> command(new Workspace::CWsCommand);
        command->SetId(entry.id);
        command->SetName(messages.GetMsg(entry.msgName));
        command->SetDescription(messages.GetMsg(entry.msgDescription));
        command->SetCmdExecutor(&executor);
        Workspace::CWsManager::Instance()->RegisterWsCommand(command);
    });
}

} // namespace Orvane::Panels
