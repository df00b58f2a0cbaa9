// Where dialogs go: sticking to edges and to each other, places from an earlier run, the
// cascade of new ones, rolling up. All in pixels of the screen.
#pragma once

#include <vector>

#include "platform/win/Rect.h"
#include "workspacecore/Api.h"
#include "workspacecore/dialogs/DialogsTypes.h"

namespace Orvane::Workspace {

class CDialogState;

/// How much of each side of the primary screen the task bar takes.
struct ScreenInsets {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const ScreenInsets&) const = default;
};

/// Told from where the bar's corner lies alone. All zero for an empty rectangle, which means
/// that there is no bar.
WORKSPACE_API ScreenInsets InsetsOfTaskBar(const CRect& taskBar, int screenWidth);

/// One step of a dialog's way under the user's hand. The edges of the primary screen come
/// first, then the other dialogs one by one; each works on what those before have made of
/// the place, so a later one may overrule an earlier one.
class WORKSPACE_API SnapStep {
public:
    /// \param reach how near an edge has to be, across and down; a border counts as near
    SnapStep(CPoint proposed, CSize size, CSize reach)
        : m_place(proposed), m_size(size), m_reach(reach) {}

    void ToScreen(CSize screen, const ScreenInsets& insets);
    /// Above, below, left or right of another dialog, flush with its left or top edge.
    void ToDialog(const CRect& other);

    CPoint Place() const { return m_place; }

private:
    CPoint m_place;
    CSize m_size;
    CSize m_reach;
};

/// Whether other dialogs stick to one of this type, and new ones of it cascade.
constexpr bool IsCascaded(enmDialogType type) {
    return type == enmDialogFixedCascaded || type == enmDialogSizableCascaded;
}

/// Whether a dialog goes back to where it stood.
/// \param monitor the size of the monitor under the cursor; the place is compared with the
///     size alone, wherever the monitor lies
WORKSPACE_API bool IsRestorable(const CDialogState& state, enmDialogType type, CSize monitor);

/// Columns of new dialogs, from the right edge of the primary screen to the left.
struct WORKSPACE_API DialogCascade {
    int top = 0;
    int left = 0;

    /// How far the next dialog goes from where it is; the cascade moves on.
    /// \param monitor width of the monitor under the cursor
    CPoint Next(CSize dialog, CSize screen, int monitor);
};

/// Heights of a dialog on its way up to its caption, and down again from there.
WORKSPACE_API std::vector<int> CollapseHeights(int height, int caption);
/// \param top of the window on the screen, which counts into the first height
WORKSPACE_API std::vector<int> ExpandHeights(int caption, int top, int height);

} // namespace Orvane::Workspace
