// Points, sizes and rectangles.
#pragma once

#include "platform/win/Types.h"

struct CSize : SIZE {
    constexpr CSize() = default;
    constexpr CSize(int width, int height) : SIZE{width, height} {}
    constexpr CSize(SIZE size) : SIZE(size) {}
};

struct CPoint : POINT {
    constexpr CPoint() = default;
    constexpr CPoint(int left, int top) : POINT{left, top} {}
    constexpr CPoint(POINT point) : POINT(point) {}

    constexpr void Offset(int dx, int dy) {
        x += dx;
        y += dy;
    }
};

struct CRect : RECT {
    constexpr CRect() = default;
    constexpr CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    constexpr CRect(RECT rect) : RECT(rect) {}
    constexpr CRect(CPoint topLeft, CSize size)
        : RECT{topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy} {}

    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr CSize Size() const { return {Width(), Height()}; }
    constexpr CPoint TopLeft() const { return {left, top}; }
    constexpr CPoint CenterPoint() const { return {(left + right) / 2, (top + bottom) / 2}; }
    constexpr bool IsRectEmpty() const { return right <= left || bottom <= top; }
    constexpr bool PtInRect(POINT point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    constexpr void OffsetRect(int dx, int dy) {
        left += dx;
        right += dx;
        top += dy;
        bottom += dy;
    }
    constexpr void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
    constexpr void DeflateRect(int dx, int dy) {
        left += dx;
        right -= dx;
        top += dy;
        bottom -= dy;
    }
};
