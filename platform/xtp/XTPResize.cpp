#include "platform/xtp/XTPResize.h"

#include <cmath>

CRect ResizedRect(const CRect& designed, CSize growth, const ResizeAnchors& anchors) {
    const auto moved = [](int at, int by, double part) {
        return at + static_cast<int>(std::floor(by * part));
    };
    return {moved(designed.left, growth.cx, anchors.left),
            moved(designed.top, growth.cy, anchors.top),
            moved(designed.right, growth.cx, anchors.right),
            moved(designed.bottom, growth.cy, anchors.bottom)};
}

void CXTPResize::Init() {
    const CRect client = m_pDialog->GetClientRect();
    m_designed = CSize(client.Width(), client.Height());
    m_entries.clear();
    m_bReady = true;
}

void CXTPResize::SetResize(UINT id, double left, double top, double right, double bottom) {
    if (const CWnd* const pControl = m_pDialog->GetDlgItem(id)) {
        const CRect designed = m_pDialog->ScreenToClient(pControl->GetWindowRect());
        m_entries.push_back({id, designed, {left, top, right, bottom}});
    }
}

void CXTPResize::Size() {
    if (!m_bReady) {
        return;
    }
    const CRect client = m_pDialog->GetClientRect();
    const CSize growth(client.Width() - m_designed.cx, client.Height() - m_designed.cy);
    for (const Entry& entry : m_entries) {
        if (CWnd* const pControl = m_pDialog->GetDlgItem(entry.id)) {
            pControl->MoveWindow(ResizedRect(entry.designed, growth, entry.anchors));
        }
    }
}
