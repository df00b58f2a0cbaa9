// A single-line text input.
#pragma once

#include "platform/mfc/Wnd.h"

class PLATFORM_API CEdit : public CWnd {
public:
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id);
    void SetReadOnly(bool readOnly = true);
    /// \param end position after the last character; -1 for the end of the text
    void SetSel(int start, int end);
    void LimitText(int characters);
};
