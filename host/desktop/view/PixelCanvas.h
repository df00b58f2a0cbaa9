// Draws thin lines, dots and areas directly into the pixels of an image: about a hundred times
// faster than a general painter for large numbers of them.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/desktop/view/ViewTransform.h"
#include "platform/arx/ColorTable.h"

namespace Tessaly {

/// Right and bottom are exclusive.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool IsEmpty() const { return left >= right || top >= bottom; }
    friend bool operator==(const PixelRect& left, const PixelRect& right) = default;
};

/// Points on the screen; NaN lifts the pen.
using PixelPath = std::span<const PixelPoint>;

/// Draws on 0xffRRGGBB pixels owned by the caller, within the clip. Any coordinates are valid.
class PixelCanvas {
public:
    PixelCanvas() = default;
    /// \param stride pixels per row
    PixelCanvas(std::uint32_t* pPixels, int stride, const PixelRect& clip);

    const PixelRect& Clip() const { return m_clip; }
    void Clear(Rgb color);

    void Dot(float x, float y, Rgb color) {
        if (IsInside(x, y)) {
            At(static_cast<int>(x), static_cast<int>(y)) = color;
        }
    }
    /// Blended with the existing pixel.
    void PaleDot(float x, float y, Rgb color, int share);
    void Square(double x, double y, double size, Rgb color);
    void Disc(double x, double y, double radius, Rgb color);

    /// One pixel wide, without antialiasing.
    void HairLine(float x1, float y1, float x2, float y2, Rgb color) {
        if (!IsInside(x1, y1) || !IsInside(x2, y2)) {
            ClippedLine(x1, y1, x2, y2, color);
            return;
        }
        const int column1 = static_cast<int>(x1);
        const int row1 = static_cast<int>(y1);
        const int column2 = static_cast<int>(x2);
        const int row2 = static_cast<int>(y2);
        // Fast path: most lines of a whole drawing in view are this short.
        if (static_cast<unsigned>(column2 - column1 + 1) <= 2 &&
            static_cast<unsigned>(row2 - row1 + 1) <= 2) {
            At(column1, row1) = color;
            At(column2, row2) = color;
            return;
        }
        InsideLine(x1, y1, x2, y2, color);
    }
    /// Of any width, antialiased.
    void SmoothLine(const PixelPoint& from, const PixelPoint& to, double width, Rgb color);
    void HairPath(PixelPath path, Rgb color);
    void SmoothPath(PixelPath path, double width, Rgb color);
    /// Fills the area surrounded by an odd number of rings.
    /// \param share 255 is opaque
    void FillArea(PixelPath rings, Rgb color, int share);

private:
    std::uint32_t& At(int x, int y) {
        return m_pPixels[static_cast<std::ptrdiff_t>(y) * m_stride + x];
    }
    /// False for NaN.
    bool IsInside(float x, float y) const {
        return x >= m_left && x < m_right && y >= m_top && y < m_bottom;
    }
    void InsideLine(float x1, float y1, float x2, float y2, Rgb color);
    void ClippedLine(double x1, double y1, double x2, double y2, Rgb color);
    /// Clips a line to the clip with a border around it. False if nothing remains.
    bool ClipLine(PixelPoint& from, PixelPoint& to, double border) const;
    void AddCrossings(const PixelPoint& from, const PixelPoint& to);

    std::uint32_t* m_pPixels = nullptr;
    int m_stride = 0;
    PixelRect m_clip;
    float m_left = 0;
    float m_top = 0;
    float m_right = 0;
    float m_bottom = 0;
    std::vector<std::uint64_t> m_crossings; ///< by row, then x
};

} // namespace Tessaly
