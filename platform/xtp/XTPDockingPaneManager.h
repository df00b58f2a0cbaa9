// The panes docked at the host's frame.
#pragma once

#include <memory>
#include <vector>

#include "platform/xtp/XTPDockingPane.h"

enum XTPDockingPaneDirection : int {
    xtpPaneDockTop = 0,
    xtpPaneDockBottom = 1,
    xtpPaneDockLeft = 2,
    xtpPaneDockRight = 3,
};

/// Creates panes and finds them by number. The host remembers their places between runs: a new pane
/// appears where the user left the pane of the same number.
class PLATFORM_API CXTPDockingPaneManager {
public:
    CXTPDockingPaneManager();
    ~CXTPDockingPaneManager();
    CXTPDockingPaneManager(const CXTPDockingPaneManager&) = delete;
    CXTPDockingPaneManager& operator=(const CXTPDockingPaneManager&) = delete;

    /// Sets the frame to dock at, which must be the window of the host's main window (see
    /// acedGetAcadFrame). Returns zero for any other window; panes cannot be created then.
    /// \param bRestoreByMove taken as true: closed panes keep their place
    int InstallDockingPanes(CWnd* pFrame, int bRestoreByMove);

    // Appearance of panes while they are moved. The toolkit has a single option for all of these:
    // the host animates moves and shows the docking target if any of these asks for it.
    void SetStickyFloatingFrames(int bSticky);
    void SetTheme(int theme);
    void SetThemedFloatingFrames(int bThemed);
    void SetAlphaDockingContext(int bAlpha);
    void SetShowDockingContextStickers(int bShow);
    void SetAnimationDelay(double delay, int steps, int interval);

    /// Returns null if the number is in use or there is no frame.
    /// \param rect only its size is used; the place follows from docking
    /// \param pNeighbour pane to dock beside; null docks at the frame's edge
    CXTPDockingPane* CreatePane(int id, const CRect& rect, XTPDockingPaneDirection direction,
                                CXTPDockingPane* pNeighbour = nullptr);
    /// Adds a pane as a tab after another one. A pane that the user left elsewhere stays there.
    void AttachPane(CXTPDockingPane* pPane, CXTPDockingPane* pNeighbour);
    /// Null if the pane does not exist.
    CXTPDockingPane* FindPane(int id) const;
    /// Shows a pane and brings its tab to the front. Does nothing for an unknown number.
    /// \param bFocus non-zero: its window gets the keyboard focus
    void ShowPane(int id, int bFocus);
    void CloseAll();

private:
    void FollowLook();

    struct Impl;
    std::unique_ptr<Impl> m_pImpl;
    std::vector<std::unique_ptr<CXTPDockingPane>> m_panes;
};

/// The host's main window; null in a console.
PLATFORM_API CWnd* acedGetAcadFrame();
/// The window that shows the current drawing; null if there is none.
PLATFORM_API CWnd* acedGetAcadDwgView();
/// Called by the host. Not owned; null removes the window.
PLATFORM_API void acedSetAcadFrame(CWnd* pFrame);
PLATFORM_API void acedSetAcadDwgView(CWnd* pView);
