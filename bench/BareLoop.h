// The peer of event delivery: only virtual calls, made from a separate module like the manager's.
// (A call into another module costs more than one within a module.)
#pragma once

#include <vector>

#include "workspacecore/events/IWsListener.h"

__attribute__((visibility("default"))) void
BareLoop(const std::vector<Orvane::Workspace::IWsListener*>& listeners,
         Orvane::System::CGisSystem* pSystem);
