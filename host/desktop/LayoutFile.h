// Where the windows of the desktop were when it was left.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/win/String.h"

namespace Tessaly {

/// Lines of the command line that are kept.
inline constexpr int kMostHistory = 500;

/// A rectangle on the screens, in their common coordinates.
struct ScreenRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const ScreenRect&, const ScreenRect&) = default;
};

/// What is kept from one run to the next. The states of the toolkit are bytes that only it
/// understands.
struct Layout {
    ScreenRect window;
    bool isMaximized = false;
    std::string panes;            ///< state of the docking panes
    std::vector<CString> recent;  ///< commands, the one used last first
    std::vector<CString> history; ///< of the command line, the oldest first
    CString theme;                ///< "light", "dark", or empty for the system's
    friend bool operator==(const Layout&, const Layout&) = default;
};

/// Reads a layout. Nothing for a file that is not there, is cut, or is of another version:
/// a part of a layout is worse than none. Its reason goes to `problem`, empty for a file that
/// is not there.
std::optional<Layout> ReadLayout(const CString& path, CString& problem);
/// Writes beside the file and puts it in its place, so that there is a whole one at any
/// moment. An empty text, or the reason why it was not written.
CString WriteLayout(const CString& path, const Layout& layout);

/// What `ours` and another program's layout make together, both begun from `base`: of each
/// value, ours if we changed it, else the other one's. Lists that both changed are joined.
Layout MergedLayout(const Layout& base, const Layout& ours, const Layout& theirs);

/// Where a window goes on the screens that there are now: at its place if enough of its upper
/// edge can be seen to be caught and the screens together have room for it, otherwise moved, and if
/// need be shrunk, into the nearest work area. The rectangle itself if there is no screen.
ScreenRect OnScreen(const ScreenRect& window, const std::vector<ScreenRect>& workAreas);

} // namespace Tessaly
