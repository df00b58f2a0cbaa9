// Figures of a network as a whole.
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
    std::array<std::size_t, kNodeKindCount> nodesByKind{};       ///< by number of NodeKind
    std::array<std::size_t, kSectionKindCount> sectionsByKind{}; ///< by number of SectionKind
    std::size_t innerVertexCount = 0;

    double drawnLength = 0;  ///< along the drawn lines; a missing node's part is left out
    double statedLength = 0; ///< sum over the sections that state one
    std::size_t sectionsWithStatedLength = 0;

    std::optional<Extents> extents;  ///< of nodes and inner vertices; none if nothing is placed
    std::optional<Range> elevations; ///< none if no node states one

    /// Parts of the network that hang together over sections. A node without sections is
    /// a part of its own; a section both of whose nodes are missing belongs to none.
    std::size_t componentCount = 0;
    std::size_t largestComponentNodes = 0;
};

/// Takes n operations (nearly). The arrays must be sound, see GeometryFault.
NetworkStatistics ComputeStatistics(const NetworkGeometry& geometry);

} // namespace Orvane::Network
