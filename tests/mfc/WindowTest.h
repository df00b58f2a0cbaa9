// Base of window tests: uses an in-memory desktop, and fails if windows are left over or the
// toolkit warns.
#pragma once

#include <string>
#include <vector>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include "platform/mfc/Dialog.h"
#include "platform/mfc/NativeWidget.h"
#include "platform/mfc/WinApp.h"

class WindowTest : public testing::Test {
protected:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", Platform());
        AfxSetDesktopMode(true);
        AfxStartToolkit(); // may warn about missing folders
        Warnings().clear();
        qInstallMessageHandler(&NoteWarning);
    }

    virtual QByteArray Platform() const { return "offscreen"; }

    void TearDown() override {
        AfxPumpMessages();
        std::vector<std::string> left;
        for (const QWidget* const pWidget : QApplication::topLevelWidgets()) {
            left.emplace_back(pWidget->metaObject()->className());
        }
        EXPECT_EQ(left, std::vector<std::string>()) << "windows left over";
        EXPECT_EQ(Warnings(), std::vector<std::string>()) << "toolkit warnings";
        qInstallMessageHandler(nullptr);
    }

    static std::vector<std::string>& Warnings() {
        static std::vector<std::string> warnings;
        return warnings;
    }

private:
    static void NoteWarning(QtMsgType type, const QMessageLogContext&, const QString& text) {
        // Ignore warnings about features missing in the in-memory display (a window manager, a
        // keyboard to grab for a menu).
        if (type != QtDebugMsg && type != QtInfoMsg &&
            !text.startsWith(QLatin1String("This plugin does not support"))) {
            Warnings().push_back(text.toStdString());
        }
    }
};

/// The widget that receives mouse and key events.
inline QWidget* WidgetOf(const CWnd& wnd) {
    return static_cast<QWidget*>(NativeClient(wnd));
}
/// The outermost widget, with caption and edges.
inline QWidget* FrameOf(const CWnd& wnd) {
    return static_cast<QWidget*>(NativeWidget(wnd));
}

/// Runs a step from within the next nested event loop.
template <class Step>
void Later(Step step) {
    QTimer::singleShot(0, qApp, step);
}
