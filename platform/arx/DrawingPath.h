// The file that is meant by what a user typed.
#pragma once

#include "platform/Api.h"
#include "platform/win/String.h"

/// The absolute path of a drawing's file that was named by the user: a name without an
/// extension gets the given one. Links are followed in the folder and kept in the name. Empty for
/// an empty path.
PLATFORM_API CString acdbDrawingPath(const wchar_t* path, const CString& extension);
