// Kinds of controls, and window styles. Styles of one kind of control do not apply to others.
#pragma once

#include "platform/win/Types.h"

enum class enmControlKind { Button, Static, Edit, ComboBox, ListBox, ListView, TreeView };

inline constexpr UINT WS_CHILD = 0x40000000;
inline constexpr UINT WS_POPUP = 0x80000000;
inline constexpr UINT WS_VISIBLE = 0x10000000;
inline constexpr UINT WS_DISABLED = 0x08000000;
inline constexpr UINT WS_CAPTION = 0x00C00000;    ///< a caption bar with the title
inline constexpr UINT WS_SYSMENU = 0x00080000;    ///< a close box in the caption
inline constexpr UINT WS_THICKFRAME = 0x00040000; ///< resizable borders

inline constexpr UINT BS_PUSHBUTTON = 0x00;
inline constexpr UINT BS_DEFPUSHBUTTON = 0x01; ///< pressed by Enter
inline constexpr UINT BS_CHECKBOX = 0x02;      ///< does not change its check state when clicked
inline constexpr UINT BS_AUTOCHECKBOX = 0x03;
inline constexpr UINT BS_OWNERDRAW = 0x0B; ///< filled with the brush returned by WM_CTLCOLOR
inline constexpr UINT BS_TYPEMASK = 0x0F;
inline constexpr UINT BS_PUSHLIKE = 0x1000;

inline constexpr UINT SS_LEFT = 0x00;
inline constexpr UINT SS_CENTER = 0x01;
inline constexpr UINT SS_RIGHT = 0x02;
inline constexpr UINT SS_ICON = 0x03;
inline constexpr UINT SS_WHITERECT = 0x06;
inline constexpr UINT SS_ETCHEDVERT = 0x11;
inline constexpr UINT SS_TYPEMASK = 0x1F;
inline constexpr UINT SS_NOTIFY = 0x0100; ///< clicks send STN_CLICKED

inline constexpr UINT ES_READONLY = 0x0800;

inline constexpr UINT LBS_SORT = 0x0002;
inline constexpr UINT LBS_EXTENDEDSEL = 0x0800;

inline constexpr UINT LVS_SINGLESEL = 0x0004;
inline constexpr UINT LVS_SHOWSELALWAYS = 0x0008;
inline constexpr UINT LVS_NOCOLUMNHEADER = 0x4000;
inline constexpr UINT LVS_EX_GRIDLINES = 0x0001;
inline constexpr UINT LVS_EX_FULLROWSELECT = 0x0020;

inline constexpr UINT TVS_HASBUTTONS = 0x0001;
inline constexpr UINT TVS_EDITLABELS = 0x0008;
inline constexpr UINT TVS_DISABLEDRAGDROP = 0x0010;
