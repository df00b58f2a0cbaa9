// The reason of the last failed platform call.
#pragma once

#include "platform/win/String.h"

/// What the last failed call of the platform on this thread had to say.
PLATFORM_API CString LastErrorText();

/// Notes a reason of the platform's own, where the operating system has none.
PLATFORM_API void SetLastErrorText(CString text);
/// The operating system's text for an error number, in the user's language.
PLATFORM_API CString ErrorNumberText(int number);
/// Notes the operating system's text for an error number.
PLATFORM_API void SetLastErrorNumber(int number);
