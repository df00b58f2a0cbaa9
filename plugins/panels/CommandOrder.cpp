#include "plugins/panels/CommandOrder.h"

#include <exception>

#include "platform/arx/EdPrompt.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Panels {

namespace {

/// What executors agree on with their callers: the custom data is a new name, or the item
/// that is dropped.
void* CustomDataOf(const CommandOrder& order) {
    if (order.newName) {
        return const_cast<CString*>(&*order.newName);
    }
    return order.dropped.get();
}

boost::shared_ptr<Workspace::CExecutorReturnValue> Execute(const CommandOrder& order) {
    Workspace::CWsCommandManager& commands = *Workspace::CWsManager::Instance()->CmdMgr();
    if (!order.pExecutor) {
        return commands.Execute(order.commandId, order.query.get(), order.item.get());
    }
    commands.SetLastCommand(order.commandId);
    return order.pExecutor->Execute(order.commandId, order.query.get(), order.item.get());
}

} // namespace

bool RunOrder(const CommandOrder& order) {
    order.item->SetCustomData(CustomDataOf(order));
    boost::shared_ptr<Workspace::CExecutorReturnValue> result;
    try {
        result = Execute(order);
    } catch (const std::exception& error) {
        // Above this is the toolkit, which nothing may pass.
        acutPrintf(L"\n%s failed: %s\n", order.commandId, error.what());
    }
    order.item->SetCustomData(nullptr);
    return result && result->m_nStatus;
}

} // namespace Orvane::Panels
