// Long work that the user sees and may stop.
#pragma once

#include "platform/arx/DbStorage.h"

/// A callback that shows how far the work is at the host, and answers false once the user
/// wants it to stop. The work begins now and ends when the last copy of the callback goes; if
/// other work begins meanwhile, both end with the outer one.
/// \param what such as "Reading plan.gpkg"
PLATFORM_API AcDbProgress acedProgress(const wchar_t* what);
