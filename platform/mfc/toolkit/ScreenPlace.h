// Conversion between screen positions of modules and of the toolkit. For sources only.
#pragma once

#include "platform/mfc/toolkit/Convert.h"

/// The upper left corner of the primary monitor in toolkit coordinates, which start at the corner
/// of the combined area of all monitors. Module coordinates start at this corner; all conversions
/// between the two are in this header.
QPoint PrimaryCorner();

inline CPoint ToScreenPoint(const QPoint& point) {
    return ToCPoint(point - PrimaryCorner());
}
inline QPoint FromScreenPoint(POINT point) {
    return ToQPoint(point) + PrimaryCorner();
}
inline CRect ToScreenRect(const QRect& rect) {
    return ToCRect(rect.translated(-PrimaryCorner()));
}
inline QRect FromScreenRect(const CRect& rect) {
    return ToQRect(rect).translated(PrimaryCorner());
}
