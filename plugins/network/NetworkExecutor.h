// The commands of the network plug-in.
#pragma once

#include <span>

#include "workspacecore/commands/IWsCommandExecutor.h"

namespace Orvane::Network {

/// One command: what the registry lists, and what it does. The function answers false if
/// the command was not carried out; it has told the user why.
struct NetworkCommand {
    const wchar_t* id;
    int msgName;
    int msgDescription;
    bool (*run)();
};

std::span<const NetworkCommand> NetworkCommands();

/// Runs them, with the events around each. A status of 1 says that the command was carried
/// out; the first text is then empty.
class CNetworkExecutor final : public Workspace::IWsCommandExecutor {
public:
    boost::shared_ptr<Workspace::CExecutorReturnValue>
    Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
            Workspace::CWsTreeItemData* pItemData) override;
};

} // namespace Orvane::Network
