// Folders of the program and the user.
#pragma once

#include "host/Options.h"

namespace Tessaly {

/// Folder of the running program, with a trailing separator.
CString ProgramFolder();

/// The user's settings folder, below the desktop's folder for program data.
CString UserSupportFolder();

/// Copies every default support file and folder that does not exist in the user's folder yet.
/// False, with LastErrorText set, if creating the folder or copying fails.
bool FillSupportFolder(const CString& defaults, const CString& support);

} // namespace Tessaly
