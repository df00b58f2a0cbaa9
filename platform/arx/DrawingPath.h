// Completes the path of a drawing that a user typed.
#pragma once

#include "platform/Api.h"
#include "platform/win/String.h"

/// The absolute path of a drawing's file. Adds the extension if the name has none, unless a file of
/// the given name exists. Symbolic links are resolved in the folder but not in the file name. Empty
/// for an empty path.
PLATFORM_API CString acdbDrawingPath(const wchar_t* path, const CString& extension);
