// One pane that docks at the frame of the host.
#pragma once

#include <memory>

#include "platform/mfc/Wnd.h"

/// Made and owned by its manager; lives as long as that. A pane that the user closes is only
/// hidden. Operations on a pane whose frame has gone do nothing.
class PLATFORM_API CXTPDockingPane {
public:
    ~CXTPDockingPane();
    CXTPDockingPane(const CXTPDockingPane&) = delete;
    CXTPDockingPane& operator=(const CXTPDockingPane&) = delete;

    int GetID() const { return m_nId; }
    void SetTitle(const wchar_t* title);
    CString GetTitle() const;
    /// Shows a window in the pane, which follows the pane's size from now on, shows and hides
    /// with it, and goes with the frame, whoever was its parent before. Not owned; it takes
    /// itself off when it is destroyed.
    void Attach(CWnd* pWnd);
    /// Null once it was destroyed.
    CWnd* GetChild() const;
    /// The pane does not get smaller than that, in pixels.
    void SetMinTrackSize(CSize size);

    /// Non-zero if the pane is not to be seen. One that is hidden together with the whole
    /// frame is not closed.
    int IsClosed() const;
    int IsFloating() const;
    void Hide();
    void Close() { Hide(); }

private:
    friend class CXTPDockingPaneManager;
    struct Impl;
    CXTPDockingPane(int id, std::unique_ptr<Impl> pImpl);

    int m_nId;
    std::unique_ptr<Impl> m_pImpl;
};
