// The commands of the network plug-in.
#pragma once

#include <span>

#include "workspacecore/commands/IWsCommandExecutor.h"

namespace Orvane::Network {

/// A command: its registration and its function, which returns false, after reporting why, if the
/// command was not carried out.
struct NetworkCommand {
    const wchar_t* id;
    int msgName;
    int msgDescription;
    bool (*run)();
};

std::span<const NetworkCommand> NetworkCommands();

/// Runs the commands, with the events around each. Status 1 means that the command was carried out;
/// the first text is then empty.
class CNetworkExecutor final : public Workspace::IWsCommandExecutor {
public:
    boost::shared_ptr<Workspace::CExecutorReturnValue>
    Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
            Workspace::CWsTreeItemData* pItemData) override;
};

} // namespace Orvane::Network
