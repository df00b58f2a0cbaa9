// Push buttons and check boxes.
#pragma once

#include "platform/mfc/Image.h"
#include "platform/mfc/Wnd.h"

/// A push button, a check box, or a check box that looks like a push button (BS_PUSHLIKE). With
/// BS_CHECKBOX, the handler must change the check state. Clicks are reported as BN_CLICKED. With
/// BS_OWNERDRAW, the face is filled with the brush returned by WM_CTLCOLOR.
class PLATFORM_API CButton : public CWnd {
public:
    bool Create(const wchar_t* text, UINT style, const CRect& rect, CWnd* pParent, UINT id);

    void SetCheck(int check); ///< 0 or 1
    int GetCheck() const;
    /// A picture before the text, or instead of it if the text is empty.
    void SetIcon(HICON icon, CSize size);
    void SetImage(const CImage& image);
    void SetTooltip(const wchar_t* text);
    /// Shows the edge only under the cursor and while pressed or checked. For push buttons and
    /// check boxes that look like one.
    void SetFlat(bool flat);
    /// Pixels between the edge and the content; pictures are scaled down to fit.
    void SetGap(int pixels);
    /// Simulates a click by the user.
    void Click();
};
