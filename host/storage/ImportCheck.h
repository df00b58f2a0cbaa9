// What a file has to be before it is given to GDAL.
#pragma once

#include <string>

#include "platform/win/String.h"

namespace Tessaly {

/// Why a file, or folder, is not to be opened; empty if it may be. Finds what GDAL's readers
/// would not survive, or not tell. Drivers have to be registered.
CString WhyNotImportable(const std::string& path);

} // namespace Tessaly
