// Buttons whose appearance is chosen by style bits.
#pragma once

#include "platform/mfc/Button.h"

/// Appearance bits. Each makes a button flat: its edge shows only while the cursor is over it, or
/// while it is pressed or checked.
inline constexpr UINT BS_XT_FLAT = 0x0040;
inline constexpr UINT BS_XT_RAISED = 0x0010; ///< edge shown under the cursor
inline constexpr UINT BS_XT_TOGGLE = 0x1000; ///< and while checked

/// Tool tips work as in CToolTipCtrl; SetIcon takes a size.
class PLATFORM_API CXTButton : public CButton {
public:
    /// \param style appearance bits, 0 for a standard button
    void SetXButtonStyle(UINT style) { SetFlat(style != 0); }
    /// Pixels between the edge and the content.
    void SetBorderGap(int pixels) { SetGap(pixels); }
};
