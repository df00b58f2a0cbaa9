// Finds the sections whose drawn lines cross.
#pragma once

#include <cstdint>
#include <functional>

#include "plugins/common/NetworkGeometry.h"

namespace Orvane::Network {

/// Takes two sections and one of the places where they cross.
using TakeCrossing =
    std::function<void(std::uint32_t section, std::uint32_t earlier, const Point& place)>;

/// Calls `take` once for each pair of sections that cross (see CheckResult for what that
/// is): `earlier` is the section with the smaller number, and the calls come in the order
/// of `section`, then of `earlier`.
void ForEachCrossing(const NetworkGeometry& geometry, const TakeCrossing& take);

} // namespace Orvane::Network
