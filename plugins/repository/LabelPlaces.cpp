#include "plugins/repository/LabelPlaces.h"

#include <cmath>

namespace Orvane::Repository {

namespace {

using Ring = std::vector<AcGePoint3d>;

bool IsPlace(const AcGePoint3d& point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

double Distance(const AcGePoint3d& a, const AcGePoint3d& b) {
    return std::hypot(b.x - a.x, b.y - a.y);
}

struct Centre {
    double area = 0;
    AcGePoint3d point;
};

/// Relative to the first point, so that large coordinates do not cost precision.
Centre CentreOfRing(const Ring& ring) {
    Centre centre;
    AcGePoint3d sum;
    AcGePoint3d mean;
    const AcGePoint3d origin = ring.front();
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const AcGePoint3d a{ring[i].x - origin.x, ring[i].y - origin.y};
        const AcGePoint3d& next = ring[(i + 1) % ring.size()];
        const AcGePoint3d b{next.x - origin.x, next.y - origin.y};
        const double cross = a.x * b.y - b.x * a.y;
        centre.area += cross / 2;
        sum.x += (a.x + b.x) * cross;
        sum.y += (a.y + b.y) * cross;
        mean.x += a.x / static_cast<double>(ring.size());
        mean.y += a.y / static_cast<double>(ring.size());
    }
    const bool hasArea = centre.area != 0;
    centre.point.x = origin.x + (hasArea ? sum.x / (6 * centre.area) : mean.x);
    centre.point.y = origin.y + (hasArea ? sum.y / (6 * centre.area) : mean.y);
    return centre;
}

} // namespace

std::optional<AcGePoint3d> MiddleOf(std::span<const AcGePoint3d> line) {
    std::vector<AcGePoint3d> points;
    double length = 0;
    for (const AcGePoint3d& point : line) {
        if (IsPlace(point)) {
            length += points.empty() ? 0 : Distance(points.back(), point);
            points.push_back(point);
        }
    }
    if (points.empty()) {
        return std::nullopt;
    }
    double left = length / 2;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const double step = Distance(points[i - 1], points[i]);
        if (step > 0 && left <= step) {
            const double share = left / step;
            return AcGePoint3d{points[i - 1].x + share * (points[i].x - points[i - 1].x),
                               points[i - 1].y + share * (points[i].y - points[i - 1].y)};
        }
        left -= step;
    }
    return AcGePoint3d{points.back().x, points.back().y};
}

std::optional<AcGePoint3d> CentreOf(const std::vector<AcDbMPolygon::Ring>& rings) {
    std::optional<Centre> best;
    for (const AcDbMPolygon::Ring& ring : rings) {
        if (ring.isHole || ring.points.empty()) {
            continue;
        }
        const Centre centre = CentreOfRing(ring.points);
        if (IsPlace(centre.point) && (!best || std::abs(centre.area) > std::abs(best->area))) {
            best = centre;
        }
    }
    return best ? std::optional(best->point) : std::nullopt;
}

} // namespace Orvane::Repository
