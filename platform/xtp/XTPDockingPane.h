// A pane docked at the host's frame.
#pragma once

#include <memory>

#include "platform/mfc/Wnd.h"

/// Created and owned by its manager. Closing a pane only hides it. Operations on a pane whose frame
/// was destroyed do nothing.
class PLATFORM_API CXTPDockingPane {
public:
    ~CXTPDockingPane();
    CXTPDockingPane(const CXTPDockingPane&) = delete;
    CXTPDockingPane& operator=(const CXTPDockingPane&) = delete;

    int GetID() const { return m_nId; }
    void SetTitle(const wchar_t* title);
    CString GetTitle() const;
    /// Shows a window in the pane. From now on the window follows the pane's size and visibility
    /// and is destroyed with the frame, whatever its parent was before. Not owned; the pane becomes
    /// empty when the window is destroyed.
    void Attach(CWnd* pWnd);
    /// Null if the window was destroyed.
    CWnd* GetChild() const;
    /// Minimum size of the pane, in pixels.
    void SetMinTrackSize(CSize size);

    /// Non-zero if the pane is not visible. A pane hidden only because the frame is hidden does not
    /// count as closed.
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
