// Small buttons in the caption of a dialog.
#pragma once

#include "platform/mfc/Image.h"
#include "platform/mfc/Messages.h"

class CWnd;

/// A strip of buttons, with numbers assigned by the caller. Clicks are sent to the dialog as
/// NM_CLICK from a control of that number. The buttons belong to the window, not to the strip.
class PLATFORM_API CCustomBitmapButton {
public:
    /// False for a window without a caption.
    bool Attach(CWnd* pDialog);
    /// False if the number is in use or no dialog is attached.
    bool AddButton(int number);
    bool HasButton(int number) const;
    /// Both return false for an unknown button.
    bool SetBitmap(int number, const CImage& image);
    bool SetTooltip(int number, const wchar_t* text);

private:
    HWND m_dialog = nullptr;
};

/// System metrics, in pixels.
inline constexpr int SM_CXSCREEN = 0; ///< of the primary screen
inline constexpr int SM_CYSCREEN = 1;
inline constexpr int SM_CXFIXEDFRAME = 7;
inline constexpr int SM_CYSIZE = 31; ///< height of a caption
PLATFORM_API int GetSystemMetrics(int index);
