// Descriptions of dialogs and their controls as data.
#pragma once

#include <span>

#include "platform/Api.h"
#include "platform/mfc/Styles.h"
#include "platform/win/Rect.h"

/// Positions and sizes are in dialog units: a quarter of the font's average character width and an
/// eighth of its height.
struct DialogItem {
    enmControlKind kind;
    UINT id;
    int x;
    int y;
    int cx;
    int cy; ///< for a combo box: its height with the list open
    const wchar_t* text = L"";
    UINT style = 0; ///< in addition to WS_CHILD and WS_VISIBLE
    bool invisible = false;
};

/// All pointers must remain valid for the lifetime of the process.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): in the order of the tables
struct DialogTemplate {
    UINT id;
    int cx; ///< of the client area
    int cy;
    const wchar_t* title;
    UINT style; ///< WS_CHILD for a dialog inside another window
    std::span<const DialogItem> items;
    const wchar_t* fontName = L"MS Shell Dlg"; ///< stands for the desktop's own font
    int fontPoints = 8;
};

/// Registers the templates of a module.
PLATFORM_API void AddDialogTemplates(HINSTANCE module, std::span<const DialogTemplate> templates);
/// Finds a template: the module's own, or else that of the module registered last. Null if it does
/// not exist.
PLATFORM_API const DialogTemplate* FindDialogTemplate(HINSTANCE module, UINT id);

/// Converts dialog units to pixels, rounded; the base is the average width and the height of a
/// character.
constexpr CRect FromDialogUnits(const CRect& rect, CSize base) {
    const auto scale = [](int value, int unit, int parts) {
        const int product = value * unit;
        return (product >= 0 ? product + parts / 2 : product - parts / 2) / parts;
    };
    return {scale(rect.left, base.cx, 4), scale(rect.top, base.cy, 8),
            scale(rect.right, base.cx, 4), scale(rect.bottom, base.cy, 8)};
}
