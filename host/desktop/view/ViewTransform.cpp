#include "host/desktop/view/ViewTransform.h"

#include <cmath>

namespace Tessaly {

namespace {

constexpr double kDefaultUnitsPerPixel = 0.1;
constexpr double kLeastUnitsPerPixel = 1e-9;
/// The whole coordinate range in a view of a hundred pixels.
constexpr double kMostUnitsPerPixel = 2 * kFarthestPlace / 100;
/// Representable numbers per pixel, so that a pan by one pixel moves the centre.
constexpr double kStepsPerPixel = 4;

double ClampPlace(double value, double fallback) {
    return std::isnan(value) ? fallback : std::clamp(value, -kFarthestPlace, kFarthestPlace);
}

double StepAt(double value) {
    const double size = std::abs(value);
    return std::nextafter(size, kFarthestPlace * 2) - size;
}

} // namespace

bool IsShowable(const AcGeExtents2d& box) {
    return IsShowable(box.minX, box.minY) && IsShowable(box.maxX, box.maxY) &&
           box.minX <= box.maxX && box.minY <= box.maxY;
}

void Include(AcGeExtents2d& box, const AcGeExtents2d& other) {
    if (IsShowable(other)) {
        box.add({other.minX, other.minY});
        box.add({other.maxX, other.maxY});
    }
}

ViewTransform::ViewTransform() : m_unitsPerPixel(kDefaultUnitsPerPixel) {}

void ViewTransform::Resize(int width, int height) {
    m_width = std::max(width, 1);
    m_height = std::max(height, 1);
}

PixelPoint ViewTransform::ToPixel(double x, double y) const {
    return {m_width / 2.0 + (x - m_center.x) / m_unitsPerPixel,
            m_height / 2.0 - (y - m_center.y) / m_unitsPerPixel};
}

PlanePoint ViewTransform::ToDrawing(const PixelPoint& pixel) const {
    return {m_center.x + (pixel.x - m_width / 2.0) * m_unitsPerPixel,
            m_center.y - (pixel.y - m_height / 2.0) * m_unitsPerPixel};
}

AcGeExtents2d ViewTransform::Visible() const {
    return BoxOf({0, 0}, {static_cast<double>(m_width), static_cast<double>(m_height)});
}

AcGeExtents2d ViewTransform::BoxOf(const PixelPoint& corner, const PixelPoint& opposite) const {
    const PlanePoint first = ToDrawing(corner);
    const PlanePoint second = ToDrawing(opposite);
    return {std::min(first.x, second.x), std::min(first.y, second.y), std::max(first.x, second.x),
            std::max(first.y, second.y)};
}

void ViewTransform::Pan(double dx, double dy) {
    Set(m_center.x - dx * m_unitsPerPixel, m_center.y + dy * m_unitsPerPixel, m_unitsPerPixel);
}

void ViewTransform::ZoomAt(const PixelPoint& cursor, double factor) {
    if (!(factor > 0)) {
        return;
    }
    const PlanePoint fixed = ToDrawing(cursor);
    Set(m_center.x, m_center.y, m_unitsPerPixel / factor);
    // Uses the resulting scale, which may have been limited.
    Set(fixed.x - (cursor.x - m_width / 2.0) * m_unitsPerPixel,
        fixed.y + (cursor.y - m_height / 2.0) * m_unitsPerPixel, m_unitsPerPixel);
}

bool ViewTransform::Fit(const AcGeExtents2d& box, double factor, double leastSpan) {
    if (!IsShowable(box) || !(factor > 0)) {
        return false;
    }
    const double width = box.maxX - box.minX;
    const double height = box.maxY - box.minY;
    double unitsPerPixel = std::max(width / m_width, height / m_height) * factor;
    if (unitsPerPixel <= 0) {
        unitsPerPixel = leastSpan / std::min(m_width, m_height) * factor;
    }
    Set(box.minX + width / 2, box.minY + height / 2, unitsPerPixel);
    return true;
}

void ViewTransform::Set(double centerX, double centerY, double unitsPerPixel) {
    m_center.x = ClampPlace(centerX, m_center.x);
    m_center.y = ClampPlace(centerY, m_center.y);
    const double step = StepAt(std::max(std::abs(m_center.x), std::abs(m_center.y)));
    const double least = std::max(kLeastUnitsPerPixel, step * kStepsPerPixel);
    if (!std::isnan(unitsPerPixel)) {
        m_unitsPerPixel = unitsPerPixel;
    }
    m_unitsPerPixel = std::clamp(m_unitsPerPixel, least, kMostUnitsPerPixel);
}

bool operator==(const ViewTransform& left, const ViewTransform& right) {
    return left.m_center.x == right.m_center.x && left.m_center.y == right.m_center.y &&
           left.m_unitsPerPixel == right.m_unitsPerPixel && left.m_width == right.m_width &&
           left.m_height == right.m_height;
}

} // namespace Tessaly
