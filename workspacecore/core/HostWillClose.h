// The flag that narrows event delivery once the host's end is settled.
#pragma once

namespace Orvane::Workspace {

/// Set when no listener vetoed the end of the host, and never cleared.
extern int s_bHostWillClose;

} // namespace Orvane::Workspace
