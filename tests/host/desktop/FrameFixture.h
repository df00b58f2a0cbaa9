// The desktop's window with its session, off screen, for tests of user actions.
#pragma once

#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

#include "host/HostCommands.h"
#include "host/Session.h"
#include "host/desktop/CommandPane.h"
#include "host/desktop/DesktopPort.h"
#include "host/desktop/Frame.h"
#include "host/desktop/FrameDisplay.h"
#include "host/desktop/view/DrawingView.h"
#include "platform/arx/HostOptions.h"
#include "platform/mfc/WinApp.h"
#include "tests/support/TestHost.h"

namespace Tessaly {
inline std::vector<std::string>& Warnings() {
    static std::vector<std::string> warnings;
    return warnings;
}

inline void NoteWarning(QtMsgType type, const QMessageLogContext&, const QString& text) {
    // Warnings caused by the off-screen platform, or by a machine without a session bus.
    if (type != QtDebugMsg && type != QtInfoMsg && !text.startsWith(QLatin1String("This plugin")) &&
        !text.startsWith(QLatin1String("QStandardPaths"))) {
        Warnings().push_back(text.toStdString());
    }
}

class FrameTest : public testing::Test {
protected:
    FrameTest() {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        qInstallMessageHandler(&NoteWarning);
        AfxSetDesktopMode(true);
        AfxStartToolkit();
        SetHostOption(kHostOptionSupport, m_folder.Wide("") + L"/");
        // No modules, only the host.
        SetHostOption(kHostOptionInstall, m_folder.Wide("none/"));
        m_pFrame = std::make_unique<Frame>();
        m_pPort = std::make_unique<DesktopPort>(*m_pFrame, m_pFrame->Pane());
        m_pBefore = SetHostPort(m_pPort.get());
        m_pDisplay = std::make_unique<FrameDisplay>(*m_pFrame, *m_pPort);
        m_pFrame->ApplyLayout({});
        m_pFrame->show();
        m_pSession = std::make_unique<Session>();
        m_pSession->Start({});
        m_pInput = m_pFrame->Pane().findChild<QLineEdit*>();
    }
    ~FrameTest() override {
        m_pSession.reset();
        m_pDisplay.reset();
        SetHostPort(m_pBefore);
        m_pPort.reset();
        m_pFrame.reset();
        EXPECT_EQ(Warnings(), std::vector<std::string>());
        for (const QWidget* const pWindow : QApplication::topLevelWidgets()) {
            ADD_FAILURE() << "left over: " << pWindow->metaObject()->className();
        }
    }
    /// Types a command line as a user does.
    void Type(const char* line) {
        QTest::keyClicks(m_pInput, QString::fromUtf8(line));
        QTest::keyClick(m_pInput, Qt::Key_Return);
        QApplication::processEvents();
    }
    /// Calls back while a command waits in a nested event loop.
    void Later(std::function<void()> call, int after = 20) {
        QTimer::singleShot(after, m_pFrame.get(), std::move(call));
    }
    bool Said(const char* text) const {
        return m_pFrame->Pane().Text().contains(QString::fromUtf8(text));
    }
    QTabWidget& Tabs() const { return *m_pFrame->findChild<QTabWidget*>(); }

    TempFolder m_folder;
    std::unique_ptr<Frame> m_pFrame;
    std::unique_ptr<DesktopPort> m_pPort;
    std::unique_ptr<FrameDisplay> m_pDisplay;
    std::unique_ptr<Session> m_pSession;
    IHostPort* m_pBefore = nullptr;
    QLineEdit* m_pInput = nullptr;
};

/// A horizontal line in the current drawing at height y.
inline AcDbObjectId AddLine(double y) {
    const AcGePoint3d ends[] = {{0, y}, {100, y}};
    return acDocManagerPtr()->curDocument()->database()->appendEntity(
        std::make_unique<AcDbPolyline>(ends));
}

} // namespace Tessaly
