// What stands behind docking panes. For sources only.
#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>

#include "platform/xtp/XTPDockingPaneManager.h"

struct CXTPDockingPane::Impl {
    QPointer<QDockWidget> dock;
    HWND frame = nullptr;
    HWND child = nullptr;
    bool isRestored = false; ///< it came to where the user had left it
};

struct CXTPDockingPaneManager::Impl {
    QPointer<QMainWindow> frame;
    HWND frameWindow = nullptr;
    bool isGentle = false;
};
