// What the desktop looks like: monitors, cursor, work area, stacking of windows.
#pragma once

#include <span>
#include <vector>

#include "platform/Api.h"
#include "platform/win/Rect.h"

struct Monitor {
    CRect full;
    CRect work; ///< what panels of the desktop (a task bar) leave free
};

/// The desktop as it is now; every call asks anew. Main thread.
///
/// Places on the screen count from the upper left corner of the primary monitor, here and in
/// everything that windows tell and are told: monitors to its left or above have negative
/// places.
class PLATFORM_API IScreens {
public:
    virtual ~IScreens() = default;
    /// The primary one first; never empty.
    virtual std::vector<Monitor> Monitors() const = 0;
    /// The first of them, for whoever asks at every step of the mouse: its work area may be a
    /// quarter of a second old.
    virtual Monitor Primary() const { return Monitors().front(); }
    virtual CPoint Cursor() const = 0;
    /// The visible top-level windows of this process, from the front to the back.
    virtual std::vector<HWND> Stacking() const = 0;
};

/// The desktop in force: that of the toolkit unless another was set.
PLATFORM_API IScreens& Screens();
/// Sets another desktop and returns the one set before. Not owned; null brings back the
/// toolkit's.
PLATFORM_API IScreens* SetScreens(IScreens* pScreens);

/// The monitor that holds the point, or the nearest one. The list must not be empty.
PLATFORM_API Monitor NearestMonitor(const std::vector<Monitor>& monitors, CPoint point);
/// The strip along one edge that the work area leaves out, the thickest one if there are
/// several; empty without one.
PLATFORM_API CRect TaskBarOf(const Monitor& monitor);

enum class enmEdge { Left, Right, Top, Bottom };

/// Room that a panel asks for at an edge of all monitors together.
struct EdgeStrut {
    enmEdge edge;
    int thickness; ///< from that edge, also where a monitor does not reach it
    int from;      ///< along the edge, both ends included
    int to;
};

/// What the struts leave of a monitor. A strut counts for the monitor in which it ends; one
/// that reaches beyond it stands on another.
/// \param all the rectangle around all monitors
PLATFORM_API CRect WorkAreaOf(const CRect& monitor, const CRect& all,
                              std::span<const EdgeStrut> struts);
