#include "plugins/network/NetworkSnap.h"

#include <bit>
#include <cmath>
#include <unordered_map>
#include <utility>

namespace Orvane::Network {

namespace {

constexpr std::uint32_t kNone = 0xFFFFFFFF;

/// Nodes by the cell of a grid whose cells are as wide as the tolerance, so that all that
/// is near lies in a cell or in one beside it.
class NodeGrid {
public:
    explicit NodeGrid(double tolerance) : m_tolerance(tolerance) {}

    std::uint32_t Add(const AcGePoint3d& node) {
        const auto number = static_cast<std::uint32_t>(m_nodes.size());
        m_nodes.push_back(node);
        const auto [cell, isNew] = m_firsts.try_emplace(CellOf(node.x, node.y), number);
        m_next.push_back(isNew ? kNone : std::exchange(cell->second, number));
        return number;
    }

    std::uint32_t Nearest(const AcGePoint3d& place) const {
        std::uint32_t nearest = kNone;
        double best = m_tolerance;
        // Without a tolerance only what is at the very place counts.
        const int reach = m_tolerance > 0 ? 1 : 0;
        for (int dx = -reach; dx <= reach; ++dx) {
            for (int dy = -reach; dy <= reach; ++dy) {
                const auto cell =
                    m_firsts.find(CellOf(place.x + dx * m_tolerance, place.y + dy * m_tolerance));
                for (std::uint32_t at = cell == m_firsts.end() ? kNone : cell->second; at != kNone;
                     at = m_next[at]) {
                    const double distance =
                        std::hypot(m_nodes[at].x - place.x, m_nodes[at].y - place.y);
                    if (distance < best || (distance == best && at < nearest)) {
                        best = distance;
                        nearest = at;
                    }
                }
            }
        }
        return nearest;
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
    Cell CellOf(double x, double y) const {
        return m_tolerance > 0 ? Cell{std::floor(x / m_tolerance), std::floor(y / m_tolerance)}
                               : Cell{x, y};
    }

    double m_tolerance;
    std::vector<AcGePoint3d> m_nodes;
    std::unordered_map<Cell, std::uint32_t, CellHash> m_firsts;
    std::vector<std::uint32_t> m_next; ///< of a node: another one in its cell
};

} // namespace

SnapResult SnapEnds(std::span<const AcGePoint3d> nodes, std::span<const LineEnds> lines,
                    double tolerance) {
    NodeGrid grid(tolerance);
    for (const AcGePoint3d& node : nodes) {
        grid.Add(node);
    }
    SnapResult result;
    result.ends.reserve(lines.size());
    for (const LineEnds& line : lines) {
        std::array<std::uint32_t, 2> ends{};
        for (const std::size_t i : {0, 1}) {
            ends[i] = grid.Nearest(line[i]);
            if (ends[i] == kNone) {
                ends[i] = grid.Add(line[i]);
            } else if (ends[i] >= nodes.size() && std::isnan(grid.Nodes()[ends[i]].z)) {
                grid.Nodes()[ends[i]].z = line[i].z;
            }
        }
        result.ends.push_back(ends);
    }
    result.newNodes.assign(grid.Nodes().begin() + static_cast<std::ptrdiff_t>(nodes.size()),
                           grid.Nodes().end());
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
