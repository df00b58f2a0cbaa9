// Drawing attributes of device contexts, as plain values.
#pragma once

#include "platform/win/String.h"
#include "platform/win/Types.h"

/// Description of a font. A negative height is the character height in pixels; 0 is the default
/// height.
struct LOGFONT {
    int lfHeight = 0;
    int lfWeight = 400;
    bool lfItalic = false;
    bool lfUnderline = false;
    bool lfStrikeOut = false;
    CString lfFaceName;
    bool operator==(const LOGFONT&) const = default;
};

class CFont {
public:
    CFont() = default;
    explicit CFont(const LOGFONT& font) : m_font(font) {}
    void CreateFontIndirect(const LOGFONT* pFont) { m_font = *pFont; }
    void GetLogFont(LOGFONT* pFont) const { *pFont = m_font; }
    const LOGFONT& Get() const { return m_font; }

private:
    LOGFONT m_font;
};

/// A fill colour, or no fill ("hollow").
class CBrush {
public:
    CBrush() = default;
    explicit CBrush(COLORREF color) : m_color(color), m_hollow(false) {}
    void CreateSolidBrush(COLORREF color) { *this = CBrush(color); }
    bool IsHollow() const { return m_hollow; }
    COLORREF Color() const { return m_color; }
    /// The shared hollow brush.
    static const CBrush* Hollow() {
        static const CBrush brush;
        return &brush;
    }

private:
    COLORREF m_color = 0;
    bool m_hollow = true;
};

/// A solid line.
class CPen {
public:
    CPen() = default;
    CPen(int width, COLORREF color) : m_width(width), m_color(color) {}
    int Width() const { return m_width; }
    COLORREF Color() const { return m_color; }

private:
    int m_width = 1;
    COLORREF m_color = 0;
};

inline constexpr int COLOR_WINDOW = 5;
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_HIGHLIGHT = 13;
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
inline constexpr int COLOR_BTNFACE = 15;
/// A colour of the desktop's theme.
PLATFORM_API COLORREF GetSysColor(int index);
