// Commands that change the view of the current drawing.
#pragma once

#include <span>

#include "host/HostCommands.h"

namespace Tessaly {

std::span<const HostCommand> ViewCommands();

} // namespace Tessaly
