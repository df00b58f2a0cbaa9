// The panes that dock at the frame of the host.
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

/// Makes panes and finds them by their numbers. Where panes stand is remembered by the host
/// from one run to the next: a pane that is made comes to where the user left the one of its
/// number.
class PLATFORM_API CXTPDockingPaneManager {
public:
    CXTPDockingPaneManager();
    ~CXTPDockingPaneManager();
    CXTPDockingPaneManager(const CXTPDockingPaneManager&) = delete;
    CXTPDockingPaneManager& operator=(const CXTPDockingPaneManager&) = delete;

    /// Docks at a frame: a window that stands for the host's main window (see acedGetAcadFrame).
    /// Zero, and no pane can be made, for any other.
    /// \param bRestoreByMove taken as true: closed panes keep their place
    int InstallDockingPanes(CWnd* pFrame, int bRestoreByMove);

    // How panes look while they are moved. The toolkit has one look for all of it; the host
    // shows where a pane would dock and moves panes gently if any of these asks for it.
    void SetStickyFloatingFrames(int bSticky);
    void SetTheme(int theme);
    void SetThemedFloatingFrames(int bThemed);
    void SetAlphaDockingContext(int bAlpha);
    void SetShowDockingContextStickers(int bShow);
    void SetAnimationDelay(double delay, int steps, int interval);

    /// Null if there is a pane of the number already, or no frame.
    /// \param rect its size counts; its place is where it docks
    /// \param pNeighbour stands beside this one; null: at the side of the frame
    CXTPDockingPane* CreatePane(int id, const CRect& rect, XTPDockingPaneDirection direction,
                                CXTPDockingPane* pNeighbour = nullptr);
    /// Puts a pane into the place of another one, behind which it stands as a tab; a pane that
    /// the user left somewhere else stays there.
    void AttachPane(CXTPDockingPane* pPane, CXTPDockingPane* pNeighbour);
    /// Null if there is none.
    CXTPDockingPane* FindPane(int id) const;
    /// Shows a pane in front of those it shares a place with. Nothing happens for an unknown
    /// number.
    /// \param bFocus non-zero: its window gets the keyboard
    void ShowPane(int id, int bFocus);
    /// Hides all of them.
    void CloseAll();

private:
    void FollowLook();

    struct Impl;
    std::unique_ptr<Impl> m_pImpl;
    std::vector<std::unique_ptr<CXTPDockingPane>> m_panes;
};

/// The host's main window as modules see it. Null in a console.
PLATFORM_API CWnd* acedGetAcadFrame();
/// The window in which the current drawing is shown; null without one.
PLATFORM_API CWnd* acedGetAcadDwgView();
/// For the host. Not owned; null takes it away.
PLATFORM_API void acedSetAcadFrame(CWnd* pFrame);
PLATFORM_API void acedSetAcadDwgView(CWnd* pView);
