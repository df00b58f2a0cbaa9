#include "platform/mfc/NativeWidget.h"

#include "platform/mfc/toolkit/ScreenPlace.h"
#include "platform/mfc/toolkit/WindowCore.h"

void* NativeWidget(const CWnd& wnd) {
    return wnd.Core() ? wnd.Core()->Outer() : nullptr;
}

void* NativeClient(const CWnd& wnd) {
    return wnd.Core() ? wnd.Core()->Client() : nullptr;
}

bool AttachNativeWidget(CWnd& wnd, void* pWidget) {
    auto* const pNative = static_cast<QWidget*>(pWidget);
    if (wnd.Core() || !pNative || WindowCore::OfWidget(pNative)) {
        return false;
    }
    WindowCore* const pAround = WindowCore::Around(pNative->parentWidget());
    const UINT style = pNative->isWindow() ? WS_POPUP : WS_CHILD;
    WindowCore::Bind(wnd, pNative, pNative, pAround ? pAround->Object() : nullptr, 0, style);
    return true;
}

CPoint NativePrimaryCorner() {
    return ToCPoint(PrimaryCorner());
}
