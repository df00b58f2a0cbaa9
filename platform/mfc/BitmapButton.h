// Buttons that show a picture and nothing else.
#pragma once

#include "platform/mfc/Button.h"

/// Flat, with the picture in the middle. What its template has as its text is not shown.
class PLATFORM_API CORVBitmapButton : public CButton {
public:
    void SetIcon(HICON icon, CSize size) {
        SetWindowText(L"");
        SetFlat(true);
        CButton::SetIcon(icon, size);
    }
};
