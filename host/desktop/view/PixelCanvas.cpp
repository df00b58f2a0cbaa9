#include "host/desktop/view/PixelCanvas.h"

#include <algorithm>
#include <cmath>

namespace Tessaly {

namespace {

constexpr int kFixedBits = 16;

/// \param share 0 to 256
void Blend(std::uint32_t& pixel, Rgb color, unsigned share) {
    const std::uint32_t redBlue = pixel & 0xff00ffU;
    const std::uint32_t green = pixel & 0x00ff00U;
    const std::uint32_t newRedBlue = (color & 0xff00ffU) * share + redBlue * (256 - share);
    const std::uint32_t newGreen = (color & 0x00ff00U) * share + green * (256 - share);
    pixel = 0xff000000U | (newRedBlue >> 8U & 0xff00ffU) | (newGreen >> 8U & 0x00ff00U);
}

void BlendCover(std::uint32_t& pixel, Rgb color, double cover) {
    Blend(pixel, color, static_cast<unsigned>(std::clamp(cover, 0.0, 1.0) * 256));
}

/// How much of the pixel from `place` to `place` + 1 a span covers.
double Overlap(int place, double low, double high) {
    return std::min(place + 1.0, high) - std::max<double>(place, low);
}

bool HasPlace(const PixelPoint& point) {
    return !std::isnan(point.x) && !std::isnan(point.y);
}

/// Clamps; NaN becomes the lower end.
double Within(double value, double low, double high) {
    return value > low ? std::min(value, high) : low;
}

/// Clips a line, from t1 to t2, to the inner side of one edge of a rectangle.
bool KeepInside(double distance, double slope, double& t1, double& t2) {
    if (slope == 0) {
        return distance >= 0;
    }
    const double t = -distance / slope;
    (slope > 0 ? t1 : t2) = slope > 0 ? std::max(t1, t) : std::min(t2, t);
    return t1 <= t2;
}

template <class Draw>
void EachSegment(PixelPath path, Draw draw) {
    for (std::size_t i = 1; i < path.size(); ++i) {
        if (HasPlace(path[i - 1]) && HasPlace(path[i])) {
            draw(path[i - 1], path[i]);
        }
    }
}

} // namespace

PixelCanvas::PixelCanvas(std::uint32_t* pPixels, int stride, const PixelRect& clip)
    : m_pPixels(pPixels), m_stride(stride), m_clip(clip), m_left(static_cast<float>(clip.left)),
      m_top(static_cast<float>(clip.top)), m_right(static_cast<float>(clip.right)),
      m_bottom(static_cast<float>(clip.bottom)) {}

void PixelCanvas::Clear(Rgb color) {
    for (int y = m_clip.top; y < m_clip.bottom; ++y) {
        std::fill(&At(m_clip.left, y), &At(m_clip.left, y) + (m_clip.right - m_clip.left), color);
    }
}

void PixelCanvas::PaleDot(float x, float y, Rgb color, int share) {
    if (IsInside(x, y)) {
        Blend(At(static_cast<int>(x), static_cast<int>(y)), color,
              static_cast<unsigned>(share + share / 128));
    }
}

void PixelCanvas::Square(double x, double y, double size, Rgb color) {
    if (!(x > m_left - size && x < m_right + size && y > m_top - size && y < m_bottom + size)) {
        return;
    }
    const int side = std::max(1, static_cast<int>(size));
    const int left = static_cast<int>(std::floor(x - (side - 1) / 2.0));
    const int top = static_cast<int>(std::floor(y - (side - 1) / 2.0));
    const int first = std::max(left, m_clip.left);
    const int last = std::min(left + side, m_clip.right);
    for (int row = std::max(top, m_clip.top); row < std::min(top + side, m_clip.bottom); ++row) {
        for (int column = first; column < last; ++column) {
            At(column, row) = color;
        }
    }
}

void PixelCanvas::Disc(double x, double y, double radius, Rgb color) {
    const double reach = radius + 1;
    if (!(x > m_left - reach && x < m_right + reach && y > m_top - reach && y < m_bottom + reach)) {
        return;
    }
    const int first = std::max(m_clip.left, static_cast<int>(x - reach));
    const int last = std::min(m_clip.right, static_cast<int>(x + reach) + 1);
    const int bottom = std::min(m_clip.bottom, static_cast<int>(y + reach) + 1);
    for (int row = std::max(m_clip.top, static_cast<int>(y - reach)); row < bottom; ++row) {
        for (int column = first; column < last; ++column) {
            const double distance = std::hypot(column + 0.5 - x, row + 0.5 - y);
            BlendCover(At(column, row), color, radius + 0.5 - distance);
        }
    }
}

void PixelCanvas::InsideLine(float x1, float y1, float x2, float y2, Rgb color) {
    const bool isSteep = std::abs(y2 - y1) > std::abs(x2 - x1);
    if (isSteep) {
        std::swap(x1, y1);
        std::swap(x2, y2);
    }
    if (x1 > x2) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    const int first = static_cast<int>(x1);
    const int last = static_cast<int>(x2);
    const std::ptrdiff_t along = isSteep ? m_stride : 1;
    const std::ptrdiff_t aside = isSteep ? 1 : m_stride;
    const auto pixel = [&](int i, std::int64_t j) -> std::uint32_t& {
        return m_pPixels[i * along + j * aside];
    };
    const float slope = x2 > x1 ? (y2 - y1) / (x2 - x1) : 0;
    const float low = std::min(y1, y2);
    const float high = std::max(y1, y2);
    const auto across = [&](int i) { return y1 + (static_cast<float>(i) + 0.5F - x1) * slope; };
    // The centre of the first or last pixel may be beyond the line's end, outside any pixel.
    pixel(first, static_cast<int>(std::clamp(across(first), low, high))) = color;
    pixel(last, static_cast<int>(std::clamp(across(last), low, high))) = color;
    auto place = static_cast<std::int64_t>(across(first + 1) * (1 << kFixedBits));
    const auto step = static_cast<std::int64_t>(slope * (1 << kFixedBits));
    for (int i = first + 1; i < last; ++i, place += step) {
        pixel(i, place >> kFixedBits) = color;
    }
}

bool PixelCanvas::ClipLine(PixelPoint& from, PixelPoint& to, double border) const {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    double t1 = 0;
    double t2 = 1;
    const bool isSeen = KeepInside(from.x - (m_clip.left - border), dx, t1, t2) &&
                        KeepInside(m_clip.right + border - from.x, -dx, t1, t2) &&
                        KeepInside(from.y - (m_clip.top - border), dy, t1, t2) &&
                        KeepInside(m_clip.bottom + border - from.y, -dy, t1, t2);
    if (!isSeen) {
        return false;
    }
    const PixelPoint start = from;
    from = {start.x + dx * t1, start.y + dy * t1};
    if (t2 < 1) {
        to = {start.x + dx * t2, start.y + dy * t2};
    }
    return HasPlace(from) && HasPlace(to);
}

void PixelCanvas::ClippedLine(double x1, double y1, double x2, double y2, Rgb color) {
    const bool isSeen = std::max(x1, x2) >= m_clip.left && std::min(x1, x2) < m_clip.right &&
                        std::max(y1, y2) >= m_clip.top && std::min(y1, y2) < m_clip.bottom;
    if (!isSeen || std::isnan(x1 + y1 + x2 + y2)) {
        return;
    }
    const bool isSteep = std::abs(y2 - y1) > std::abs(x2 - x1);
    if (isSteep) {
        std::swap(x1, y1);
        std::swap(x2, y2);
    }
    if (x1 > x2) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    const int firstAlong = isSteep ? m_clip.top : m_clip.left;
    const int endAlong = isSteep ? m_clip.bottom : m_clip.right;
    const int firstAside = isSteep ? m_clip.left : m_clip.top;
    const int endAside = isSteep ? m_clip.right : m_clip.bottom;
    const double slope = x2 > x1 ? (y2 - y1) / (x2 - x1) : 0;
    // Computes each pixel as if unclipped, so that pieces of a picture fit together.
    const int end = static_cast<int>(Within(std::floor(x2) + 1, firstAlong, endAlong));
    for (int i = static_cast<int>(Within(std::floor(x1), firstAlong, endAlong)); i < end; ++i) {
        const double middle =
            Within(y1 + (i + 0.5 - x1) * slope, std::min(y1, y2), std::max(y1, y2));
        if (middle >= firstAside && middle < endAside) {
            const int j = static_cast<int>(middle);
            (isSteep ? At(j, i) : At(i, j)) = color;
        }
    }
}

void PixelCanvas::SmoothLine(const PixelPoint& start, const PixelPoint& end, double width,
                             Rgb color) {
    PixelPoint from = start;
    PixelPoint to = end;
    if (m_clip.IsEmpty() || !ClipLine(from, to, width + 2)) {
        return;
    }
    const bool isSteep = std::abs(to.y - from.y) > std::abs(to.x - from.x);
    if (isSteep) {
        std::swap(from.x, from.y);
        std::swap(to.x, to.y);
    }
    if (from.x > to.x) {
        std::swap(from, to);
    }
    const double length = to.x - from.x;
    if (length < 1) { // nearly a point: extend it to its width
        const double missing = (std::max(width, 1.0) - length) / 2;
        from.x -= missing;
        to.x += missing;
    }
    const double slope = length > 0 ? (to.y - from.y) / length : 0;
    const double half = width / 2 * std::sqrt(1 + slope * slope);
    const int firstAlong = isSteep ? m_clip.top : m_clip.left;
    const int endAlong = isSteep ? m_clip.bottom : m_clip.right;
    const int firstAside = isSteep ? m_clip.left : m_clip.top;
    const int endAside = isSteep ? m_clip.right : m_clip.bottom;
    const int last = std::min(static_cast<int>(std::ceil(to.x)), endAlong);
    for (int i = std::max(static_cast<int>(std::floor(from.x)), firstAlong); i < last; ++i) {
        const double share = Overlap(i, from.x, to.x);
        const double middle = from.y + (i + 0.5 - from.x) * slope;
        const int bottom = std::min(static_cast<int>(std::ceil(middle + half)), endAside);
        for (int j = std::max(static_cast<int>(std::floor(middle - half)), firstAside); j < bottom;
             ++j) {
            BlendCover(isSteep ? At(j, i) : At(i, j), color,
                       share * Overlap(j, middle - half, middle + half));
        }
    }
}

void PixelCanvas::HairPath(PixelPath path, Rgb color) {
    EachSegment(path, [&](const PixelPoint& from, const PixelPoint& to) {
        const auto x1 = static_cast<float>(from.x);
        const auto y1 = static_cast<float>(from.y);
        const auto x2 = static_cast<float>(to.x);
        const auto y2 = static_cast<float>(to.y);
        if (IsInside(x1, y1) && IsInside(x2, y2)) {
            HairLine(x1, y1, x2, y2, color);
        } else {
            ClippedLine(from.x, from.y, to.x, to.y, color); // float precision may be insufficient
        }
    });
}

void PixelCanvas::SmoothPath(PixelPath path, double width, Rgb color) {
    EachSegment(path, [&](const PixelPoint& from, const PixelPoint& to) {
        SmoothLine(from, to, width, color);
    });
}

void PixelCanvas::AddCrossings(const PixelPoint& from, const PixelPoint& to) {
    const double low = Within(std::min(from.y, to.y), m_clip.top, m_clip.bottom);
    const double high = Within(std::max(from.y, to.y), m_clip.top, m_clip.bottom);
    const double slope = (to.x - from.x) / (to.y - from.y);
    // Rows whose centre the edge crosses, excluding its lower end, so that vertices count once.
    const int end = static_cast<int>(std::ceil(high - 0.5));
    for (int row = static_cast<int>(std::ceil(low - 0.5)); row < end; ++row) {
        const double x = from.x + (row + 0.5 - from.y) * slope;
        const double seen = Within(x, m_clip.left, m_clip.right) - m_clip.left;
        m_crossings.push_back(static_cast<std::uint64_t>(row - m_clip.top) << 32U |
                              static_cast<std::uint64_t>(std::ceil(seen - 0.5)));
    }
}

void PixelCanvas::FillArea(PixelPath rings, Rgb color, int share) {
    m_crossings.clear();
    EachSegment(rings, [this](const PixelPoint& from, const PixelPoint& to) {
        if (from.y != to.y) {
            AddCrossings(from, to);
        }
    });
    std::sort(m_crossings.begin(), m_crossings.end());
    for (std::size_t i = 0; i + 1 < m_crossings.size(); i += 2) {
        const auto row = static_cast<int>(m_crossings[i] >> 32U);
        const auto first = static_cast<int>(m_crossings[i] & 0xffffffffU);
        const auto end = static_cast<int>(m_crossings[i + 1] & 0xffffffffU);
        for (int column = first; column < end; ++column) {
            Blend(At(m_clip.left + column, m_clip.top + row), color,
                  static_cast<unsigned>(share + share / 128));
        }
    }
}

} // namespace Tessaly
