// The way between two nodes of a network, and the heights along it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "plugins/common/NetworkGeometry.h"

namespace Orvane::Repository {

using Network::NetworkGeometry;

/// A way through a network: one node more than sections.
struct NetworkPath {
    std::vector<std::int32_t> nodes;
    std::vector<std::int32_t> sections;
    std::vector<double> chainages; ///< at each node, from 0
};

/// The shortest way by drawn length, in whichever direction sections lead; nothing if there
/// is none. Sections with a missing node lead nowhere.
std::optional<NetworkPath> ShortestPath(const NetworkGeometry& geometry, std::int32_t from,
                                        std::int32_t to);

struct ProfileStation {
    double chainage = 0;
    std::string name; ///< UTF-8
    std::optional<double> ground;
    std::optional<double> invert;
};

/// A table with a line for each station and a heading; columns that no station has anything
/// in are left out. The slope of a reach, in per cent, stands at its end and is that of the
/// inverts, or of the ground where an invert is not known; falling is negative. A reach
/// without length has none.
std::vector<std::string> ProfileLines(const std::vector<ProfileStation>& stations);

} // namespace Orvane::Repository
