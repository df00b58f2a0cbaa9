#include "platform/mfc/ToolTipCtrl.h"

#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/WindowCore.h"

bool CToolTipCtrl::Create(CWnd* pParent) {
    return pParent && pParent->GetSafeHwnd();
}

bool CToolTipCtrl::AddTool(CWnd* pWnd, const wchar_t* text) {
    QWidget* const pWidget = pWnd && pWnd->Core() ? pWnd->Core()->Outer() : nullptr;
    if (pWidget) {
        pWidget->setToolTip(ToQString(text));
    }
    return pWidget != nullptr;
}

CString CToolTipCtrl::GetText(const CWnd* pWnd) const {
    const QWidget* const pWidget = pWnd && pWnd->Core() ? pWnd->Core()->Outer() : nullptr;
    return pWidget ? ToCString(pWidget->toolTip()) : CString();
}
