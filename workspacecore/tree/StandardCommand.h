// How the standard registrations make a command.
#pragma once

#include "workspacecore/commands/WsCommand.h"
#include "workspacecore/commands/WsTopologyDataSet.h"

namespace Orvane::Workspace {

/// What the tables of commands say of one.
struct StandardCommand {
    CString id;
    enmCommandGroup group;
    int nameMessage;
    enmTreeCommandBehavior behavior;
    unsigned long itemTypes;
};

/// Registers a command and then gives it its topologies. If its id is taken, the record is
/// dropped, topologies and all.
void RegisterStandardCommand(const StandardCommand& standard, IWsCommandExecutor* executor,
                             const wchar_t* repositoryTag, enmEntityType entityType,
                             const CWsTopologyDataSet::Vector& topologies);

/// The given topologies; if that is null, a new record for every function of every topology
/// of the configuration, with function 0 where there are none.
/// \param entityType only topologies whose systems hold such entities
CWsTopologyDataSet::Vector StandardTopologies(const CWsTopologyDataSet::Vector* given,
                                              enmEntityType entityType);

} // namespace Orvane::Workspace
