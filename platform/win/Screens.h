// Properties of the desktop: monitors, cursor, work area, stacking order of windows.
#pragma once

#include <span>
#include <vector>

#include "platform/Api.h"
#include "platform/win/Rect.h"

struct Monitor {
    CRect full;
    CRect work; ///< excludes desktop panels such as task bars
};

/// The current state of the desktop; every call queries it again. Main thread only.
///
/// Screen positions are relative to the upper left corner of the primary monitor, here and in all
/// window functions and messages: monitors to its left or above have negative positions.
class PLATFORM_API IScreens {
public:
    virtual ~IScreens() = default;
    /// The primary one first; never empty.
    virtual std::vector<Monitor> Monitors() const = 0;
    /// The primary monitor, for callers that ask at every mouse move: its work area may be up to a
    /// quarter of a second old.
    virtual Monitor Primary() const { return Monitors().front(); }
    virtual CPoint Cursor() const = 0;
    /// The visible top-level windows of this process, front to back.
    virtual std::vector<HWND> Stacking() const = 0;
};

/// The desktop in use: the toolkit's unless another was set.
PLATFORM_API IScreens& Screens();
/// Sets the desktop and returns the previous one. Not owned; null restores the toolkit's.
PLATFORM_API IScreens* SetScreens(IScreens* pScreens);

/// The monitor that holds the point, or the nearest one. The list must not be empty.
PLATFORM_API Monitor NearestMonitor(const std::vector<Monitor>& monitors, CPoint point);
/// The strip along one edge that the work area excludes, the thickest if there are several; empty
/// if there is none.
PLATFORM_API CRect TaskBarOf(const Monitor& monitor);

enum class enmEdge { Left, Right, Top, Bottom };

/// Space reserved by a panel at an edge of the combined area of all monitors.
struct EdgeStrut {
    enmEdge edge;
    int thickness; ///< measured from that edge, even where a monitor does not reach it
    int from;      ///< along the edge, both ends included
    int to;
};

/// The part of a monitor that the struts leave free. A strut applies to the monitor in which it
/// ends; one that extends beyond it belongs to another monitor.
/// \param all the bounding rectangle of all monitors
PLATFORM_API CRect WorkAreaOf(const CRect& monitor, const CRect& all,
                              std::span<const EdgeStrut> struts);
