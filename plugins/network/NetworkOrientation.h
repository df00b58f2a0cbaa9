// On which side of a line a point lies, decided without rounding.
#pragma once

#include "plugins/network/NetworkModel.h"

namespace Orvane::Network {

/// 1 if the way a, b, c turns left, -1 if it turns right, 0 if the three points lie on
/// one line. Exact for all places whose coordinates are not smaller than about 1e-150
/// (apart from 0). Points of real networks lie on common lines all the time, and a
/// rounded answer would find crossings in them.
int Orientation(const Point& a, const Point& b, const Point& c);

} // namespace Orvane::Network
