// Distances and overlaps of runs of places in the plane.
#pragma once

#include <span>

#include "host/desktop/view/EntityShape.h"

namespace Tessaly {

using PlanePath = std::span<const PlanePoint>;

/// To the nearest part of the lines; infinity if there is no place at all.
double DistanceToPath(PlanePath path, const PlanePoint& point);
/// An odd number of rings surrounds the point.
bool IsInsideRings(PlanePath rings, const PlanePoint& point);
/// A part of the lines lies in the box; its border belongs to it.
bool PathMeetsBox(PlanePath path, const AcGeExtents2d& box);
/// All places do.
bool IsPathInBox(PlanePath path, const AcGeExtents2d& box);

} // namespace Tessaly
