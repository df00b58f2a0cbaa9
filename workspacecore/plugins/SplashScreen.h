// Progress of the load of the plug-ins, on a window of its own where there is one.
#pragma once

namespace Orvane::Workspace {

/// Held on the stack by the plug-in manager for the time of the load. There is no window
/// in this build: Show answers 0 at once, and the caller writes its progress to the
/// command line.
class CSplashScreen {
public:
    /// Non-zero if the window is there.
    int Show() { return m_bShown; }
    void SetTitle(const wchar_t* /*lpszTitle*/) {}
    void SetProgress(int /*nPercent*/, const wchar_t* /*lpszText*/) {}
    void Close() {}

private:
    int m_bShown = 0;
};

} // namespace Orvane::Workspace
