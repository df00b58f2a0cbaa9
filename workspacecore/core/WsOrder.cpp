#include "workspacecore/core/WsOrder.h"

#include "platform/arx/Guard.h"
#include "workspacecore/commands/CommandScope.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Workspace {

namespace {

/// Attaches the argument to the item for the duration of a call.
class ArgumentOnItem {
public:
    explicit ArgumentOnItem(const CWsOrder& order)
        : m_item(order.item), m_argument(order.argument) {
        if (m_item) {
            WrapArgument(*m_item, &m_argument);
        }
    }
    ~ArgumentOnItem() {
        if (m_item) {
            WrapArgument(*m_item, nullptr);
        }
    }
    ArgumentOnItem(const ArgumentOnItem&) = delete;
    ArgumentOnItem& operator=(const ArgumentOnItem&) = delete;

private:
    std::shared_ptr<CWsTreeItemData> m_item;
    ItemArgument m_argument;
};

boost::shared_ptr<CExecutorReturnValue> Execute(const CWsOrder& order) {
    CWsCommandManager& commands = *CWsManager::Instance()->CmdMgr();
    if (!order.pExecutor) {
        return commands.Execute(order.commandId, order.query.get(), order.item.get());
    }
    commands.SetLastCommand(order.commandId);
    return CallForeign(*order.pExecutor, order.commandId, [&] {
        return order.pExecutor->Execute(order.commandId, order.query.get(), order.item.get());
    });
}

} // namespace

CommandOrder MakeCommandOrder(const CWsOrder& order) {
    return {order.commandId, order.origin, [order] { return CarryOut(order); }};
}

CommandOutcome CarryOut(const CWsOrder& order) {
    const auto command =
        CWsManager::Instance()->CmdMgr()->GetCommandRegistry()->GetWsCommandById(order.commandId);
    const ArgumentOnItem argument(order);
    boost::shared_ptr<CExecutorReturnValue> result;
    // The registry also finds commands by ids with one extra character.
    CommandScope::Run(command ? command->GetId() : order.commandId,
                      [&] { result = Execute(order); });
    return result && result->m_nStatus ? CommandOutcome::Done : CommandOutcome::Failed;
}

} // namespace Orvane::Workspace
