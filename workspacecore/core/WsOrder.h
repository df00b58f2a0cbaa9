// A workspace command that somebody asks for, and its way to the host's command runner.
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
    /// Of a menu, which also runs commands that are not found by their ids any more; null: the
    /// one of the id.
    IWsCommandExecutor* pExecutor = nullptr;
    boost::shared_ptr<Query::CQueryDefinition> query = {};
    std::shared_ptr<CWsTreeItemData> item = {};
    ItemArgument argument = {}; ///< only with an item
};

/// What the runner takes. It holds all that the order holds.
WORKSPACE_API CommandOrder MakeCommandOrder(const CWsOrder& order);

/// Carries an order out, for whoever is called by the runner already: raises the events of the
/// command and executes it.
WORKSPACE_API CommandOutcome CarryOut(const CWsOrder& order);

} // namespace Orvane::Workspace
