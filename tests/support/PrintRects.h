// Prints points and rectangles in messages of failed expectations.
#pragma once

#include <ostream>

#include "platform/win/Rect.h"

inline void PrintTo(const CPoint& point, std::ostream* pOut) {
    *pOut << "(" << point.x << ", " << point.y << ")";
}

inline void PrintTo(const CRect& rect, std::ostream* pOut) {
    *pOut << "(" << rect.left << ", " << rect.top << ") to (" << rect.right << ", " << rect.bottom
          << ")";
}
