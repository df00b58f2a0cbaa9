// Which ends of lines meet: nodes of a network found from lines alone.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/arx/GePoint.h"

namespace Orvane::Network {

/// Where a line begins and where it ends.
using LineEnds = std::array<AcGePoint3d, 2>;

struct SnapResult {
    /// Where nodes are wanted that were not given, in the order in which lines want them.
    /// A height is that of the first end that states one.
    std::vector<AcGePoint3d> newNodes;
    /// Start and end node of each line: a number of the given nodes, and behind those of
    /// newNodes.
    std::vector<std::array<std::uint32_t, 2>> ends;
};

/// Each end, in the order of the lines, takes the nearest node at most `tolerance` away in
/// the plane, a given one before one that was made, the first of given ones at one place;
/// where there is none, it becomes a node itself. Given nodes never move and are never
/// joined. Positions are finite numbers, the tolerance is 0 or more. Takes n log n.
SnapResult SnapEnds(std::span<const AcGePoint3d> nodes, std::span<const LineEnds> lines,
                    double tolerance);

/// A tolerance for positions that are meant to be the same: a millionth of the larger side of
/// the box around all ends, down to a power of ten. 0 for a box without size.
double UsualTolerance(std::span<const AcGePoint3d> nodes, std::span<const LineEnds> lines);

} // namespace Orvane::Network
