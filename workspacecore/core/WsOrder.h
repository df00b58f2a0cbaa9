// A request to run a workspace command, and its conversion for the host's command runner.
#pragma once

#include <memory>

#include "platform/arx/CommandRunner.h"
#include "siblings/giscore/query/QueryDefinition.h"
#include "workspacecore/commands/IWsCommandExecutor.h"
#include "workspacecore/tree/ItemArgument.h"

namespace Orvane::Workspace {

struct WORKSPACE_API CWsOrder {
    CString commandId;
    OrderOrigin origin = OrderOrigin::Tree;
    /// Given by menus, which also run commands that can no longer be found by id; null: the
    /// executor registered with the command.
    IWsCommandExecutor* pExecutor = nullptr;
    boost::shared_ptr<Query::CQueryDefinition> query = {};
    std::shared_ptr<CWsTreeItemData> item = {};
    ItemArgument argument = {}; ///< only used with an item
};

/// Converts an order for the runner. The result owns everything the order contains.
WORKSPACE_API CommandOrder MakeCommandOrder(const CWsOrder& order);

/// Carries out an order for code that already runs inside the runner: raises the command's events
/// and executes it.
WORKSPACE_API CommandOutcome CarryOut(const CWsOrder& order);

} // namespace Orvane::Workspace
