#include "platform/win/Screens.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

std::int64_t SquaredDistance(const CRect& rect, CPoint point) {
    const std::int64_t dx = point.x - std::clamp(point.x, rect.left, rect.right - 1);
    const std::int64_t dy = point.y - std::clamp(point.y, rect.top, rect.bottom - 1);
    return dx * dx + dy * dy;
}

} // namespace

Monitor NearestMonitor(const std::vector<Monitor>& monitors, CPoint point) {
    return *std::min_element(
        monitors.begin(), monitors.end(), [point](const Monitor& a, const Monitor& b) {
            return SquaredDistance(a.full, point) < SquaredDistance(b.full, point);
        });
}

CRect TaskBarOf(const Monitor& monitor) {
    const CRect& full = monitor.full;
    const CRect& work = monitor.work;
    const std::array<CRect, 4> strips = {
        CRect(full.left, work.bottom, full.right, full.bottom),
        CRect(full.left, full.top, full.right, work.top),
        CRect(full.left, full.top, work.left, full.bottom),
        CRect(work.right, full.top, full.right, full.bottom),
    };
    const auto thickness = [](const CRect& strip) {
        return strip.IsRectEmpty() ? 0 : std::min(strip.Width(), strip.Height());
    };
    const CRect thickest =
        *std::max_element(strips.begin(), strips.end(), [&](const CRect& a, const CRect& b) {
            return thickness(a) < thickness(b);
        });
    return thickness(thickest) > 0 ? thickest : CRect();
}

CRect WorkAreaOf(const CRect& monitor, const CRect& all, std::span<const EdgeStrut> struts) {
    CRect work = monitor;
    for (const EdgeStrut& strut : struts) {
        const bool isBeside = strut.edge == enmEdge::Left || strut.edge == enmEdge::Right;
        const int begin = isBeside ? monitor.top : monitor.left;
        const int end = isBeside ? monitor.bottom : monitor.right;
        const int inner = strut.edge == enmEdge::Left    ? all.left + strut.thickness
                          : strut.edge == enmEdge::Right ? all.right - strut.thickness
                          : strut.edge == enmEdge::Top   ? all.top + strut.thickness
                                                         : all.bottom - strut.thickness;
        const bool endsHere = isBeside ? inner > monitor.left && inner < monitor.right
                                       : inner > monitor.top && inner < monitor.bottom;
        if (strut.thickness <= 0 || strut.from >= end || strut.to < begin || !endsHere) {
            continue;
        }
        switch (strut.edge) {
        case enmEdge::Left:
            work.left = std::max(work.left, inner);
            break;
        case enmEdge::Right:
            work.right = std::min(work.right, inner);
            break;
        case enmEdge::Top:
            work.top = std::max(work.top, inner);
            break;
        case enmEdge::Bottom:
            work.bottom = std::min(work.bottom, inner);
            break;
        }
    }
    return work.IsRectEmpty() ? monitor : work;
}
