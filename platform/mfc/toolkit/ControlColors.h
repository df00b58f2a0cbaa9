// Requests the colours of a control. For sources only.
#pragma once

#include "platform/mfc/DC.h"
#include "platform/mfc/toolkit/WindowCore.h"

/// Sends WM_CTLCOLOR to the parent, which may set colours of the device context.
inline HBRUSH AskControlColors(WindowCore* pCore, CDC& dc, UINT type) {
    CWnd* const pParent = pCore ? pCore->Parent() : nullptr;
    if (!pParent) {
        return nullptr;
    }
    ControlColorQuery query{&dc, pCore->Object(), type, nullptr};
    pParent->SendMessage(WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&query));
    return query.result;
}
