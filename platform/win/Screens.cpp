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
