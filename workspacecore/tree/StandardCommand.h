// Creation of the standard commands.
#pragma once

#include "workspacecore/commands/WsCommand.h"
#include "workspacecore/commands/WsTopologyDataSet.h"

namespace Orvane::Workspace {

/// One row of the command tables.
struct StandardCommand {
    CString id;
    enmCommandGroup group;
    int nameMessage;
    enmTreeCommandBehavior behavior;
    unsigned long itemTypes;
};

/// Registers a command and assigns its topologies. If the id is taken, the command is discarded.
void RegisterStandardCommand(const StandardCommand& standard, IWsCommandExecutor* executor,
                             const wchar_t* repositoryTag, enmEntityType entityType,
                             const CWsTopologyDataSet::Vector& topologies);

/// The given topologies; if null, a new record for every function of every topology of the
/// configuration, with function 0 for topologies without functions.
/// \param entityType limits the result to topologies whose systems hold such entities
CWsTopologyDataSet::Vector StandardTopologies(const CWsTopologyDataSet::Vector* given,
                                              enmEntityType entityType);

} // namespace Orvane::Workspace
