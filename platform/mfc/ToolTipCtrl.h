// The hints that come up when the cursor rests on a control.
#pragma once

#include "platform/mfc/Wnd.h"

/// One hint for each window that was added. The windows keep their hints without it.
class PLATFORM_API CToolTipCtrl {
public:
    bool Create(CWnd* pParent);
    bool AddTool(CWnd* pWnd, const wchar_t* text);
    void UpdateTipText(const wchar_t* text, CWnd* pWnd) { AddTool(pWnd, text); }
    CString GetText(const CWnd* pWnd) const;
};

/// The name under which panels have it.
using CMyToolTipCtrl = CToolTipCtrl;
