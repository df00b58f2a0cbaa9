// Points by the cells of a grid, so that those near a place are found without asking all.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Orvane::Network {

/// Stands for no node of a grid.
inline constexpr std::uint32_t kNoneNear = 0xFFFFFFFF;

/// For points that lie farther apart than the tolerance, so that few are in a cell. Cells are
/// somewhat wider than the tolerance: all that is near lies in a cell or in one beside it,
/// however numbers are rounded.
/// \tparam Place has coordinates x and y
template <class Place>
class NodeGrid {
public:
    /// \param tolerance finite; without one (0) only what is at the very place is near
    explicit NodeGrid(double tolerance) : m_tolerance(tolerance), m_width(tolerance * 1.5) {}

    /// Its number, counted from 0.
    std::uint32_t Add(const Place& node) {
        const auto number = static_cast<std::uint32_t>(m_nodes.size());
        m_nodes.push_back(node);
        const auto [cell, isNew] = m_firsts.try_emplace(CellOf(node), number);
        m_next.push_back(isNew ? kNoneNear : std::exchange(cell->second, number));
        return number;
    }

    /// The nearest one at most `best` away, which is no more than the tolerance; the one added
    /// first of several. kNoneNear if there is none.
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
    /// The one added first of those within the tolerance, or kNoneNear.
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
        double x; ///< whole numbers, or the coordinate itself without a tolerance
        double y;
        friend bool operator==(const Cell&, const Cell&) = default;
    };
    struct CellHash {
        std::size_t operator()(const Cell& cell) const {
            constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
            // Adding 0 makes one zero of the two.
            std::uint64_t hash = std::bit_cast<std::uint64_t>(cell.x + 0.0) * kOdd;
            hash = (std::rotl(hash, 29) ^ std::bit_cast<std::uint64_t>(cell.y + 0.0)) * kOdd;
            return hash ^ (hash >> 32);
        }
    };
    Cell CellOf(const Place& place) const {
        return m_width > 0 ? Cell{std::floor(place.x / m_width), std::floor(place.y / m_width)}
                           : Cell{place.x, place.y};
    }

    /// Calls for each node of the cells that may hold one within the tolerance.
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
    std::vector<std::uint32_t> m_next; ///< of a node: another one in its cell
};

} // namespace Orvane::Network
