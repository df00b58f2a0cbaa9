#include "host/desktop/view/ViewPicture.h"

#include <QPainter>
#include <cmath>
#include <cstring>

namespace Tessaly {

bool ViewPicture::IsShownBy(const ViewTransform& transform, const RenderSettings& settings) const {
    return m_isValid && settings == m_settings && m_image.width() == transform.Width() &&
           m_image.height() == transform.Height();
}

PixelCanvas ViewPicture::Canvas(const PixelRect& clip) {
    auto* const pPixels = reinterpret_cast<std::uint32_t*>(m_image.bits());
    return {pPixels, static_cast<int>(m_image.bytesPerLine() / 4), clip};
}

bool ViewPicture::Update(const DrawingScene& scene, const ViewTransform& transform,
                         const RenderSettings& settings, std::span<const Emphasis> emphasis,
                         Clock::time_point deadline) {
    const bool isSame = IsShownBy(transform, settings);
    if (!isSame || !(transform == m_transform)) {
        if (!isSame || !m_isWhole || !Shift(transform)) {
            StartWhole(scene, transform, settings);
        }
        m_isWhole = false;
    }
    if (m_isWhole) {
        return true;
    }
    ++m_nCalls;
    while (m_renderer.Continue(deadline)) {
        if (m_missing.empty()) {
            m_isWhole = true;
            m_isSlow = m_nCalls > 1;
            m_preview = {};
            return true;
        }
        m_renderer.Start(scene, m_transform, m_settings, m_detail, emphasis,
                         Canvas(m_missing.back()));
        m_missing.pop_back();
    }
    return false;
}

void ViewPicture::StartWhole(const DrawingScene& scene, const ViewTransform& transform,
                             const RenderSettings& settings) {
    KeepPreview();
    if (m_image.width() != transform.Width() || m_image.height() != transform.Height()) {
        m_image = QImage(transform.Width(), transform.Height(), QImage::Format_RGB32);
    }
    m_transform = transform;
    m_settings = settings;
    m_detail = DetailOf(scene, transform);
    m_renderer.Stop();
    m_missing.clear();
    if (!m_image.isNull()) {
        m_missing.push_back({0, 0, m_image.width(), m_image.height()});
    }
    m_isValid = true;
    m_nCalls = 0;
}

void ViewPicture::KeepPreview() {
    if (!m_isSlow) {
        m_preview = {};
    } else if (m_isWhole) {
        m_preview = std::exchange(m_image, {});
        m_previewTransform = m_transform;
    }
}

bool ViewPicture::Shift(const ViewTransform& transform) {
    if (transform.UnitsPerPixel() != m_transform.UnitsPerPixel()) {
        return false;
    }
    const PlanePoint center = m_transform.Center();
    const PixelPoint now = transform.ToPixel(center.x, center.y);
    const double dx = now.x - transform.Width() / 2.0;
    const double dy = now.y - transform.Height() / 2.0;
    constexpr double kNoticed = 0.01;
    const bool isWhole =
        std::abs(dx - std::round(dx)) < kNoticed && std::abs(dy - std::round(dy)) < kNoticed;
    if (!isWhole || !(std::abs(dx) < transform.Width() && std::abs(dy) < transform.Height())) {
        return false;
    }
    const int right = static_cast<int>(std::round(dx));
    const int down = static_cast<int>(std::round(dy));
    MovePixels(right, down);
    m_transform = transform;
    m_nCalls = 0;
    const int width = m_image.width();
    const int height = m_image.height();
    // The newly visible rows, and the columns beside the others.
    const PixelRect rows =
        down > 0 ? PixelRect{0, 0, width, down} : PixelRect{0, height + down, width, height};
    const int top = std::max(down, 0);
    const int bottom = height + std::min(down, 0);
    const PixelRect columns =
        right > 0 ? PixelRect{0, top, right, bottom} : PixelRect{width + right, top, width, bottom};
    for (const PixelRect& part : {rows, columns}) {
        if (!part.IsEmpty()) {
            m_missing.push_back(part);
        }
    }
    return true;
}

void ViewPicture::MovePixels(int dx, int dy) {
    const auto stride = static_cast<std::ptrdiff_t>(m_image.bytesPerLine());
    const int rows = m_image.height() - std::abs(dy);
    const auto bytes = static_cast<std::size_t>(m_image.width() - std::abs(dx)) * 4;
    uchar* const pBits = m_image.bits();
    for (int i = 0; i < rows; ++i) {
        // Ordered so that no row is overwritten before it was moved.
        const int row = dy > 0 ? rows - 1 - i : i;
        const uchar* const pFrom =
            pBits + (row + std::max(-dy, 0)) * stride + std::ptrdiff_t{4} * std::max(-dx, 0);
        uchar* const pTo =
            pBits + (row + std::max(dy, 0)) * stride + std::ptrdiff_t{4} * std::max(dx, 0);
        std::memmove(pTo, pFrom, bytes);
    }
}

void ViewPicture::Paint(QPainter& painter) const {
    if (m_isWhole || m_preview.isNull()) {
        painter.drawImage(0, 0, m_image);
        return;
    }
    const AcGeExtents2d shown = m_previewTransform.Visible();
    const PixelPoint from = m_transform.ToPixel(shown.minX, shown.maxY);
    const PixelPoint to = m_transform.ToPixel(shown.maxX, shown.minY);
    painter.fillRect(0, 0, m_transform.Width(), m_transform.Height(),
                     QColor::fromRgb(m_settings.paper));
    // Too large to paint, and nothing would be recognisable.
    constexpr double kMost = 1e5;
    if (std::abs(from.x) < kMost && std::abs(from.y) < kMost && std::abs(to.x) < kMost &&
        std::abs(to.y) < kMost) {
        painter.drawImage(QRectF(from.x, from.y, to.x - from.x, to.y - from.y), m_preview);
    }
}

} // namespace Tessaly
