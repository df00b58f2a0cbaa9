// What tests of windows have in common: a desktop in memory, no window left over, no
// warning of the toolkit.
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
        AfxStartToolkit(); // may warn of the folders that this machine lacks
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
        EXPECT_EQ(Warnings(), std::vector<std::string>()) << "warnings of the toolkit";
        qInstallMessageHandler(nullptr);
    }

    static std::vector<std::string>& Warnings() {
        static std::vector<std::string> warnings;
        return warnings;
    }

private:
    static void NoteWarning(QtMsgType type, const QMessageLogContext&, const QString& text) {
        // What the memory display has not got (a window manager, a keyboard to grab for a
        // menu) is no fault of ours.
        if (type != QtDebugMsg && type != QtInfoMsg &&
            !text.startsWith(QLatin1String("This plugin does not support"))) {
            Warnings().push_back(text.toStdString());
        }
    }
};

/// What the user's mouse and keys reach.
inline QWidget* WidgetOf(const CWnd& wnd) {
    return static_cast<QWidget*>(NativeClient(wnd));
}
/// The window with its caption and edges.
inline QWidget* FrameOf(const CWnd& wnd) {
    return static_cast<QWidget*>(NativeWidget(wnd));
}

/// Runs a step once a nested loop waits for the user.
template <class Step>
void Later(Step step) {
    QTimer::singleShot(0, qApp, step);
}
