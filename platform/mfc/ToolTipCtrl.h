// Tool tips of controls.
#pragma once

#include "platform/mfc/Wnd.h"

/// Holds one tip per window. The windows keep their tips if this object is destroyed.
class PLATFORM_API CToolTipCtrl {
public:
    bool Create(CWnd* pParent);
    bool AddTool(CWnd* pWnd, const wchar_t* text);
    void UpdateTipText(const wchar_t* text, CWnd* pWnd) { AddTool(pWnd, text); }
    CString GetText(const CWnd* pWnd) const;
};

/// The name used by panels.
using CMyToolTipCtrl = CToolTipCtrl;
