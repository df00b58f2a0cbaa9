// What a file has to be before it is given to GDAL.
#pragma once

#include <string>

#include "platform/win/String.h"

namespace Tessaly {

/// Why a file, or folder, is not to be opened with any of the drivers of these names (ends
/// with null); empty if it may be. Finds what GDAL's readers would not survive, or not tell.
CString WhyNotImportable(const std::string& path, const char* const* drivers);

} // namespace Tessaly
