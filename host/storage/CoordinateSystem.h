// Coordinate systems of layers as texts.
#pragma once

#include <string>

#include "platform/win/String.h"

class OGRSpatialReference;

namespace Tessaly {

/// One line of WKT. Empty for none, and for those that stand for none in a GeoPackage.
std::string WktOf(const OGRSpatialReference* pReference);

/// Positions in the one are positions in the other. Texts (WKT) that cannot be read are the
/// same only letter by letter.
bool IsSameCoordinateSystem(const CString& left, const CString& right);
/// Such as "ETRS89 / UTM zone 32N"; "unknown" for an empty text.
CString CoordinateSystemName(const CString& wkt);

} // namespace Tessaly
