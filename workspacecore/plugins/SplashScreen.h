// Progress display while plug-ins are loaded.
#pragma once

namespace Orvane::Workspace {

/// A local of the plug-in manager while it loads. This build has no splash window: Show returns
/// 0, and the caller prints its progress at the command line.
class CSplashScreen {
public:
    /// Non-zero if the window is shown.
    int Show() { return m_bShown; }
    void SetTitle(const wchar_t* /*lpszTitle*/) {}
    void SetProgress(int /*nPercent*/, const wchar_t* /*lpszText*/) {}
    void Close() {}

private:
    int m_bShown = 0;
};

} // namespace Orvane::Workspace
