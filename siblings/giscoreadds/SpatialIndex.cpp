#include "siblings/giscoreadds/SpatialIndex.h"

// Boost includes its own deprecated headers, which warn at each build.
#define BOOST_ALLOW_DEPRECATED_HEADERS

#include <algorithm>
#include <boost/geometry/core/cs.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/geometry/strategies/strategies.hpp>
#include <boost/iterator/function_output_iterator.hpp>
#include <cmath>
#include <utility>

namespace Orvane::Selection {

namespace {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

using TreePoint = bg::model::point<double, 2, bg::cs::cartesian>;
using TreeBox = bg::model::box<TreePoint>;
using TreeEntry = std::pair<TreeBox, std::uint32_t>;
using RTree = bgi::rtree<TreeEntry, bgi::linear<16>>;

bool IsBox(const Box& box) {
    return std::isfinite(box.minX) && std::isfinite(box.minY) && std::isfinite(box.maxX) &&
           std::isfinite(box.maxY) && box.minX <= box.maxX && box.minY <= box.maxY;
}

TreeBox ToTree(const Box& box) {
    return TreeBox(TreePoint(box.minX, box.minY), TreePoint(box.maxX, box.maxY));
}

std::vector<TreeEntry> UsableEntries(std::span<const BoxEntry> entries) {
    std::vector<TreeEntry> usable;
    usable.reserve(entries.size());
    for (const BoxEntry& entry : entries) {
        if (IsBox(entry.box)) {
            usable.emplace_back(ToTree(entry.box), entry.id);
        }
    }
    return usable;
}

double DistanceTo(const TreeBox& box, double x, double y) {
    const double dx = std::max({box.min_corner().get<0>() - x, 0.0, x - box.max_corner().get<0>()});
    const double dy = std::max({box.min_corner().get<1>() - y, 0.0, y - box.max_corner().get<1>()});
    return std::hypot(dx, dy);
}

} // namespace

struct CSpatialIndex::Tree {
    RTree tree;
};

CSpatialIndex::CSpatialIndex() : CSpatialIndex(std::span<const BoxEntry>()) {}

CSpatialIndex::CSpatialIndex(std::span<const BoxEntry> entries)
    : m_tree(new Tree{RTree(UsableEntries(entries))}) {}

CSpatialIndex::~CSpatialIndex() = default;
CSpatialIndex::CSpatialIndex(CSpatialIndex&& other) noexcept = default;
CSpatialIndex& CSpatialIndex::operator=(CSpatialIndex&& other) noexcept = default;

std::size_t CSpatialIndex::Size() const {
    return m_tree->tree.size();
}

void CSpatialIndex::QueryThrough(const Box& box, Callback callback, void* visitor) const {
    if (!IsBox(box)) {
        return;
    }
    m_tree->tree.query(
        bgi::intersects(ToTree(box)),
        boost::make_function_output_iterator(
            [callback, visitor](const TreeEntry& entry) { callback(visitor, entry.second); }));
}

std::vector<CSpatialIndex::Hit> CSpatialIndex::Nearest(double x, double y, double maxDistance,
                                                       std::size_t count) const {
    std::vector<Hit> hits;
    if (!std::isfinite(x) || !std::isfinite(y) || std::isnan(maxDistance) || count == 0) {
        return hits;
    }
    const auto wanted = static_cast<unsigned>(std::min(count, Size()));
    const auto nearest = bgi::nearest(TreePoint(x, y), std::max(wanted, 1U));
    for (auto at = m_tree->tree.qbegin(nearest); at != m_tree->tree.qend(); ++at) {
        const Hit hit{at->second, DistanceTo(at->first, x, y)};
        if (hit.distance > maxDistance) {
            break; // hits are sorted by distance
        }
        hits.push_back(hit);
    }
    std::sort(hits.begin(), hits.end(), [](const Hit& a, const Hit& b) {
        return std::pair(a.distance, a.id) < std::pair(b.distance, b.id);
    });
    return hits;
}

std::optional<CSpatialIndex::Hit> CSpatialIndex::Nearest(double x, double y,
                                                         double maxDistance) const {
    const std::vector<Hit> hits = Nearest(x, y, maxDistance, 1);
    return hits.empty() ? std::nullopt : std::optional(hits.front());
}

} // namespace Orvane::Selection
