// The peer of event delivery: nothing but virtual calls, from a module of its own, as the
// manager's come from one. (A call into another module costs more than one next door.)
#pragma once

#include <vector>

#include "workspacecore/events/IWsListener.h"

__attribute__((visibility("default"))) void
BareLoop(const std::vector<Orvane::Workspace::IWsListener*>& listeners,
         Orvane::System::CGisSystem* pSystem);
