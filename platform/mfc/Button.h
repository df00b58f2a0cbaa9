// Buttons of all kinds.
#pragma once

#include "platform/mfc/Image.h"
#include "platform/mfc/Wnd.h"

/// A push button, a check box, or one that looks like the other (BS_PUSHLIKE). With
/// BS_CHECKBOX a click leaves the check to the handler. A click comes as BN_CLICKED. With
/// BS_OWNERDRAW the face is the brush that WM_CTLCOLOR gives.
class PLATFORM_API CButton : public CWnd {
public:
    bool Create(const wchar_t* text, UINT style, const CRect& rect, CWnd* pParent, UINT id);

    void SetCheck(int check); ///< 0 or 1
    int GetCheck() const;
    /// A picture in front of the text, or in its place if that is empty.
    void SetIcon(HICON icon, CSize size);
    void SetImage(const CImage& image);
    void SetTooltip(const wchar_t* text);
    /// The edge shows only under the cursor and while it is pressed or checked. For push
    /// buttons and check boxes that look like one.
    void SetFlat(bool flat);
    /// Pixels between the edge and what stands inside; a picture is made smaller for it.
    void SetGap(int pixels);
    /// As if the user had clicked.
    void Click();
};
