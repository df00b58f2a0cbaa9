// Drawing inside the handlers of WM_PAINT, WM_CTLCOLOR and custom draw.
#pragma once

#include <memory>

#include "platform/mfc/Gdi.h"
#include "platform/mfc/Image.h"

class CWnd;

inline constexpr int TRANSPARENT = 1;
inline constexpr int OPAQUE = 2;

/// Flags of DrawText.
inline constexpr UINT DT_LEFT = 0x0000;
inline constexpr UINT DT_CENTER = 0x0001;
inline constexpr UINT DT_RIGHT = 0x0002;
inline constexpr UINT DT_VCENTER = 0x0004;
inline constexpr UINT DT_WORDBREAK = 0x0010;
inline constexpr UINT DT_NOPREFIX = 0x0800; ///< "&" is drawn as such
inline constexpr UINT DT_END_ELLIPSIS = 0x8000;

/// Valid only while its handler runs. Selected objects are not owned.
class PLATFORM_API CDC {
public:
    class Impl;
    explicit CDC(std::unique_ptr<Impl> pImpl);
    ~CDC();
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    COLORREF SetTextColor(COLORREF color);
    COLORREF GetTextColor() const;
    COLORREF SetBkColor(COLORREF color);
    COLORREF GetBkColor() const;
    /// OPAQUE texts are drawn on the background colour.
    int SetBkMode(int mode);
    int GetBkMode() const;

    /// Each returns the previous object; null selects the initial one.
    const CFont* SelectObject(const CFont* pFont);
    const CPen* SelectObject(const CPen* pPen);
    const CBrush* SelectObject(const CBrush* pBrush);
    const CFont* GetCurrentFont() const;

    void DrawText(const wchar_t* text, const CRect& rect, UINT flags);
    void TextOut(int x, int y, const wchar_t* text);
    CSize GetTextExtent(const wchar_t* text) const;
    void FillSolidRect(const CRect& rect, COLORREF color);
    void FillRect(const CRect& rect, const CBrush* pBrush);
    /// Outlined with the pen, filled with the brush.
    void Rectangle(const CRect& rect);
    void DrawImage(int x, int y, const CImage& image);

    Impl& Hidden() { return *m_pImpl; }

protected:
    std::unique_ptr<Impl> m_pImpl;
};

/// The device context of a window; valid only in its WM_PAINT handler.
class PLATFORM_API CPaintDC : public CDC {
public:
    explicit CPaintDC(CWnd* pWnd);
};
