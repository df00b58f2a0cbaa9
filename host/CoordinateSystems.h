// Coordinate systems as the user knows them.
#pragma once

#include "platform/win/String.h"

namespace Tessaly {

/// Positions in the one are positions in the other. Texts (WKT) that cannot be read are the
/// same only letter by letter.
bool IsSameCoordinateSystem(const CString& left, const CString& right);

/// Such as "ETRS89 / UTM zone 32N"; "unknown" for an empty text.
CString CoordinateSystemName(const CString& wkt);

} // namespace Tessaly
