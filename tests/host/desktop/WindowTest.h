// Base of off-screen window tests. Fails on toolkit warnings and leaked windows.
#pragma once

#include <QApplication>
#include <QString>
#include <QWidget>
#include <gtest/gtest.h>
#include <memory>

#include "tests/support/TestHost.h"

/// Each test runs in a process, and thus with an application, of its own.
class WindowTest : public testing::Test {
protected:
    WindowTest() {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        setenv("XDG_RUNTIME_DIR", m_runtime.Native("").c_str(), 1);
        qInstallMessageHandler(&FailOnWarning);
        m_pApplication = std::make_unique<QApplication>(m_argc, m_argv);
    }
    ~WindowTest() override {
        for (const QWidget* const pWindow : QApplication::topLevelWidgets()) {
            ADD_FAILURE() << "left over: " << pWindow->metaObject()->className();
        }
        m_pApplication.reset();
        qInstallMessageHandler(nullptr);
    }
    WindowTest(const WindowTest&) = delete;
    WindowTest& operator=(const WindowTest&) = delete;

private:
    static void FailOnWarning(QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type != QtDebugMsg && type != QtInfoMsg) {
            ADD_FAILURE() << "the toolkit says: " << text.toStdString();
        }
    }

    TempFolder m_runtime;
    int m_argc = 1;
    char m_name[5] = "test";
    char* m_argv[2] = {m_name, nullptr};
    std::unique_ptr<QApplication> m_pApplication;
};
