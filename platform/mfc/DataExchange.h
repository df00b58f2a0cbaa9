// Moving values between the controls of a dialog and its members.
#pragma once

#include "platform/mfc/Wnd.h"

/// One run of DoDataExchange.
class CDataExchange {
public:
    CDataExchange(CWnd* pDialog, bool save) : m_pDlgWnd(pDialog), m_bSaveAndValidate(save) {}
    /// A value could not be taken.
    void Fail() { m_failed = true; }
    bool Failed() const { return m_failed; }

    CWnd* const m_pDlgWnd;
    const bool m_bSaveAndValidate; ///< from the controls into the members

private:
    bool m_failed = false;
};

/// Has an object stand for a control, the first time it runs. Fails for an unknown id.
PLATFORM_API void DDX_Control(CDataExchange* pExchange, UINT id, CWnd& control);
/// The state of a check box: 0 or 1.
PLATFORM_API void DDX_Check(CDataExchange* pExchange, UINT id, int& value);
PLATFORM_API void DDX_Text(CDataExchange* pExchange, UINT id, CString& value);
