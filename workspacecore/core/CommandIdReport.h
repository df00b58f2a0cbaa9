// Reports commands whose ids can be confused with others.
#pragma once

#include "workspacecore/commands/WsCommandRegistry.h"

namespace Orvane::Workspace {

/// Reports, in the trace and at the command line, a command registered under the name of a host
/// command or under an id that differs from another only in case.
void ReportConfusingId(CWsCommandRegistry& registry, const CWsCommand& command);

} // namespace Orvane::Workspace
