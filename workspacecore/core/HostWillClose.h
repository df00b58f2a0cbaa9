// Flag that suppresses some events once the host is certain to close.
#pragma once

namespace Orvane::Workspace {

/// Set when no listener vetoed closing the host; never cleared.
extern int s_bHostWillClose;

} // namespace Orvane::Workspace
