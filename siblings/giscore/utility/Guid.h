// Texts that are unique everywhere.
#pragma once

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"

namespace Orvane {

/// A random one of the usual form (variant 1, version 4), as
/// "0F8FAD5B-D9CB-469F-A165-70867728950E".
GISCORE_API CString NewGuid();

/// Letters, digits and hyphens, at most 64 of them: fit to be the name of a file or of a
/// record. Stricter would refuse what other programs have made.
GISCORE_API bool IsGuid(std::wstring_view text);

} // namespace Orvane
