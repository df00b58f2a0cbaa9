// The options the host program was started with, by name. Modules see the process environment only
// through these.
#pragma once

#include "platform/win/String.h"

/// Folder of the modules, with a trailing separator.
inline constexpr const wchar_t* kHostOptionInstall = L"install";
/// The user's folder of support files, with a trailing separator.
inline constexpr const wchar_t* kHostOptionSupport = L"support";
/// Trace file given on the command line; empty if not given.
inline constexpr const wchar_t* kHostOptionTrace = L"trace";

PLATFORM_API void SetHostOption(const wchar_t* name, const wchar_t* value);
/// Empty if the option was never set.
PLATFORM_API CString GetHostOption(const wchar_t* name);
