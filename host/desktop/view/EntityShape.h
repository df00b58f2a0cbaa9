// The geometry of an entity as one sequence of points, which the view uses for drawing, measuring
// and picking.
#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "host/desktop/view/ViewTransform.h"
#include "platform/arx/DbEntity.h"

namespace Tessaly {

/// In drawing order: later kinds cover earlier ones.
enum class ShapeKind : std::uint8_t { Area, Line, Point, Text };
inline constexpr std::size_t kShapeKinds = 4;

/// Interrupts a sequence of points: between rings, and instead of a vertex without a valid
/// position.
inline constexpr PlanePoint kPenUp = {std::numeric_limits<double>::quiet_NaN(),
                                      std::numeric_limits<double>::quiet_NaN()};

/// A buffer to be reused: allocating one per entity would cost more than drawing it.
struct EntityShape {
    ShapeKind kind = ShapeKind::Line;
    /// Closed lines and rings repeat their first point at the end. No kPenUp at either end, and
    /// never two in a row. Points and texts have one point.
    std::vector<PlanePoint> places;
};

/// False, with empty places, if the entity has no valid position.
bool ReadShape(const AcDbEntity& entity, EntityShape& shape);

/// The box around the points; empty if there are none.
AcGeExtents2d ExtentsOf(const EntityShape& shape);

} // namespace Tessaly
