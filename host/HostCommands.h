// The commands of the host itself.
#pragma once

namespace Tessaly {

/// Adds them to the command stack.
void RegisterHostCommands();

/// The user has asked to leave, and nobody vetoed.
bool HasQuit();

} // namespace Tessaly
