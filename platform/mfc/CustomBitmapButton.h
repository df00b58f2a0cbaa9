// Small buttons on the caption of a dialog.
#pragma once

#include "platform/mfc/Image.h"
#include "platform/mfc/Messages.h"

class CWnd;

/// A strip of buttons, numbered by who adds them. A click comes to the dialog as NM_CLICK
/// from a control of that number. The buttons go with the window; the strip only knows it.
class PLATFORM_API CCustomBitmapButton {
public:
    /// False for a window without a caption.
    bool Attach(CWnd* pDialog);
    /// False if there is such a button already, or nothing to put it on.
    bool AddButton(int number);
    bool HasButton(int number) const;
    /// Both are false without such a button.
    bool SetBitmap(int number, const CImage& image);
    bool SetTooltip(int number, const wchar_t* text);

private:
    HWND m_dialog = nullptr;
};

/// Sizes of the screen and of what windows have around them, in pixels.
inline constexpr int SM_CXSCREEN = 0; ///< of the primary screen
inline constexpr int SM_CYSCREEN = 1;
inline constexpr int SM_CXFIXEDFRAME = 7;
inline constexpr int SM_CYSIZE = 31; ///< the height of a caption
PLATFORM_API int GetSystemMetrics(int index);
