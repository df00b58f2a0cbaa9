// Texts, lines, icons and frames: controls that only show something.
#pragma once

#include "platform/mfc/Image.h"
#include "platform/mfc/Wnd.h"

class StaticWidget;

/// What it shows depends on its style. Colours come from WM_CTLCOLOR of the parent. With
/// SS_NOTIFY clicks come as STN_CLICKED; otherwise the mouse is its parent's.
class PLATFORM_API CStatic : public CWnd {
public:
    bool Create(const wchar_t* text, UINT style, const CRect& rect, CWnd* pParent, UINT id);
    void SetIcon(HICON icon, CSize size);
    /// Shown in the middle, in its own size, instead of the text; an empty one clears.
    void SetBitmap(const CImage& image);

protected:
    StaticWidget* Widget() const;
};

/// A text, or a bar, with colours of its own. A brush of the parent's WM_CTLCOLOR comes
/// before its background.
class PLATFORM_API CXColorStatic : public CStatic {
public:
    void SetTextColor(COLORREF color);
    void SetBkColor(COLORREF color);
    void SetBold(bool bold = true);
};

/// A text that opens an address.
class PLATFORM_API CXHyperLink : public CXColorStatic {
public:
    void SetURL(const wchar_t* address);
    CString GetURL() const;
    /// What a click does.
    bool Open() const;
};

/// A picture, as large as the control allows.
class PLATFORM_API CPictureBox : public CStatic {
public:
    void SetPicture(const CImage& image);
    void Clear() { SetPicture({}); }
};
