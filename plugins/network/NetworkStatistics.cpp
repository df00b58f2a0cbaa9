#include "plugins/network/NetworkStatistics.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "siblings/networkcore/Components.h"

namespace Orvane::Network {

namespace {

template <class Kind, std::size_t N>
void CountKinds(std::span<const Kind> kinds, std::array<std::size_t, N>& counts) {
    for (const Kind kind : kinds) {
        ++counts[std::min(static_cast<std::size_t>(kind), N - 1)];
    }
}

void Widen(std::optional<Extents>& extents, const Point& point) {
    if (!IsPlace(point)) {
        return;
    }
    if (!extents) {
        extents = Extents{point, point};
    }
    extents->low = {std::min(extents->low.x, point.x), std::min(extents->low.y, point.y)};
    extents->high = {std::max(extents->high.x, point.x), std::max(extents->high.y, point.y)};
}

std::optional<Extents> ExtentsOf(const NetworkGeometry& geometry) {
    std::optional<Extents> extents;
    for (const Point& node : geometry.nodes) {
        Widen(extents, node);
    }
    for (const Point& vertex : geometry.vertices) {
        Widen(extents, vertex);
    }
    return extents;
}

std::optional<Range> ElevationsOf(const NetworkGeometry& geometry) {
    std::optional<Range> range;
    for (const double elevation : geometry.elevations) {
        if (!std::isfinite(elevation)) {
            continue;
        }
        range = range ? Range{std::min(range->low, elevation), std::max(range->high, elevation)}
                      : Range{elevation, elevation};
    }
    return range;
}

double LineLength(const NetworkGeometry& geometry, std::size_t section) {
    double length = 0;
    std::optional<Point> last;
    ForEachLinePoint(geometry, section, [&](const Point& point) {
        if (last) {
            length += std::hypot(point.x - last->x, point.y - last->y);
        }
        last = point;
    });
    return length;
}

void AddStatedLengths(const NetworkGeometry& geometry, NetworkStatistics& result) {
    for (const double length : geometry.statedLengths) {
        if (std::isfinite(length)) {
            result.statedLength += length;
            ++result.sectionsWithStatedLength;
        }
    }
}

void AddComponents(const NetworkGeometry& geometry, NetworkStatistics& result) {
    Topology::Components components(geometry.NodeCount());
    for (std::size_t section = 0; section < geometry.SectionCount(); ++section) {
        const std::int32_t start = geometry.startNodes[section];
        const std::int32_t end = geometry.endNodes[section];
        if (start != kMissingNode && end != kMissingNode) {
            components.Join(static_cast<std::size_t>(start), static_cast<std::size_t>(end));
        }
    }
    result.componentCount = components.Count();
    result.largestComponentNodes = components.Largest();
}

} // namespace

NetworkStatistics ComputeStatistics(const NetworkGeometry& geometry) {
    NetworkStatistics result;
    result.nodeCount = geometry.NodeCount();
    result.sectionCount = geometry.SectionCount();
    result.innerVertexCount = geometry.vertices.size();
    CountKinds(geometry.nodeKinds, result.nodesByKind);
    CountKinds(geometry.sectionKinds, result.sectionsByKind);
    result.extents = ExtentsOf(geometry);
    result.elevations = ElevationsOf(geometry);
    for (std::size_t section = 0; section < geometry.SectionCount(); ++section) {
        result.drawnLength += LineLength(geometry, section);
    }
    AddStatedLengths(geometry, result);
    AddComponents(geometry, result);
    return result;
}

} // namespace Orvane::Network
