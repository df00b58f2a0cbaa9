// Window messages and their parameters.
#pragma once

#include "platform/win/Rect.h"

inline constexpr UINT WM_DESTROY = 0x0002;
inline constexpr UINT WM_SIZE = 0x0005;
inline constexpr UINT WM_PAINT = 0x000F;
inline constexpr UINT WM_CLOSE = 0x0010;
inline constexpr UINT WM_CTLCOLOR = 0x0019;
inline constexpr UINT WM_WINDOWPOSCHANGING = 0x0046;
inline constexpr UINT WM_NOTIFY = 0x004E;
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_COMMAND = 0x0111;
inline constexpr UINT WM_TIMER = 0x0113;
inline constexpr UINT WM_MOUSEMOVE = 0x0200;
inline constexpr UINT WM_LBUTTONUP = 0x0202;
inline constexpr UINT WM_RBUTTONUP = 0x0205;
inline constexpr UINT WM_DROPFILES = 0x0233;
inline constexpr UINT WM_USER = 0x0400;
/// The host asks a dialog whether it keeps the keyboard focus over the drawing.
inline constexpr UINT WM_ACAD_KEEPFOCUS = 0x7101;
/// Not a message: marks map entries for notifications reflected to the control.
inline constexpr UINT kReflectedNotify = 0xBC4E;

/// Codes of WM_COMMAND.
inline constexpr UINT BN_CLICKED = 0;
inline constexpr UINT STN_CLICKED = 0;
inline constexpr UINT CBN_SELCHANGE = 1;

/// Codes of WM_NOTIFY.
inline constexpr UINT NM_CLICK = 0U - 2;
inline constexpr UINT NM_DBLCLK = 0U - 3;
inline constexpr UINT NM_RCLICK = 0U - 5;
inline constexpr UINT NM_CUSTOMDRAW = 0U - 12;
inline constexpr UINT LVN_ITEMCHANGED = 0U - 101;
inline constexpr UINT LVN_ITEMACTIVATE = 0U - 114;
inline constexpr UINT TVN_SELCHANGED = 0U - 402;
inline constexpr UINT TVN_ITEMEXPANDED = 0U - 406;
inline constexpr UINT TVN_BEGINDRAG = 0U - 407;
inline constexpr UINT TVN_BEGINLABELEDIT = 0U - 410;
inline constexpr UINT TVN_ENDLABELEDIT = 0U - 411;

/// Ids of the standard buttons.
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;
inline constexpr UINT IDC_STATIC = 0xFFFF; ///< a control that is never looked up

/// Virtual key codes; letters and digits are their own codes.
inline constexpr int VK_BACK = 0x08;
inline constexpr int VK_TAB = 0x09;
inline constexpr int VK_RETURN = 0x0D;
inline constexpr int VK_SHIFT = 0x10;
inline constexpr int VK_CONTROL = 0x11;
inline constexpr int VK_ESCAPE = 0x1B;
inline constexpr int VK_SPACE = 0x20;
inline constexpr int VK_LEFT = 0x25;
inline constexpr int VK_UP = 0x26;
inline constexpr int VK_RIGHT = 0x27;
inline constexpr int VK_DOWN = 0x28;
inline constexpr int VK_INSERT = 0x2D;
inline constexpr int VK_DELETE = 0x2E;
inline constexpr int VK_F1 = 0x70; ///< and so on up to F12
inline constexpr int VK_OTHER = 0xFF;

/// Flags of SetWindowPos and WINDOWPOS.
inline constexpr UINT SWP_NOSIZE = 0x0001;
inline constexpr UINT SWP_NOMOVE = 0x0002;
inline constexpr UINT SWP_NOZORDER = 0x0004;
inline constexpr UINT SWP_NOACTIVATE = 0x0010;
inline constexpr UINT SWP_SHOWWINDOW = 0x0040;
inline constexpr UINT SWP_HIDEWINDOW = 0x0080;
/// Only in WINDOWPOS: the user moves the window without resizing it.
inline constexpr UINT SWP_USERMOVE = 0x10000;

/// Show commands of windows.
inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOWNORMAL = 1;
inline constexpr int SW_SHOWMINIMIZED = 2;
inline constexpr int SW_SHOWNOACTIVATE = 4;
inline constexpr int SW_SHOW = 5;

/// Kinds of controls for which WM_CTLCOLOR asks for colours.
inline constexpr UINT CTLCOLOR_BTN = 3;
inline constexpr UINT CTLCOLOR_STATIC = 6;

struct MSG {
    HWND hwnd = nullptr;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    CPoint pt; ///< screen position of the cursor when the message was generated
};

/// Requested position of a window; a handler may change it.
struct WINDOWPOS {
    HWND hwnd = nullptr;
    HWND hwndInsertAfter = nullptr;
    int x = 0;
    int y = 0;
    int cx = 0;
    int cy = 0;
    UINT flags = 0;
};
using tagWINDOWPOS = WINDOWPOS;

struct WINDOWPLACEMENT {
    int showCmd = SW_HIDE;
    CRect rcNormalPosition; ///< in screen coordinates, for a child in its parent's
};

/// Common header of all notification data.
struct NMHDR {
    HWND hwndFrom = nullptr;
    UINT idFrom = 0;
    UINT code = 0;
};
using tagNMHDR = NMHDR;

/// Converts a parameter to a pointer.
template <class T>
T* PointerOf(LPARAM value) {
    return reinterpret_cast<T*>(value); // NOLINT(performance-no-int-to-ptr): so messages are
}
/// Packs two numbers into one parameter.
constexpr LPARAM PackInts(int low, int high) {
    return static_cast<LPARAM>(static_cast<std::uint64_t>(static_cast<std::uint32_t>(high)) << 32 |
                               static_cast<std::uint32_t>(low));
}
constexpr int LowInt(LPARAM value) {
    return static_cast<int>(static_cast<std::uint32_t>(value));
}
constexpr int HighInt(LPARAM value) {
    return static_cast<int>(value >> 32);
}
/// Packs the parameter of WM_COMMAND: control id and notification code.
constexpr WPARAM PackCommand(UINT id, UINT code) {
    return static_cast<WPARAM>(id) | static_cast<WPARAM>(code) << 32;
}
constexpr UINT CommandId(WPARAM value) {
    return static_cast<UINT>(value);
}
constexpr UINT CommandCode(WPARAM value) {
    return static_cast<UINT>(value >> 32);
}
