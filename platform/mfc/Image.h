// Pictures in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "platform/Api.h"
#include "platform/win/Rect.h"
#include "platform/win/String.h"

/// An immutable picture; copies share its pixels. A pixel is ARGB from the high to the low byte,
/// with premultiplied alpha. Pictures for high-density screens have more pixels than their
/// displayed size.
class PLATFORM_API CImage {
public:
    CImage() = default;
    /// Copies width * height pixels, row by row from the top; any other number gives an empty
    /// picture. The density is the number of pixels per unit of Size.
    CImage(int width, int height, std::span<const std::uint32_t> pixels, double density = 1);
    /// Reads an image file in any common format, including SVG. If a size is given, the picture is
    /// scaled to fit it, keeping its proportions, with the resolution of a screen of the given
    /// density; 0 is the highest density of all screens. Empty if the file cannot be read.
    static CImage FromFile(const CString& path, CSize size = {}, double density = 0);

    bool IsNull() const { return !m_pPixels; }
    /// Displayed size.
    CSize Size() const;
    CSize PixelSize() const { return m_pixelSize; }
    double Density() const { return m_density; }
    std::span<const std::uint32_t> Pixels() const;
    /// A paler version without colours, for disabled items.
    CImage Gray() const;

private:
    CSize m_pixelSize;
    double m_density = 1;
    std::shared_ptr<const std::uint32_t[]> m_pPixels;
};
