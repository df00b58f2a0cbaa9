// Progress of long operations, with the option to stop them.
#pragma once

#include "platform/arx/DbStorage.h"

/// Returns a callback that shows an operation's progress in the host and answers false once the
/// user wants to stop. The operation starts now and ends when the last copy of the callback is
/// destroyed; nested operations end with the outermost one.
/// \param what title, such as "Reading plan.gpkg"
PLATFORM_API AcDbProgress acedProgress(const wchar_t* what);
