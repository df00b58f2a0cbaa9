// What the host program was started with, by name. Modules read it; nothing of the
// process environment reaches them otherwise.
#pragma once

#include "platform/win/String.h"

/// Folder of the modules, with a separator at its end.
inline constexpr const wchar_t* kHostOptionInstall = L"install";
/// The user's folder of support files, with a separator at its end.
inline constexpr const wchar_t* kHostOptionSupport = L"support";
/// Trace file asked for at the command line; empty if none was.
inline constexpr const wchar_t* kHostOptionTrace = L"trace";

PLATFORM_API void SetHostOption(const wchar_t* name, const wchar_t* value);
/// Empty for a name nobody has set.
PLATFORM_API CString GetHostOption(const wchar_t* name);
