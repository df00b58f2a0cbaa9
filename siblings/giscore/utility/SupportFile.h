// Loading of the user's support files.
#pragma once

#include <vector>

#include "platform/win/IniFile.h"
#include "siblings/giscore/Api.h"

namespace Orvane {

/// Reads a file of the folder "support". A missing file counts as empty, since the user may have
/// removed it. Returns the problems as "file:line: reason" or "file: reason".
GISCORE_API std::vector<CString> LoadSupportFile(IniFile& file, const CString& path);

} // namespace Orvane
