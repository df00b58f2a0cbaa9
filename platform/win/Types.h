// Plain values and opaque handles used in interfaces and files. Only the platform knows what a
// handle refers to.
#pragma once

#include <cstdint>

using HINSTANCE = void*; ///< a loaded library; see Library.h
using HICON = void*;     ///< an icon owned by the icon cache of the configuration module

struct WindowHandle;
/// A window. Handles are not pointers and are never reused, so the handle of a destroyed window is
/// simply unknown.
using HWND = WindowHandle*;

using UINT = unsigned int;
using WPARAM = std::uint64_t;
using LPARAM = std::int64_t;
using LRESULT = std::int64_t;
using DWORD_PTR = std::uint64_t;

/// A colour, red in the low byte, then green and blue.
using COLORREF = std::uint32_t;
constexpr COLORREF RGB(unsigned red, unsigned green, unsigned blue) {
    return (red & 0xFFU) | (green & 0xFFU) << 8 | (blue & 0xFFU) << 16;
}

/// Positions and sizes are in logical pixels, to the right and down.
struct POINT {
    int x = 0;
    int y = 0;
    bool operator==(const POINT&) const = default;
};

struct SIZE {
    int cx = 0;
    int cy = 0;
    bool operator==(const SIZE&) const = default;
};

/// right and bottom are exclusive.
struct RECT {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const RECT&) const = default;
};
