// Joins line ends: derives a network's nodes from its lines.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/arx/GePoint.h"

namespace Orvane::Network {

/// The start and end of a line.
using LineEnds = std::array<AcGePoint3d, 2>;

struct SnapResult {
    /// Positions of nodes to add, in the order of the lines that need them. The height is that of
    /// the first end that has one.
    std::vector<AcGePoint3d> newNodes;
    /// Start and end node of each line: an index into the given nodes, continued by newNodes.
    std::vector<std::array<std::uint32_t, 2>> ends;
};

/// Each end, in the order of the lines, takes the nearest node at most `tolerance` away in plan;
/// a given node wins over an equally near added one, and the first of several given nodes at
/// one position. Without such a node, the end becomes a node itself. Given nodes are never moved or
/// merged. Positions must be finite and the tolerance at least 0. Takes O(n log n).
SnapResult SnapEnds(std::span<const AcGePoint3d> nodes, std::span<const LineEnds> lines,
                    double tolerance);

/// A default tolerance for positions meant to be equal: a millionth of the longer side of the
/// bounding box of all points, rounded down to a power of ten. 0 if the box is empty.
double UsualTolerance(std::span<const AcGePoint3d> nodes, std::span<const LineEnds> lines);

} // namespace Orvane::Network
