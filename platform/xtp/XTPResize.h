// Controls that follow the size of their dialog.
#pragma once

#include <vector>

#include "platform/mfc/Wnd.h"

/// The corners of a control as fractions of what its dialog grows by: 0 stays, 1 follows
/// the right or lower edge.
struct ResizeAnchors {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// Where a control comes to be. Fractions of a pixel are dropped towards the upper left.
PLATFORM_API CRect ResizedRect(const CRect& designed, CSize growth, const ResizeAnchors& anchors);

/// A further base of dialogs whose controls follow. Call Init once the controls are there,
/// set the anchors, and call Size from the handler of WM_SIZE.
class PLATFORM_API CXTPResize {
public:
    explicit CXTPResize(CWnd* pDialog) : m_pDialog(pDialog) {}

    /// Takes the present sizes as the designed ones, and forgets all anchors.
    void Init();
    /// An unknown control is passed over.
    void SetResize(UINT id, double left, double top, double right, double bottom);
    /// Places the controls for the present size. Before Init nothing happens.
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
