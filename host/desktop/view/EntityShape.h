// What an entity looks like, as one run of places: the form in which everything in the view
// draws, measures and picks.
#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "host/desktop/view/ViewTransform.h"
#include "platform/arx/DbEntity.h"

namespace Tessaly {

/// In the order of drawing: later ones cover earlier ones.
enum class ShapeKind : std::uint8_t { Area, Line, Point, Text };
inline constexpr std::size_t kShapeKinds = 4;

/// Stands in a run of places where the pen is lifted: between rings, and in place of a vertex
/// that has no place.
inline constexpr PlanePoint kPenUp = {std::numeric_limits<double>::quiet_NaN(),
                                      std::numeric_limits<double>::quiet_NaN()};

/// A buffer to be used over and over: one for each entity would cost more than the drawing.
struct EntityShape {
    ShapeKind kind = ShapeKind::Line;
    /// Of closed lines and rings the first place is repeated at the end. No kPenUp at either
    /// end, and no two in a row. A point and a text have one place.
    std::vector<PlanePoint> places;
};

/// False, and the places are empty, if nothing of the entity has a place.
bool ReadShape(const AcDbEntity& entity, EntityShape& shape);

/// The box around the places; empty if there are none.
AcGeExtents2d ExtentsOf(const EntityShape& shape);

} // namespace Tessaly
