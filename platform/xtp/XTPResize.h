// Controls that follow the size of their dialog.
#pragma once

#include <vector>

#include "platform/mfc/Wnd.h"

/// How far each edge of a control follows the growth of its dialog: 0 stays, 1 follows the right or
/// lower edge.
struct ResizeAnchors {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// New rectangle of a control. Coordinates are rounded towards the upper left.
PLATFORM_API CRect ResizedRect(const CRect& designed, CSize growth, const ResizeAnchors& anchors);

/// Additional base class for dialogs with such controls. Call Init once the controls exist, set the
/// anchors, and call Size from the handler of WM_SIZE.
class PLATFORM_API CXTPResize {
public:
    explicit CXTPResize(CWnd* pDialog) : m_pDialog(pDialog) {}

    /// Takes the current sizes as the designed ones and clears all anchors.
    void Init();
    /// Unknown controls are ignored.
    void SetResize(UINT id, double left, double top, double right, double bottom);
    /// Places the controls for the current size. Does nothing before Init.
    void Size();

private:
    struct Entry {
        UINT id;
        CRect designed;
        ResizeAnchors anchors;
    };
    CWnd* m_pDialog;
    CSize m_designed;
    bool m_bReady = false;
    std::vector<Entry> m_entries;
};
