// Buttons that show only a picture.
#pragma once

#include "platform/mfc/Button.h"

/// A flat button with a centred picture. The text of its template is not shown.
class PLATFORM_API CORVBitmapButton : public CButton {
public:
    void SetIcon(HICON icon, CSize size) {
        SetWindowText(L"");
        SetFlat(true);
        CButton::SetIcon(icon, size);
    }
};
