// Between windows and the widgets of the toolkit, for a host that knows the toolkit.
#pragma once

#include "platform/Api.h"
#include "platform/win/Rect.h"

class CWnd;

/// The widget (a QWidget*) that is moved, shown and laid out; null without a window.
PLATFORM_API void* NativeWidget(const CWnd& wnd);
/// The widget that other windows are placed on, which the mouse and the keys reach.
PLATFORM_API void* NativeClient(const CWnd& wnd);
/// Has an object stand for a widget (a QWidget*) of the host's own, so that it can be a parent
/// and get messages. The widget stays the host's: it decides about its closing, and destroying
/// the window hides the widget only.
PLATFORM_API bool AttachNativeWidget(CWnd& wnd, void* pWidget);
/// The upper left corner of the primary monitor as the toolkit counts; see IScreens.
PLATFORM_API CPoint NativePrimaryCorner();
