#include "plugins/network/NetworkSnap.h"

#include <bit>
#include <cmath>
#include <unordered_map>
#include <utility>

#include "siblings/giscoreadds/SpatialIndex.h"

namespace Orvane::Network {

namespace {

constexpr std::uint32_t kNone = 0xFFFFFFFF;

double DistanceOf(const AcGePoint3d& a, const AcGePoint3d& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

/// The nodes that were made, by the cell of a grid. They lie farther apart than the
/// tolerance, so that few are in a cell. Cells are somewhat wider than the tolerance: all
/// that is near lies in a cell or in one beside it, however numbers are rounded.
class NodeGrid {
public:
    explicit NodeGrid(double tolerance) : m_tolerance(tolerance), m_width(tolerance * 1.5) {}

    std::uint32_t Add(const AcGePoint3d& node) {
        const auto number = static_cast<std::uint32_t>(m_nodes.size());
        m_nodes.push_back(node);
        const auto [cell, isNew] = m_firsts.try_emplace(CellOf(node), number);
        m_next.push_back(isNew ? kNone : std::exchange(cell->second, number));
        return number;
    }

    /// The nearest one at most `best` away, or kNone.
    std::uint32_t Nearest(const AcGePoint3d& place, double best) const {
        std::uint32_t nearest = kNone;
        const Cell own = CellOf(place);
        // Without a tolerance only what is at the very place counts.
        const int reach = m_tolerance > 0 ? 1 : 0;
        for (int dx = -reach; dx <= reach; ++dx) {
            for (int dy = -reach; dy <= reach; ++dy) {
                const auto cell = m_firsts.find({own.x + dx, own.y + dy});
                for (std::uint32_t at = cell == m_firsts.end() ? kNone : cell->second; at != kNone;
                     at = m_next[at]) {
                    const double distance = DistanceOf(m_nodes[at], place);
                    if (distance < best || (distance == best && at < nearest)) {
                        best = distance;
                        nearest = at;
                    }
                }
            }
        }
        return nearest;
    }

    double DistanceTo(std::uint32_t node, const AcGePoint3d& place) const {
        return DistanceOf(m_nodes[node], place);
    }
    std::vector<AcGePoint3d>& Nodes() { return m_nodes; }

private:
    struct Cell {
        double x;
        double y;
        friend bool operator==(const Cell&, const Cell&) = default;
    };
    struct CellHash {
        std::size_t operator()(const Cell& cell) const {
            constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15ULL;
            // Adding 0 makes one zero of the two.
            const std::uint64_t x = std::bit_cast<std::uint64_t>(cell.x + 0.0) * kSpread;
            const std::uint64_t y = std::bit_cast<std::uint64_t>(cell.y + 0.0) * kSpread;
            return (x ^ std::rotr(y, 23)) * kSpread >> 7;
        }
    };
    Cell CellOf(const AcGePoint3d& place) const {
        return m_width > 0 ? Cell{std::floor(place.x / m_width), std::floor(place.y / m_width)}
                           : Cell{place.x, place.y};
    }

    double m_tolerance;
    double m_width;
    std::vector<AcGePoint3d> m_nodes;
    std::unordered_map<Cell, std::uint32_t, CellHash> m_firsts;
    std::vector<std::uint32_t> m_next; ///< of a node: another one in its cell
};

/// The nodes that were given, of which any number may lie close together.
class GivenNodes {
public:
    explicit GivenNodes(std::span<const AcGePoint3d> nodes) {
        // Of several at one place only the first counts.
        NodeGrid places(0);
        std::vector<Selection::BoxEntry> boxes;
        for (std::uint32_t i = 0; i < nodes.size(); ++i) {
            if (places.Nearest(nodes[i], 0) == kNone) {
                places.Add(nodes[i]);
                boxes.push_back({{nodes[i].x, nodes[i].y, nodes[i].x, nodes[i].y}, i});
            }
        }
        m_index = Selection::CSpatialIndex(boxes);
    }
    std::optional<Selection::CSpatialIndex::Hit> Nearest(const AcGePoint3d& place,
                                                         double tolerance) const {
        return m_index.Nearest(place.x, place.y, tolerance);
    }

private:
    Selection::CSpatialIndex m_index;
};

} // namespace

SnapResult SnapEnds(std::span<const AcGePoint3d> nodes, std::span<const LineEnds> lines,
                    double tolerance) {
    const GivenNodes given(nodes);
    const auto givenCount = static_cast<std::uint32_t>(nodes.size());
    NodeGrid made(tolerance);
    SnapResult result;
    result.ends.reserve(lines.size());
    for (const LineEnds& line : lines) {
        std::array<std::uint32_t, 2> ends{};
        for (const std::size_t i : {0, 1}) {
            const auto hit = given.Nearest(line[i], tolerance);
            std::uint32_t number =
                made.Nearest(line[i], hit ? std::min(hit->distance, tolerance) : tolerance);
            if (hit && (number == kNone || hit->distance <= made.DistanceTo(number, line[i]))) {
                ends[i] = hit->id;
                continue;
            }
            if (number == kNone) {
                number = made.Add(line[i]);
            } else if (std::isnan(made.Nodes()[number].z)) {
                made.Nodes()[number].z = line[i].z;
            }
            ends[i] = givenCount + number;
        }
        result.ends.push_back(ends);
    }
    result.newNodes = std::move(made.Nodes());
    return result;
}

double UsualTolerance(std::span<const AcGePoint3d> nodes, std::span<const LineEnds> lines) {
    AcGeExtents2d box;
    for (const AcGePoint3d& node : nodes) {
        box.add(node);
    }
    for (const LineEnds& line : lines) {
        box.add(line[0]);
        box.add(line[1]);
    }
    const double side = box.isEmpty() ? 0 : std::max(box.maxX - box.minX, box.maxY - box.minY);
    return side > 0 && std::isfinite(side) ? std::pow(10, std::floor(std::log10(side)) - 6) : 0;
}

} // namespace Orvane::Network
