// The shortest path between two nodes of a network, and the heights along it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "plugins/common/NetworkGeometry.h"

namespace Orvane::Repository {

using Network::NetworkGeometry;

/// A path through a network; it has one node more than sections.
struct NetworkPath {
    std::vector<std::int32_t> nodes;
    std::vector<std::int32_t> sections;
    std::vector<double> chainages; ///< distance of each node from the start
};

/// The shortest path by drawn length, ignoring the direction of sections; nothing if there is none.
/// Sections with a missing node are not used.
std::optional<NetworkPath> ShortestPath(const NetworkGeometry& geometry, std::int32_t from,
                                        std::int32_t to);

struct ProfileStation {
    double chainage = 0;
    std::string name; ///< UTF-8
    std::optional<double> ground;
    std::optional<double> invert;
};

/// A table with a heading and a line per station, without empty columns. Slopes are in per cent,
/// listed at the end of their reach, negative for falling; they are those of the inverts, or of the
/// ground where an invert is unknown. A reach without length has no slope.
std::vector<std::string> ProfileLines(const std::vector<ProfileStation>& stations);

} // namespace Orvane::Repository
