// Reading of the user's files.
#pragma once

#include <vector>

#include "platform/win/IniFile.h"
#include "siblings/giscore/Api.h"

namespace Orvane {

/// Reads a file of the folder "support". One that is not there counts as an empty one: the
/// user may have removed it. Returns what was wrong, "file:line: reason" or "file: reason".
GISCORE_API std::vector<CString> LoadSupportFile(IniFile& file, const CString& path);

} // namespace Orvane
