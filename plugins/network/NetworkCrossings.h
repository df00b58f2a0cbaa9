// Finds the sections whose drawn lines cross.
#pragma once

#include <cstdint>
#include <functional>

#include "plugins/common/NetworkGeometry.h"

namespace Orvane::Network {

/// Receives two sections and one of the points where they cross.
using TakeCrossing =
    std::function<void(std::uint32_t section, std::uint32_t earlier, const Point& place)>;

/// Calls `take` once for each pair of sections that cross (as defined at CheckResult). `earlier` is
/// the section with the smaller number; calls are ordered by `section`, then by `earlier`.
void ForEachCrossing(const NetworkGeometry& geometry, const TakeCrossing& take);

} // namespace Orvane::Network
