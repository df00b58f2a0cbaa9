// What users are told of commands whose ids are easily taken for those of others.
#pragma once

#include "workspacecore/commands/WsCommandRegistry.h"

namespace Orvane::Workspace {

/// Tells, in the trace and at the command line, of a command that was registered under the name
/// of a host command, or under an id that differs from another one only in case.
void ReportConfusingId(CWsCommandRegistry& registry, const CWsCommand& command);

} // namespace Orvane::Workspace
