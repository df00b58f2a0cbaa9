// Points in a grid, so that points near a position are found without visiting all.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Orvane::Network {

/// No node of the grid.
inline constexpr std::uint32_t kNoneNear = 0xFFFFFFFF;

/// For points that are farther apart than the tolerance, so that each cell holds few. Cells are
/// wider than the tolerance: all points within it are in the same or an adjacent cell, regardless
/// of rounding.
/// \tparam Place has the coordinates x and y
template <class Place>
class NodeGrid {
public:
    /// \param tolerance finite; with 0 only equal positions are near
    explicit NodeGrid(double tolerance) : m_tolerance(tolerance), m_width(tolerance * 1.5) {}

    /// Returns the node's number, counted from 0.
    std::uint32_t Add(const Place& node) {
        const auto number = static_cast<std::uint32_t>(m_nodes.size());
        m_nodes.push_back(node);
        const auto [cell, isNew] = m_firsts.try_emplace(CellOf(node), number);
        m_next.push_back(isNew ? kNoneNear : std::exchange(cell->second, number));
        return number;
    }

    /// The nearest node at most `best` away, which must not exceed the tolerance; the earliest
    /// added if several are equally near. kNoneNear if there is none.
    std::uint32_t Nearest(const Place& place, double best) const {
        std::uint32_t nearest = kNoneNear;
        ForEachAround(place, [&](std::uint32_t at) {
            const double distance = DistanceTo(at, place);
            if (distance < best || (distance == best && at < nearest)) {
                best = distance;
                nearest = at;
            }
        });
        return nearest;
    }
    /// The earliest added node within the tolerance, or kNoneNear.
    std::uint32_t FirstNear(const Place& place) const {
        std::uint32_t first = kNoneNear;
        ForEachAround(place, [&](std::uint32_t at) {
            if (at < first && DistanceTo(at, place) <= m_tolerance) {
                first = at;
            }
        });
        return first;
    }

    double DistanceTo(std::uint32_t node, const Place& place) const {
        return std::hypot(m_nodes[node].x - place.x, m_nodes[node].y - place.y);
    }
    std::vector<Place>& Nodes() { return m_nodes; }

private:
    struct Cell {
        double x; ///< integers, or the coordinates themselves if the tolerance is 0
        double y;
        friend bool operator==(const Cell&, const Cell&) = default;
    };
    struct CellHash {
        std::size_t operator()(const Cell& cell) const {
            constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
            // Adding 0 turns -0 into 0.
            std::uint64_t hash = std::bit_cast<std::uint64_t>(cell.x + 0.0) * kOdd;
            hash = (std::rotl(hash, 29) ^ std::bit_cast<std::uint64_t>(cell.y + 0.0)) * kOdd;
            return hash ^ (hash >> 32);
        }
    };
    Cell CellOf(const Place& place) const {
        return m_width > 0 ? Cell{std::floor(place.x / m_width), std::floor(place.y / m_width)}
                           : Cell{place.x, place.y};
    }

    /// Visits each node of the cells that may hold one within the tolerance.
    template <class Visit>
    void ForEachAround(const Place& place, Visit visit) const {
        const Cell own = CellOf(place);
        const int reach = m_tolerance > 0 ? 1 : 0;
        for (int dx = -reach; dx <= reach; ++dx) {
            for (int dy = -reach; dy <= reach; ++dy) {
                const auto cell = m_firsts.find({own.x + dx, own.y + dy});
                for (std::uint32_t at = cell == m_firsts.end() ? kNoneNear : cell->second;
                     at != kNoneNear; at = m_next[at]) {
                    visit(at);
                }
            }
        }
    }

    double m_tolerance;
    double m_width;
    std::vector<Place> m_nodes;
    std::unordered_map<Cell, std::uint32_t, CellHash> m_firsts;
    std::vector<std::uint32_t> m_next; ///< by node: the next node in its cell
};

} // namespace Orvane::Network
