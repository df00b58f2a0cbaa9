// Placement of dialogs: snapping to edges and to each other, restoring positions, cascading new
// dialogs, collapsing. All in screen pixels.
#pragma once

#include <vector>

#include "platform/win/Rect.h"
#include "workspacecore/Api.h"
#include "workspacecore/dialogs/DialogsTypes.h"

namespace Orvane::Workspace {

class CDialogState;

/// The space that the task bar takes on each side of the primary screen.
struct ScreenInsets {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const ScreenInsets&) const = default;
};

/// Derived from the position of the task bar. All zero for an empty rectangle, which means that
/// there is no task bar.
WORKSPACE_API ScreenInsets InsetsOfTaskBar(const CRect& taskBar, int screenWidth);

/// One step of a dialog being moved by the user. Snaps to the edges of the primary screen first,
/// then to the other dialogs one by one. Each uses the position left by the previous one, so a
/// later one can override an earlier one.
class WORKSPACE_API SnapStep {
public:
    /// \param reach snapping distance, horizontally and vertically, inclusive
    SnapStep(CPoint proposed, CSize size, CSize reach)
        : m_place(proposed), m_size(size), m_reach(reach) {}

    void ToScreen(CSize screen, const ScreenInsets& insets);
    /// Snaps above, below, left or right of another dialog, flush with its left or top edge.
    void ToDialog(const CRect& other);

    CPoint Place() const { return m_place; }

private:
    CPoint m_place;
    CSize m_size;
    CSize m_reach;
};

/// Whether other dialogs snap to dialogs of this type, and new ones of it cascade.
constexpr bool IsCascaded(enmDialogType type) {
    return type == enmDialogFixedCascaded || type == enmDialogSizableCascaded;
}

/// Whether a dialog returns to its saved position.
/// \param monitor size of the monitor under the cursor; its offset is ignored in the comparison
WORKSPACE_API bool IsRestorable(const CDialogState& state, enmDialogType type, CSize monitor);

/// Columns of new dialogs, from the right edge of the primary screen to the left.
struct WORKSPACE_API DialogCascade {
    int top = 0;
    int left = 0;

    /// Offset of the next dialog from its current position; advances the cascade.
    /// \param monitor width of the monitor under the cursor
    CPoint Next(CSize dialog, CSize screen, int monitor);
};

/// Successive window heights while a dialog collapses to its caption or expands again.
WORKSPACE_API std::vector<int> CollapseHeights(int height, int caption);
/// \param top of the window on the screen; it is part of the first height
WORKSPACE_API std::vector<int> ExpandHeights(int caption, int top, int height);

} // namespace Orvane::Workspace
