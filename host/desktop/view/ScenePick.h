// Which entities are meant by a place or a box on the screen. Exact: places come from the
// entities themselves. Entities of layers that are off are never meant.
#pragma once

#include <vector>

#include "host/desktop/view/DrawingScene.h"

namespace Tessaly {

/// What is meant by a place: the nearest point or text within the tolerance, since it would
/// be hidden by the lines that end in it; otherwise the nearest line or outline; otherwise
/// the area that holds the place. Of equally near ones, the one added last. Null if there is
/// nothing.
/// \param tolerance drawing units
AcDbObjectId PickNearest(const DrawingScene& scene, const PlanePoint& place, double tolerance);

enum class BoxPick {
    Whole, ///< only what lies in the box as a whole
    Any,   ///< what has a part in it; of areas, their inside counts
};

/// By number.
std::vector<AcDbObjectId> PickInBox(const DrawingScene& scene, const AcGeExtents2d& box,
                                    BoxPick mode);

} // namespace Tessaly
