// Buttons whose look is chosen by style bits.
#pragma once

#include "platform/mfc/Button.h"

/// Bits of a look. Each of them makes a button flat: its edge shows only while the cursor is
/// over it, and while it is pressed or checked.
inline constexpr UINT BS_XT_FLAT = 0x0040;
inline constexpr UINT BS_XT_RAISED = 0x0010; ///< the edge shows under the cursor
inline constexpr UINT BS_XT_TOGGLE = 0x1000; ///< and while it is checked

/// Hints are those of a CToolTipCtrl; SetIcon takes a size.
class PLATFORM_API CXTButton : public CButton {
public:
    /// \param style bits of a look, 0 for a usual button
    void SetXButtonStyle(UINT style) { SetFlat(style != 0); }
    /// Pixels between the edge and what stands inside.
    void SetBorderGap(int pixels) { SetGap(pixels); }
};
