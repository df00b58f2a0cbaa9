// The reason of the last failed platform call.
#pragma once

#include "platform/win/String.h"

/// The reason why the last platform call on this thread failed.
PLATFORM_API CString LastErrorText();

/// Sets a reason of the platform's own, for failures without an error number.
PLATFORM_API void SetLastErrorText(CString text);
/// The operating system's text for an error number, in the user's language.
PLATFORM_API CString ErrorNumberText(int number);
/// Sets the operating system's text for an error number as the reason.
PLATFORM_API void SetLastErrorNumber(int number);
