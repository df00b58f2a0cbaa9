// Settings files that cannot be read as what they should be.
#pragma once

#include <optional>

#include "platform/win/String.h"

namespace Orvane::Workspace {

/// Gives a damaged file the first free name of path + ".damaged-1", 2, 3 and so on, so that the
/// next save does not replace what can still be rescued from it, and traces that with the reason.
/// Returns the new name; nothing on failure, with LastErrorText set.
std::optional<CString> KeepDamagedFile(const wchar_t* path, const CString& reason);

} // namespace Orvane::Workspace
