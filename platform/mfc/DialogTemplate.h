// Dialogs as data: what stands where on them.
#pragma once

#include <span>

#include "platform/Api.h"
#include "platform/mfc/Styles.h"
#include "platform/win/Rect.h"

/// Places and sizes are in dialog units: a quarter of the font's mean letter width, an
/// eighth of its height.
struct DialogItem {
    enmControlKind kind;
    UINT id;
    int x;
    int y;
    int cx;
    int cy; ///< of a combo box: its height with the list open
    const wchar_t* text = L"";
    UINT style = 0; ///< beside WS_CHILD and WS_VISIBLE
    bool invisible = false;
};

/// Everything it points to lives as long as the process.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): in the order in which tables read
struct DialogTemplate {
    UINT id;
    int cx; ///< of the client area
    int cy;
    const wchar_t* title;
    UINT style; ///< WS_CHILD for a dialog that lies in another window
    std::span<const DialogItem> items;
    const wchar_t* fontName = L"MS Shell Dlg"; ///< this one means the desktop's own font
    int fontPoints = 8;
};

/// Makes the templates of a module known.
PLATFORM_API void AddDialogTemplates(HINSTANCE module, std::span<const DialogTemplate> templates);
/// The template of an id: the module's own, or else that of the module that added one last.
/// Null for none.
PLATFORM_API const DialogTemplate* FindDialogTemplate(HINSTANCE module, UINT id);

/// Dialog units as pixels, rounded; the base is the mean width and the height of a letter.
constexpr CRect FromDialogUnits(const CRect& rect, CSize base) {
    const auto scale = [](int value, int unit, int parts) {
        const int product = value * unit;
        return (product >= 0 ? product + parts / 2 : product - parts / 2) / parts;
    };
    return {scale(rect.left, base.cx, 4), scale(rect.top, base.cy, 8),
            scale(rect.right, base.cx, 4), scale(rect.bottom, base.cy, 8)};
}
