#include "siblings/giscoreadds/PolygonIndex.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "siblings/networkcore/TopologyMultiStorage.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Selection {

namespace {

using Topology::Point;
using Rings = std::vector<AcDbMPolygon::Ring>;

constexpr double kNothing = std::numeric_limits<double>::infinity();

const Topology::CTopologyStorage& Drawing() {
    return *Topology::CTopologyMultiStorage::Instance()->GetTopology();
}

Box BoxOf(const AcGeExtents2d& extents) {
    return {extents.minX, extents.minY, extents.maxX, extents.maxY};
}

double DistanceToEdge(double x, double y, const Point& a, const Point& b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double along = square > 0 ? ((x - a.x) * dx + (y - a.y) * dy) / square : 0;
    const double t = std::clamp(along, 0.0, 1.0);
    return std::hypot(x - (a.x + t * dx), y - (a.y + t * dy));
}

/// Distance from a point to the area between the rings; 0 inside and on the border.
double DistanceToArea(double x, double y, const Rings& rings) {
    double distance = kNothing;
    bool inside = false;
    for (const AcDbMPolygon::Ring& ring : rings) {
        for (std::size_t i = 0; i < ring.points.size(); ++i) {
            const Point& a = ring.points[i];
            const Point& b = ring.points[(i + 1) % ring.points.size()];
            distance = std::min(distance, DistanceToEdge(x, y, a, b));
            if ((a.y > y) != (b.y > y) && x < a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x)) {
                inside = !inside; // a ray to the right crosses this edge
            }
        }
    }
    return inside ? 0 : distance;
}

} // namespace

CPolygonIndex* CPolygonIndex::Instance() {
    static auto* const instance = new CPolygonIndex;
    return instance;
}

void CPolygonIndex::Changed(int changed) {
    if (changed) {
        m_pIndex.reset();
    }
}

void CPolygonIndex::BuildSTRTree(int rebuild) {
    Changed(rebuild);
    Build();
}

void CPolygonIndex::Build() {
    const Topology::CTopologyStorage& topology = Drawing();
    if (m_pIndex && m_nBuiltFor == topology.GetChangeStamp(EntityPolygon)) {
        return;
    }
    m_entries.clear();
    std::vector<BoxEntry> boxes;
    for (const Topology::CPolygon polygon : topology.GetPolygonVector()) {
        const Box box = BoxOf(polygon.GetExtents());
        m_entries.push_back({polygon.GetObjectId(), polygon.GetSystemId(), box});
        boxes.push_back({box, polygon.GetObjectId().number()}); // the index skips empty boxes
    }
    m_pIndex = std::make_unique<CSpatialIndex>(boxes);
    m_nBuiltFor = topology.GetChangeStamp(EntityPolygon);
}

const std::vector<PolygonIndexEntry>& CPolygonIndex::GetPolygonIndex() {
    Build();
    return m_entries;
}

const PolygonIndexEntry* CPolygonIndex::GetIndexEntry(AcDbObjectId id) {
    Build();
    // The entries are sorted by id.
    const auto hit = std::lower_bound(
        m_entries.begin(), m_entries.end(), id,
        [](const PolygonIndexEntry& entry, AcDbObjectId wanted) { return entry.id < wanted; });
    return hit != m_entries.end() && hit->id == id ? &*hit : nullptr;
}

std::vector<AcDbObjectId> CPolygonIndex::GetPolygonsInBox(const Box& box) {
    Build();
    std::vector<AcDbObjectId> polygons;
    m_pIndex->Query(box, [&](std::uint32_t id) { polygons.emplace_back(id); });
    std::sort(polygons.begin(), polygons.end());
    return polygons;
}

std::vector<AcDbObjectId> CPolygonIndex::GetPolygonsAt(double x, double y) {
    std::vector<AcDbObjectId> polygons = GetPolygonsInBox({x, y, x, y});
    std::erase_if(polygons, [&](AcDbObjectId id) {
        return DistanceToArea(x, y, Drawing().GetPolygonById(id).GetRings()) > 0;
    });
    return polygons;
}

AcDbObjectId CPolygonIndex::GetNearestPolygon(double x, double y, double maxDistance) {
    Build();
    AcDbObjectId nearest;
    double best = maxDistance;
    // A box is never farther away than its contents, so the search can stop at the first box that
    // is farther than the best polygon.
    for (std::size_t count = 8;; count *= 2) {
        const auto hits = m_pIndex->Nearest(x, y, maxDistance, count);
        std::size_t looked = 0;
        for (; looked < hits.size() && hits[looked].distance <= best; ++looked) {
            const AcDbObjectId id(hits[looked].id);
            const double distance = DistanceToArea(x, y, Drawing().GetPolygonById(id).GetRings());
            if (distance < best || (distance == best && nearest.isNull())) {
                best = distance;
                nearest = id;
            }
        }
        if (looked < hits.size() || hits.size() < count) {
            return nearest;
        }
    }
}

} // namespace Orvane::Selection
