#include "plugins/network/NetworkStatistics.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <vector>

namespace Orvane::Network {

namespace {

/// Which nodes hang together: each points towards the representative of its part.
class Components {
public:
    explicit Components(std::size_t nodeCount) : m_parents(nodeCount), m_sizes(nodeCount, 1) {
        std::iota(m_parents.begin(), m_parents.end(), 0U);
    }

    void Join(std::size_t a, std::size_t b) {
        std::uint32_t large = Root(a);
        std::uint32_t small = Root(b);
        if (large == small) {
            return;
        }
        if (m_sizes[large] < m_sizes[small]) {
            std::swap(large, small);
        }
        m_parents[small] = large;
        m_sizes[large] += m_sizes[small];
        --m_count;
    }

    std::size_t Count() const { return m_count; }
    std::size_t Largest() const {
        return m_sizes.empty() ? 0 : *std::max_element(m_sizes.begin(), m_sizes.end());
    }

private:
    std::uint32_t Root(std::size_t node) {
        auto at = static_cast<std::uint32_t>(node);
        while (m_parents[at] != at) {
            m_parents[at] = m_parents[m_parents[at]]; // shortens the way for the next time
            at = m_parents[at];
        }
        return at;
    }

    std::vector<std::uint32_t> m_parents;
    std::vector<std::uint32_t> m_sizes;
    std::size_t m_count = m_parents.size();
};

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
    Components components(geometry.NodeCount());
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
