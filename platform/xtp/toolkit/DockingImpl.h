// Implementation data of docking panes. For sources only.
#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>

#include "platform/xtp/XTPDockingPaneManager.h"

struct CXTPDockingPane::Impl {
    QPointer<QDockWidget> dock;
    HWND frame = nullptr;
    HWND child = nullptr;
    bool isRestored = false; ///< placed where the user left it in an earlier run
};

struct CXTPDockingPaneManager::Impl {
    QPointer<QMainWindow> frame;
    HWND frameWindow = nullptr;
    bool isGentle = false;
};
