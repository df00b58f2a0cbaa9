#include "workspacecore/dialogs/DialogPlaces.h"

#include "workspacecore/dialogs/DialogState.h"

namespace Orvane::Workspace {

namespace {

constexpr int kRollStep = 45;
/// Space that the cascade leaves free at the bottom.
constexpr int kCascadeMargin = 100;

constexpr bool IsNear(int value, int edge, int reach) {
    return value >= edge - reach && value <= edge + reach;
}

} // namespace

ScreenInsets InsetsOfTaskBar(const CRect& taskBar, int screenWidth) {
    ScreenInsets insets;
    if (taskBar.IsRectEmpty()) {
        return insets;
    }
    if (taskBar.left > 0) {
        // Unless its top is 0, the bar counts as one on the left.
        (taskBar.top > 0 ? insets.left : insets.right) = taskBar.Width();
    } else if (taskBar.top > 0) {
        insets.bottom = taskBar.Height();
    } else if (taskBar.right < screenWidth) {
        insets.left = taskBar.Width();
    } else {
        insets.top = taskBar.Height();
    }
    return insets;
}

void SnapStep::ToScreen(CSize screen, const ScreenInsets& insets) {
    if (IsNear(m_place.x, insets.left, m_reach.cx)) {
        m_place.x = insets.left;
    }
    // Above the screen the reach is the same with or without a bar there.
    if (m_place.y >= -m_reach.cy && m_place.y <= insets.top + m_reach.cy) {
        m_place.y = insets.top;
    }
    const int right = screen.cx - insets.right;
    if (IsNear(m_place.x + m_size.cx, right, m_reach.cx)) {
        m_place.x = right - m_size.cx;
    }
    const int bottom = screen.cy - insets.bottom;
    if (IsNear(m_place.y + m_size.cy, bottom, m_reach.cy)) {
        m_place.y = bottom - m_size.cy;
    }
}

void SnapStep::ToDialog(const CRect& other) {
    if (IsNear(m_place.x, other.left, m_reach.cx)) {
        if (IsNear(m_place.y, other.top - m_size.cy, m_reach.cy)) {
            m_place = {other.left, other.top - m_size.cy};
        }
        if (IsNear(m_place.y, other.bottom, m_reach.cy)) {
            m_place = {other.left, other.bottom};
        }
    }
    if (IsNear(m_place.y, other.top, m_reach.cy)) {
        if (IsNear(m_place.x, other.left - m_size.cx, m_reach.cx)) {
            m_place = {other.left - m_size.cx, other.top};
        }
        if (IsNear(m_place.x, other.right, m_reach.cx)) {
            m_place = {other.right, other.top};
        }
    }
}

bool IsRestorable(const CDialogState& state, enmDialogType type, CSize monitor) {
    const bool ownPlace = type == enmDialogFixed || type == enmDialogSizable || IsCascaded(type);
    const bool wasPlaced =
        state.GetLeft() || state.GetTop() || state.GetWidth() || state.GetHeight();
    return ownPlace && wasPlaced && state.GetLeft() < monitor.cx && state.GetTop() < monitor.cy;
}

CPoint DialogCascade::Next(CSize dialog, CSize screen, int monitor) {
    if (dialog.cy + top > screen.cy - kCascadeMargin) {
        top = 0;
        left -= dialog.cx;
        if (left < 0) {
            left = monitor - dialog.cx;
        }
    }
    if (left + dialog.cx > screen.cx) {
        left = screen.cx - dialog.cx;
    }
    const CPoint way(left, top);
    top += dialog.cy + 1;
    return way;
}

std::vector<int> CollapseHeights(int height, int caption) {
    std::vector<int> heights;
    for (; height > caption; height -= kRollStep) {
        heights.push_back(height);
    }
    heights.push_back(caption);
    return heights;
}

std::vector<int> ExpandHeights(int caption, int top, int height) {
    std::vector<int> heights;
    for (int step = caption + top; step < height; step += kRollStep) {
        heights.push_back(step);
    }
    heights.push_back(height);
    return heights;
}

} // namespace Orvane::Workspace
