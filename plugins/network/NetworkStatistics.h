// Statistics of a whole network.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "plugins/common/NetworkGeometry.h"

namespace Orvane::Network {

struct Extents {
    Point low;
    Point high;
};

struct Range {
    double low = 0;
    double high = 0;
};

/// Lengths, positions and elevations are in drawing units.
struct NetworkStatistics {
    std::size_t nodeCount = 0;
    std::size_t sectionCount = 0;
    std::array<std::size_t, kNodeKindCount> nodesByKind{};       ///< by NodeKind
    std::array<std::size_t, kSectionKindCount> sectionsByKind{}; ///< by SectionKind
    std::size_t innerVertexCount = 0;

    double drawnLength = 0;  ///< of the drawn lines, without the parts to missing nodes
    double statedLength = 0; ///< sum over the sections that state a length
    std::size_t sectionsWithStatedLength = 0;

    std::optional<Extents> extents;  ///< of nodes and inner vertices; unset without any position
    std::optional<Range> elevations; ///< unset if no node has an elevation

    /// Connected parts of the network. A node without sections is a part of its own; a section with
    /// two missing nodes belongs to no part.
    std::size_t componentCount = 0;
    std::size_t largestComponentNodes = 0;
};

/// Takes nearly linear time. Requires valid arrays, see GeometryFault.
NetworkStatistics ComputeStatistics(const NetworkGeometry& geometry);

} // namespace Orvane::Network
