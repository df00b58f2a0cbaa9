// Where labels of lines and areas stand.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/arx/DbEntity.h"

namespace Orvane::Repository {

/// The point half way along a line, in the plane; nothing if none of its points is a place.
std::optional<AcGePoint3d> MiddleOf(std::span<const AcGePoint3d> line);

/// The centre of gravity of the largest outer ring, or the middle of its points if it has no
/// area; nothing if it is no place.
std::optional<AcGePoint3d> CentreOf(const std::vector<AcDbMPolygon::Ring>& rings);

} // namespace Orvane::Repository
