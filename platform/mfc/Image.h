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
/// with alpha.
class PLATFORM_API CImage {
public:
    CImage() = default;
    /// Takes over width * height pixels, line by line from the top; other lengths give an
    /// empty picture.
    CImage(int width, int height, std::span<const std::uint32_t> pixels);
    /// Reads a file of any usual kind, drawings (SVG) included. With a size, the picture
    /// fills it as far as its proportions allow. Empty if the file cannot be read.
    static CImage FromFile(const CString& path, CSize size = {});

    bool IsNull() const { return !m_pPixels; }
    CSize Size() const { return m_size; }
    std::span<const std::uint32_t> Pixels() const;

private:
    CSize m_size;
    std::shared_ptr<const std::uint32_t[]> m_pPixels;
};
