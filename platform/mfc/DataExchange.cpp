#include "platform/mfc/DataExchange.h"

#include "platform/mfc/Button.h"

void DDX_Control(CDataExchange* pExchange, UINT id, CWnd& control) {
    if (!control.GetSafeHwnd() && !control.SubclassDlgItem(id, pExchange->m_pDlgWnd)) {
        pExchange->Fail();
    }
}

void DDX_Check(CDataExchange* pExchange, UINT id, int& value) {
    auto* const pButton = dynamic_cast<CButton*>(pExchange->m_pDlgWnd->GetDlgItem(id));
    if (!pButton) {
        pExchange->Fail();
    } else if (pExchange->m_bSaveAndValidate) {
        value = pButton->GetCheck();
    } else {
        pButton->SetCheck(value);
    }
}

void DDX_Text(CDataExchange* pExchange, UINT id, CString& value) {
    CWnd* const pControl = pExchange->m_pDlgWnd->GetDlgItem(id);
    if (!pControl) {
        pExchange->Fail();
    } else if (pExchange->m_bSaveAndValidate) {
        value = pControl->GetWindowText();
    } else {
        pControl->SetWindowText(value);
    }
}
