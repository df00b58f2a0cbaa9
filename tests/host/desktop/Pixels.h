// A small picture for tests.
#pragma once

#include <cstdlib>
#include <vector>

#include "host/desktop/view/PixelCanvas.h"

inline constexpr Tessaly::Rgb kPaper = 0xff000000;

class Pixels {
public:
    Pixels(int width, int height)
        : m_width(width), m_height(height),
          m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kPaper) {}

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    Tessaly::PixelCanvas Canvas() { return Canvas({0, 0, m_width, m_height}); }
    Tessaly::PixelCanvas Canvas(const Tessaly::PixelRect& clip) {
        return {m_pixels.data(), m_width, clip};
    }
    Tessaly::Rgb At(int x, int y) const {
        return m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                        static_cast<std::size_t>(x)];
    }
    bool IsPaper(int x, int y) const { return At(x, y) == kPaper; }
    int CountInked() const {
        int count = 0;
        for (const Tessaly::Rgb pixel : m_pixels) {
            count += pixel != kPaper;
        }
        return count;
    }
    /// Pixels that differ visibly.
    int CountDifferent(const Pixels& other) const {
        int count = 0;
        for (std::size_t i = 0; i < m_pixels.size(); ++i) {
            count += AreDifferent(m_pixels[i], other.m_pixels[i]);
        }
        return count;
    }
    static bool AreDifferent(Tessaly::Rgb left, Tessaly::Rgb right) {
        constexpr int kHardly = 16;
        for (const unsigned shift : {0U, 8U, 16U}) {
            if (std::abs(static_cast<int>(left >> shift & 255U) -
                         static_cast<int>(right >> shift & 255U)) > kHardly) {
                return true;
            }
        }
        return false;
    }

private:
    int m_width;
    int m_height;
    std::vector<Tessaly::Rgb> m_pixels;
};
