// Where in the drawing a view stands.
#pragma once

#include "platform/arx/GePoint.h"

namespace Tessaly {

/// A place on the screen: x to the right, y down, in pixels of the device from the upper left
/// corner of the view.
struct PixelPoint {
    double x = 0;
    double y = 0;
};

struct PlanePoint {
    double x = 0;
    double y = 0;
};

/// Farthest from zero that something is shown. What lies beyond, and what is not a number,
/// counts as having no place.
inline constexpr double kFarthestPlace = 1e18;

inline bool IsShowable(double coordinate) {
    // False for what is not a number, too.
    return coordinate >= -kFarthestPlace && coordinate <= kFarthestPlace;
}
inline bool IsShowable(double x, double y) {
    return IsShowable(x) && IsShowable(y);
}
/// Not empty, and with corners that have places.
bool IsShowable(const AcGeExtents2d& box);
/// One box grows so that it holds the other, if that is showable.
void Include(AcGeExtents2d& box, const AcGeExtents2d& other);

/// Centre and scale of a view. Whatever is asked of it, its members stay finite, the centre
/// within kFarthestPlace, and the scale such that neighbouring pixels are different places.
class ViewTransform {
public:
    /// Around the origin, some hundred drawing units wide.
    ViewTransform();

    /// Pixels of the device; at least 1. The centre stays.
    void Resize(int width, int height);
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    PlanePoint Center() const { return m_center; }
    double UnitsPerPixel() const { return m_unitsPerPixel; }

    PixelPoint ToPixel(double x, double y) const;
    PlanePoint ToDrawing(const PixelPoint& pixel) const;
    /// What the view shows.
    AcGeExtents2d Visible() const;
    /// What a rectangle of the screen shows, whichever of its corners are given.
    AcGeExtents2d BoxOf(const PixelPoint& corner, const PixelPoint& opposite) const;

    /// The picture moves by so many pixels.
    void Pan(double dx, double dy);
    /// Magnifies, with a factor above 1; what is under the cursor stays there.
    void ZoomAt(const PixelPoint& cursor, double factor);
    /// Shows a box whole, in the middle; a factor of 1.05 leaves five per cent of margin.
    /// False, and nothing changes, if the box is not showable.
    /// \param leastSpan what is shown, in drawing units, of a box without width and height
    bool Fit(const AcGeExtents2d& box, double factor, double leastSpan);

    friend bool operator==(const ViewTransform& left, const ViewTransform& right);

private:
    void Set(double centerX, double centerY, double unitsPerPixel);

    PlanePoint m_center;
    double m_unitsPerPixel;
    int m_width = 1;
    int m_height = 1;
};

} // namespace Tessaly
