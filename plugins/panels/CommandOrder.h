// Commands that are asked for by mouse and keyboard in a tree.
#pragma once

#include <optional>

#include "plugins/panels/LentItems.h"
#include "siblings/giscore/query/QueryDefinition.h"
#include "workspacecore/commands/IWsCommandExecutor.h"

namespace Orvane::Panels {

/// A command on a node.
struct CommandOrder {
    CString commandId;
    Workspace::IWsCommandExecutor* pExecutor = nullptr; ///< null: the one of the id
    LentItem item;
    std::optional<CString> newName; ///< of a rename
    LentItem dropped;               ///< of an item drop
    boost::shared_ptr<Query::CQueryDefinition> query;
};

/// Runs it now. What it throws ends here, with a line for the user.
/// \return whether it was carried out
bool RunOrder(const CommandOrder& order);

} // namespace Orvane::Panels
