// The program's desktop mode.
#pragma once

#include "host/Options.h"

namespace Tessaly {

/// Runs the desktop until the user quits or the screenshot has been saved. The toolkit must have
/// been started.
/// \return the program's exit status
int RunDesktop(const Options& options);

} // namespace Tessaly
