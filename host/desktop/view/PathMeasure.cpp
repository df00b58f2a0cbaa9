#include "host/desktop/view/PathMeasure.h"

#include <algorithm>
#include <cmath>

namespace Tessaly {

namespace {

bool IsPlace(const PlanePoint& point) {
    return !std::isnan(point.x);
}

double DistanceToSegment(const PlanePoint& from, const PlanePoint& to, const PlanePoint& point) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double square = dx * dx + dy * dy;
    double t = 0;
    if (square > 0) {
        t = std::clamp(((point.x - from.x) * dx + (point.y - from.y) * dy) / square, 0.0, 1.0);
    }
    return std::hypot(from.x + dx * t - point.x, from.y + dy * t - point.y);
}

bool IsInBox(const PlanePoint& point, const AcGeExtents2d& box) {
    return point.x >= box.minX && point.x <= box.maxX && point.y >= box.minY && point.y <= box.maxY;
}

bool SegmentMeetsBox(const PlanePoint& from, const PlanePoint& to, const AcGeExtents2d& box) {
    if (std::max(from.x, to.x) < box.minX || std::min(from.x, to.x) > box.maxX ||
        std::max(from.y, to.y) < box.minY || std::min(from.y, to.y) > box.maxY) {
        return false;
    }
    // The bounding boxes overlap, so they meet unless all corners are on one side of the line.
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const auto side = [&](double x, double y) { return dx * (y - from.y) - dy * (x - from.x); };
    const auto [low, high] = std::minmax({side(box.minX, box.minY), side(box.minX, box.maxY),
                                          side(box.maxX, box.minY), side(box.maxX, box.maxY)});
    return low <= 0 && high >= 0;
}

} // namespace

double DistanceToPath(PlanePath path, const PlanePoint& point) {
    double distance = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (!IsPlace(path[i])) {
            continue;
        }
        const bool hasNext = i + 1 < path.size() && IsPlace(path[i + 1]);
        distance =
            std::min(distance, DistanceToSegment(path[i], hasNext ? path[i + 1] : path[i], point));
    }
    return distance;
}

bool IsInsideRings(PlanePath rings, const PlanePoint& point) {
    bool isInside = false;
    for (std::size_t i = 1; i < rings.size(); ++i) {
        const PlanePoint& from = rings[i - 1];
        const PlanePoint& to = rings[i];
        // False if either point is invalid.
        if ((from.y > point.y) != (to.y > point.y) && IsPlace(from) && IsPlace(to) &&
            point.x < from.x + (to.x - from.x) * (point.y - from.y) / (to.y - from.y)) {
            isInside = !isInside;
        }
    }
    return isInside;
}

bool PathMeetsBox(PlanePath path, const AcGeExtents2d& box) {
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (!IsPlace(path[i])) {
            continue;
        }
        const bool hasNext = i + 1 < path.size() && IsPlace(path[i + 1]);
        if (IsInBox(path[i], box) || (hasNext && SegmentMeetsBox(path[i], path[i + 1], box))) {
            return true;
        }
    }
    return false;
}

bool IsPathInBox(PlanePath path, const AcGeExtents2d& box) {
    return std::all_of(path.begin(), path.end(), [&](const PlanePoint& place) {
        return !IsPlace(place) || IsInBox(place, box);
    });
}

} // namespace Tessaly
