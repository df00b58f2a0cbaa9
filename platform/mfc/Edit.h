// A line of text that the user writes.
#pragma once

#include "platform/mfc/Wnd.h"

class PLATFORM_API CEdit : public CWnd {
public:
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id);
    void SetReadOnly(bool readOnly = true);
    /// \param end behind the last letter; -1 for the end of the text
    void SetSel(int start, int end);
    void LimitText(int characters);
};
