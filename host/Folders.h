// Where the program finds its modules and the user's settings.
#pragma once

#include "host/Options.h"

namespace Tessaly {

/// Folder of the running program, with a separator at its end.
CString ProgramFolder();

/// The user's folder of settings: in the place where the desktop keeps programs' data.
CString UserSupportFolder();

/// Copies every default support file, and every folder with all that is in it, that the
/// user's folder does not have yet. False, with LastErrorText set, if the folder cannot be
/// made or something cannot be copied.
bool FillSupportFolder(const CString& defaults, const CString& support);

} // namespace Tessaly
