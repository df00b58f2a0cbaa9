// What statistics and checks see of a network, wherever it is kept.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::Network {

// Attributes of entities under which the figures of a network are kept.
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
    Other ///< no kind is known; the last one
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
    Other ///< no kind is known; the last one
};
inline constexpr std::size_t kSectionKindCount = 8;

/// The word that stands in drawings and lists, as "Junction".
std::string_view KindName(NodeKind kind);
std::string_view KindName(SectionKind kind);
/// The kind of a word of KindName; `Other` for every other word.
NodeKind NodeKindOf(std::string_view name);
SectionKind SectionKindOf(std::string_view name);

inline constexpr double kNotStated = std::numeric_limits<double>::quiet_NaN();
/// Stands for a node that a section names and that does not exist.
inline constexpr std::int32_t kMissingNode = -1;

struct Point {
    double x = 0;
    double y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

/// Points of many lines in one array: line i has the points offsets[i] to offsets[i + 1].
struct PointLists {
    std::vector<std::uint32_t> offsets{0};
    std::vector<Point> points;

    std::size_t size() const { return offsets.size() - 1; }
    std::span<const Point> operator[](std::size_t index) const {
        return std::span(points).subspan(offsets[index], offsets[index + 1] - offsets[index]);
    }
};

/// A view of a network as arrays; it owns nothing. Make it with GeometryOf from a read
/// network, or over arrays of one's own that were filled from a drawing.
///
/// The first group of arrays is required. The other arrays may be left empty, which
/// means "not stated"; otherwise they have one element a node or a section.
struct NetworkGeometry {
    std::span<const Point> nodes;             ///< a node whose position is no place lies nowhere
    std::span<const std::int32_t> startNodes; ///< one a section; number of a node or kMissingNode
    std::span<const std::int32_t> endNodes;

    /// Inner vertices of section i: vertices[vertexOffsets[i]] to vertices[vertexOffsets[i + 1]],
    /// so one offset more than sections. Both empty if all sections are straight.
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

/// The reason why arrays cannot be a network (lengths that do not fit each other, numbers
/// of nodes that do not exist), or an empty text. Statistics and checks require an empty one.
std::string GeometryFault(const NetworkGeometry& geometry);

/// Calls take(point) for each point of the drawn line of a section: its start node, its
/// inner vertices, its end node. A missing node, and a point that is no place, is left out.
template <class Take>
void ForEachLinePoint(const NetworkGeometry& geometry, std::size_t section, Take&& take);

/// The names of a network's entities, for texts that people read. UTF-8.
class INetworkNames {
public:
    virtual ~INetworkNames() = default;
    virtual std::string NodeName(std::size_t node) const = 0;
    virtual std::string SectionName(std::size_t section) const = 0;
    /// What a section states for a start (end) node that does not exist.
    virtual std::string MissingStart(std::size_t section) const = 0;
    virtual std::string MissingEnd(std::size_t section) const = 0;
};

/// Whether both coordinates are numbers of a size with which areas can be computed.
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
