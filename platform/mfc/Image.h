// Pictures in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "platform/Api.h"
#include "platform/win/Rect.h"
#include "platform/win/String.h"

/// A picture: a value whose pixels are shared by its copies and never change. A pixel is
/// alpha, red, green and blue from the high byte to the low one, the colours multiplied
/// with alpha. A picture for a dense screen is shown smaller than it has pixels.
class PLATFORM_API CImage {
public:
    CImage() = default;
    /// Takes over width * height pixels, line by line from the top; other lengths give an
    /// empty picture. The density says how many of them go side by side into one of Size.
    CImage(int width, int height, std::span<const std::uint32_t> pixels, double density = 1);
    /// Reads a file of any usual kind, drawings (SVG) included. With a size, the picture
    /// fills it as far as its proportions allow, with as many pixels as a screen of the
    /// density shows in it; 0 is the density of the sharpest screen there is. Empty if the
    /// file cannot be read.
    static CImage FromFile(const CString& path, CSize size = {}, double density = 0);

    bool IsNull() const { return !m_pPixels; }
    /// How large it is shown.
    CSize Size() const;
    CSize PixelSize() const { return m_pixelSize; }
    double Density() const { return m_density; }
    std::span<const std::uint32_t> Pixels() const;
    /// The same without its colours and paler, for what is there and has no part.
    CImage Gray() const;

private:
    CSize m_pixelSize;
    double m_density = 1;
    std::shared_ptr<const std::uint32_t[]> m_pPixels;
};
