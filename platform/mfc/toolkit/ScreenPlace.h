// Places on the screen, for modules and for the toolkit. For sources only.
#pragma once

#include "platform/mfc/toolkit/Convert.h"

/// The upper left corner of the primary monitor as the toolkit counts, which begins at that of
/// all monitors together. Modules count from this corner; every place on the screen is
/// translated here and nowhere else.
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
