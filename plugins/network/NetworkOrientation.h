// The side of a line on which a point lies, computed without rounding errors.
#pragma once

#include "plugins/network/NetworkModel.h"

namespace Orvane::Network {

/// 1 if the path a, b, c turns left, -1 if it turns right, 0 if the points are collinear. Exact for
/// all coordinates that are 0 or at least about 1e-150 in magnitude. Collinear points are common in
/// real networks, and a rounded result would report crossings there.
int Orientation(const Point& a, const Point& b, const Point& c);

} // namespace Orvane::Network
