// Label positions of lines and areas.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/arx/DbEntity.h"

namespace Orvane::Repository {

/// The point half way along a line, in plan; nothing if the line has no valid point.
std::optional<AcGePoint3d> MiddleOf(std::span<const AcGePoint3d> line);

/// The centroid of the largest outer ring, or the mean of its points if it has no area; nothing if
/// the result is not a valid position.
std::optional<AcGePoint3d> CentreOf(const std::vector<AcDbMPolygon::Ring>& rings);

} // namespace Orvane::Repository
