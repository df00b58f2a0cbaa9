// Globally unique identifiers.
#pragma once

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"

namespace Orvane {

/// A random GUID (variant 1, version 4), such as "0F8FAD5B-D9CB-469F-A165-70867728950E".
GISCORE_API CString NewGuid();

/// Letters, digits and hyphens, at most 64: safe as a file or record name. Deliberately lenient,
/// since other programs' ids may deviate from the standard form.
GISCORE_API bool IsGuid(std::wstring_view text);

} // namespace Orvane
