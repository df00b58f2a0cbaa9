// Coordinate systems of layers as texts.
#pragma once

#include <string>

class OGRSpatialReference;

namespace Tessaly {

/// One line of WKT. Empty for none, and for those that stand for none in a GeoPackage.
std::string WktOf(const OGRSpatialReference* pReference);

} // namespace Tessaly
