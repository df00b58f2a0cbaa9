// The program with a window.
#pragma once

#include "host/Options.h"

namespace Tessaly {

/// Whether a window can be shown here. Says why on standard error if not.
bool HasDisplay();

/// Runs the desktop until the user leaves, or until its picture was drawn.
/// \return the program's exit status
int RunDesktop(const Options& options, int argc, char** argv);

} // namespace Tessaly
