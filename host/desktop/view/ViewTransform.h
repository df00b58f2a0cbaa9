// Position and scale of a view.
#pragma once

#include "platform/arx/GePoint.h"

namespace Tessaly {

/// A position on the screen in device pixels from the upper left corner of the view: x to the
/// right, y down.
struct PixelPoint {
    double x = 0;
    double y = 0;
};

struct PlanePoint {
    double x = 0;
    double y = 0;
};

/// The largest coordinate that is shown. Larger ones and NaN are treated as missing.
inline constexpr double kFarthestPlace = 1e18;

inline bool IsShowable(double coordinate) {
    // Also false for NaN.
    return coordinate >= -kFarthestPlace && coordinate <= kFarthestPlace;
}
inline bool IsShowable(double x, double y) {
    return IsShowable(x) && IsShowable(y);
}
/// Whether the box is not empty and its corners are showable.
bool IsShowable(const AcGeExtents2d& box);
/// Extends a box by another one, if that is showable.
void Include(AcGeExtents2d& box, const AcGeExtents2d& other);

/// Centre and scale of a view. For any input its members stay finite, the centre within
/// kFarthestPlace, and the scale such that neighbouring pixels have different coordinates.
class ViewTransform {
public:
    /// Around the origin, about a hundred drawing units wide.
    ViewTransform();

    /// Device pixels; at least 1. Keeps the centre.
    void Resize(int width, int height);
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    PlanePoint Center() const { return m_center; }
    double UnitsPerPixel() const { return m_unitsPerPixel; }

    PixelPoint ToPixel(double x, double y) const;
    PlanePoint ToDrawing(const PixelPoint& pixel) const;
    /// The visible part of the drawing.
    AcGeExtents2d Visible() const;
    /// The part of the drawing in a screen rectangle, given by any two opposite corners.
    AcGeExtents2d BoxOf(const PixelPoint& corner, const PixelPoint& opposite) const;

    /// Shifts the picture by this many pixels.
    void Pan(double dx, double dy);
    /// Zooms in for factors above 1, keeping the point under the cursor in place.
    void ZoomAt(const PixelPoint& cursor, double factor);
    /// Centres a box and shows it completely; a factor of 1.05 leaves a margin of five per cent.
    /// False, without any change, if the box is not showable.
    /// \param leastSpan drawing units to show around a box without width and height
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
