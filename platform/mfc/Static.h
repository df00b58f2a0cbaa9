// Texts, lines, icons and frames: controls for display only.
#pragma once

#include "platform/mfc/Image.h"
#include "platform/mfc/Wnd.h"

class StaticWidget;

/// The style selects the kind of content. Colours are requested from the parent with WM_CTLCOLOR.
/// With SS_NOTIFY, clicks are sent as STN_CLICKED; otherwise mouse events go to the parent.
class PLATFORM_API CStatic : public CWnd {
public:
    bool Create(const wchar_t* text, UINT style, const CRect& rect, CWnd* pParent, UINT id);
    void SetIcon(HICON icon, CSize size);
    /// Shown centred and unscaled instead of the text; an empty one removes it.
    void SetBitmap(const CImage& image);

protected:
    StaticWidget* Widget() const;
};

/// A text or bar with its own colours. A brush from the parent's WM_CTLCOLOR takes precedence over
/// its background.
class PLATFORM_API CXColorStatic : public CStatic {
public:
    void SetTextColor(COLORREF color);
    void SetBkColor(COLORREF color);
    void SetBold(bool bold = true);
};

/// A text that opens an address when clicked.
class PLATFORM_API CXHyperLink : public CXColorStatic {
public:
    void SetURL(const wchar_t* address);
    CString GetURL() const;
    /// Opens the address.
    bool Open() const;
};

/// A picture, scaled to fit the control.
class PLATFORM_API CPictureBox : public CStatic {
public:
    void SetPicture(const CImage& image);
    void Clear() { SetPicture({}); }
};
