// The program with a window.
#pragma once

#include "host/Options.h"

namespace Tessaly {

/// With the toolkit started, runs the desktop until the user leaves, or until its picture was
/// drawn.
/// \return the program's exit status
int RunDesktop(const Options& options);

} // namespace Tessaly
