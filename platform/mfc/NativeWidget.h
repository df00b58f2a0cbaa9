// Conversion between windows and toolkit widgets, for hosts that use the toolkit directly.
#pragma once

#include "platform/Api.h"
#include "platform/win/Rect.h"

class CWnd;

/// The outermost widget (a QWidget*), for moving, showing and layout; null without a window.
PLATFORM_API void* NativeWidget(const CWnd& wnd);
/// The inner widget, which receives mouse and key events and is the parent of child windows.
PLATFORM_API void* NativeClient(const CWnd& wnd);
/// Attaches an object to a widget (a QWidget*) of the host, so that it can be a parent and receive
/// messages. The host keeps ownership and control over closing; destroying the window only hides
/// the widget.
PLATFORM_API bool AttachNativeWidget(CWnd& wnd, void* pWidget);
/// The upper left corner of the primary monitor in toolkit coordinates; see IScreens.
PLATFORM_API CPoint NativePrimaryCorner();
