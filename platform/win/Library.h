// Loading of shared libraries.
#pragma once

#include "platform/win/String.h"
#include "platform/win/Types.h"

/// Loads a library; null on failure, with LastErrorText (ErrorText.h) set.
/// The file's length is compared with what its own headers announce first: mapping a
/// library that was cut short would kill the process instead of failing.
PLATFORM_API HINSTANCE LoadLibrary(const wchar_t* path);

/// Address of an entry that this very library exports; null if it has none of that name.
PLATFORM_API void* GetProcAddress(HINSTANCE library, const char* name);

/// Gives up one reference to the library. Returns false for a handle that is not loaded.
PLATFORM_API bool FreeLibrary(HINSTANCE library);
