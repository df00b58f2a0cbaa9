// The toolkit behind the windows: when it comes to life, and whether there is a desktop.
#pragma once

#include <functional>

#include "platform/Api.h"

/// With a desktop, windows and message boxes wait for the user. Without one (the state at
/// first), a modal dialog prints its texts and answers IDOK, and a message box asks at the
/// host's prompt: nothing waits for somebody who cannot see it. Set it before the first
/// window: without a desktop the windows are made in memory only.
PLATFORM_API void AfxSetDesktopMode(bool desktop);
PLATFORM_API bool AfxIsDesktopMode();

/// Whether there is a display on which a desktop can be seen: one that QT_QPA_PLATFORM names,
/// X11, or Wayland if the toolkit can speak it. A server that does not answer within two
/// seconds is none. Once the toolkit has started, whether it has opened one.
PLATFORM_API bool AfxHasDisplay();
/// Brings the toolkit to life. The first window does it by itself. With a desktop it opens
/// the display that AfxHasDisplay tells of, otherwise, and if it cannot, windows are in memory
/// only. Numbers keep their point in every language.
PLATFORM_API void AfxStartToolkit();
/// Destroys all windows that are left, and the toolkit with them; at the end of the process.
PLATFORM_API void AfxStopToolkit();

/// Runs what waits: posted messages, timers that are due, painting. Does not wait itself.
PLATFORM_API void AfxPumpMessages();
/// Has something called from the message loop, once what is going on now has returned to it.
/// Does nothing before the toolkit is alive.
PLATFORM_API void AfxCallSoon(std::function<void()> call);
/// Runs what comes until a file (a terminal, a pipe) has something to read, so that timers
/// and posted messages go on in a console. Does nothing before the toolkit is alive, nor
/// within itself.
PLATFORM_API void AfxWaitForInput(int file);
/// Opens an address ("https:", "file:") in the program that the desktop has for it.
PLATFORM_API bool AfxOpenAddress(const wchar_t* address);
