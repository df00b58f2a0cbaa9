// Start and end of the window toolkit, and the choice between desktop and console.
#pragma once

#include <functional>

#include "platform/Api.h"

/// With a desktop, windows and message boxes wait for the user. Without one (the default), a modal
/// dialog prints its texts and returns IDOK, and a message box asks at the host's prompt, so
/// nothing waits for input to a window that nobody can see. Set before the first window is created:
/// without a desktop, windows exist in memory only.
PLATFORM_API void AfxSetDesktopMode(bool desktop);
PLATFORM_API bool AfxIsDesktopMode();

/// True if there is a display for a desktop: the one that QT_QPA_PLATFORM names, X11, or Wayland if
/// the toolkit supports it. A server that does not answer within two seconds does not count. After
/// the toolkit has started: true if it has opened one.
PLATFORM_API bool AfxHasDisplay();
/// Starts the toolkit; creating the first window does so, too. With a desktop, opens the display
/// found by AfxHasDisplay. Otherwise, or if that fails, windows exist in memory only. Numbers keep
/// the decimal point in every language.
PLATFORM_API void AfxStartToolkit();
/// Destroys all remaining windows and the toolkit. Call at the end of the process.
PLATFORM_API void AfxStopToolkit();

/// Processes pending events: posted messages, due timers, painting. Does not wait for more.
PLATFORM_API void AfxPumpMessages();
/// Calls a function from the message loop once the current handlers have returned. Does nothing
/// before the toolkit has started.
PLATFORM_API void AfxCallSoon(std::function<void()> call);
/// Processes events until a file (a terminal, a pipe) has data to read, so that timers and posted
/// messages work in a console. Does nothing before the toolkit has started, and in nested calls.
PLATFORM_API void AfxWaitForInput(int file);
/// Opens an address ("https:", "file:") with the desktop's default program.
PLATFORM_API bool AfxOpenAddress(const wchar_t* address);
