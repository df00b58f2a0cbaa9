// Picks entities by a point or a box. Exact, because it uses the entities' own coordinates.
// Entities on layers that are off are never picked.
#pragma once

#include <vector>

#include "host/desktop/view/DrawingScene.h"

namespace Tessaly {

/// Picks at a point: the nearest point or text within the tolerance, since the lines that end in it
/// would hide it; otherwise the nearest line or outline; otherwise the area around the point. If
/// several are equally near, the one added last. Null if there is none.
/// \param tolerance drawing units
AcDbObjectId PickNearest(const DrawingScene& scene, const PlanePoint& place, double tolerance);

enum class BoxPick {
    Whole, ///< only entities completely inside the box
    Any,   ///< also entities partly inside; the interior of areas counts
};

/// Sorted by number.
std::vector<AcDbObjectId> PickInBox(const DrawingScene& scene, const AcGeExtents2d& box,
                                    BoxPick mode);

} // namespace Tessaly
