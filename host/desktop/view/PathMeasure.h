// Distances and overlaps of sequences of points in the plane.
#pragma once

#include <span>

#include "host/desktop/view/EntityShape.h"

namespace Tessaly {

using PlanePath = std::span<const PlanePoint>;

/// The distance to the nearest part of the lines; infinity without any point.
double DistanceToPath(PlanePath path, const PlanePoint& point);
/// Whether an odd number of rings surrounds the point.
bool IsInsideRings(PlanePath rings, const PlanePoint& point);
/// Whether a part of the lines is inside the box or on its border.
bool PathMeetsBox(PlanePath path, const AcGeExtents2d& box);
/// Whether all points are inside the box or on its border.
bool IsPathInBox(PlanePath path, const AcGeExtents2d& box);

} // namespace Tessaly
