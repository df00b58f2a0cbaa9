// Exchange of values between a dialog's controls and its members.
#pragma once

#include "platform/mfc/Wnd.h"

/// A single run of DoDataExchange.
class CDataExchange {
public:
    CDataExchange(CWnd* pDialog, bool save) : m_pDlgWnd(pDialog), m_bSaveAndValidate(save) {}
    /// Reports that a value is invalid.
    void Fail() { m_failed = true; }
    bool Failed() const { return m_failed; }

    CWnd* const m_pDlgWnd;
    const bool m_bSaveAndValidate; ///< true: from the controls to the members

private:
    bool m_failed = false;
};

/// Attaches an object to a control at the first run. Fails for an unknown id.
PLATFORM_API void DDX_Control(CDataExchange* pExchange, UINT id, CWnd& control);
/// The state of a check box: 0 or 1.
PLATFORM_API void DDX_Check(CDataExchange* pExchange, UINT id, int& value);
PLATFORM_API void DDX_Text(CDataExchange* pExchange, UINT id, CString& value);
