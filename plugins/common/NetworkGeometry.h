// The view of a network that statistics and checks work on, independent of its storage.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::Network {

// Attribute names used for the numeric properties of network entities.
inline constexpr std::string_view kElevation = "ELEVATION";
inline constexpr std::string_view kDiameter = "DIAMETER";
inline constexpr std::string_view kStatedLength = "LENGTH";

enum class NodeKind : std::uint8_t {
    Junction,
    Reservoir,
    Tank,
    Outfall,
    Storage,
    Divider,
    Other ///< unknown kind; always last
};
inline constexpr std::size_t kNodeKindCount = 7;

enum class SectionKind : std::uint8_t {
    Pipe,
    Pump,
    Valve,
    Conduit,
    Weir,
    Orifice,
    Outlet,
    Other ///< unknown kind; always last
};
inline constexpr std::size_t kSectionKindCount = 8;

/// The name used in drawings and lists, such as "Junction".
std::string_view KindName(NodeKind kind);
std::string_view KindName(SectionKind kind);
/// The kind with this KindName; `Other` if there is no such kind.
NodeKind NodeKindOf(std::string_view name);
SectionKind SectionKindOf(std::string_view name);

inline constexpr double kNotStated = std::numeric_limits<double>::quiet_NaN();
/// Replaces a node that a section names but that does not exist.
inline constexpr std::int32_t kMissingNode = -1;

struct Point {
    double x = 0;
    double y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

/// The points of many lines in one array: line i has the points offsets[i] to offsets[i + 1].
struct PointLists {
    std::vector<std::uint32_t> offsets{0};
    std::vector<Point> points;

    std::size_t size() const { return offsets.size() - 1; }
    std::span<const Point> operator[](std::size_t index) const {
        return std::span(points).subspan(offsets[index], offsets[index + 1] - offsets[index]);
    }
};

/// A non-owning view of a network as arrays. Create it with GeometryOf from a network file's model,
/// or over your own arrays filled from a drawing.
///
/// The first group of arrays is required. The others may be empty, meaning "not stated"; otherwise
/// they have one element per node or section.
struct NetworkGeometry {
    std::span<const Point> nodes;             ///< nodes without valid coordinates have no position
    std::span<const std::int32_t> startNodes; ///< one per section; a node number or kMissingNode
    std::span<const std::int32_t> endNodes;

    /// Inner vertices of section i: vertices[vertexOffsets[i]] to vertices[vertexOffsets[i + 1]],
    /// hence one more offset than sections. Both are empty if all sections are straight.
    std::span<const std::uint32_t> vertexOffsets;
    std::span<const Point> vertices;

    std::span<const NodeKind> nodeKinds;
    std::span<const double> elevations; ///< NaN where not stated
    std::span<const SectionKind> sectionKinds;
    std::span<const double> statedLengths; ///< NaN where not stated

    std::size_t NodeCount() const { return nodes.size(); }
    std::size_t SectionCount() const { return startNodes.size(); }
    std::span<const Point> InnerVertices(std::size_t section) const {
        return vertexOffsets.empty()
                   ? std::span<const Point>()
                   : vertices.subspan(vertexOffsets[section],
                                      vertexOffsets[section + 1] - vertexOffsets[section]);
    }
};

/// Why the arrays do not form a network (inconsistent lengths, invalid node numbers), or an empty
/// string. Statistics and checks require valid arrays.
std::string GeometryFault(const NetworkGeometry& geometry);

/// Calls take(point) for each point of a section's drawn line: start node, inner vertices, end
/// node. Skips missing nodes and invalid points.
template <class Take>
void ForEachLinePoint(const NetworkGeometry& geometry, std::size_t section, Take&& take);

/// The names of a network's entities for reports. UTF-8.
class INetworkNames {
public:
    virtual ~INetworkNames() = default;
    virtual std::string NodeName(std::size_t node) const = 0;
    virtual std::string SectionName(std::size_t section) const = 0;
    /// The name that a section gives for a start (end) node that does not exist.
    virtual std::string MissingStart(std::size_t section) const = 0;
    virtual std::string MissingEnd(std::size_t section) const = 0;
};

/// Whether both coordinates are finite and small enough to compute areas.
bool IsPlace(const Point& point);

template <class Take>
void ForEachLinePoint(const NetworkGeometry& geometry, std::size_t section, Take&& take) {
    const auto takePlace = [&take](const Point& point) {
        if (IsPlace(point)) {
            take(point);
        }
    };
    if (const std::int32_t start = geometry.startNodes[section]; start != kMissingNode) {
        takePlace(geometry.nodes[start]);
    }
    for (const Point& vertex : geometry.InnerVertices(section)) {
        takePlace(vertex);
    }
    if (const std::int32_t end = geometry.endNodes[section]; end != kMissingNode) {
        takePlace(geometry.nodes[end]);
    }
}

} // namespace Orvane::Network
