#include "host/desktop/Desktop.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <QRawFont>
#include <QTimer>
#include <cstdio>

#include "host/CommandLines.h"
#include "host/ExitStatus.h"
#include "host/HostCommands.h"
#include "host/Session.h"
#include "host/Texts.h"
#include "host/desktop/DesktopPort.h"
#include "host/desktop/Frame.h"
#include "host/desktop/FrameDisplay.h"
#include "host/desktop/LayoutKeeper.h"
#include "host/desktop/QtTexts.h"
#include "host/desktop/Theme.h"
#include "host/desktop/view/DrawingView.h"
#include "platform/arx/EdPrompt.h"
#include "platform/arx/HostOptions.h"
#include "platform/mfc/WinApp.h"
#include "platform/win/CodePage.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

constexpr const wchar_t* kLayoutFile = L"layout.txt";
constexpr QSize kPictureSize(1600, 1000);
// Of a picture: how long is waited for what is drawn in steps. Milliseconds.
constexpr int kPictureStep = 20;
constexpr int kLongestWait = 30'000;

/// Standard output says nothing in a desktop, but who starts it without a display, or with
/// a wrong option, has to read why nothing is seen.
void Complain(const CString& text) {
    std::fprintf(stderr, "tessaly: %s\n", WideToUtf8(text.View()).c_str());
}

CString LayoutPath() {
    return GetHostOption(kHostOptionSupport) + kLayoutFile;
}

void SaveLayout(LayoutKeeper& keeper) {
    const CString problem = keeper.Save();
    if (!problem.IsEmpty()) {
        // The command line has gone from sight already.
        Complain(Text(Msg::LayoutNotSaved, problem));
    }
}

void RestoreLayout(Frame& frame, const Options& options) {
    CString problem;
    Layout layout;
    if (!options.snapshot) {
        layout = ReadLayout(LayoutPath(), problem).value_or(Layout());
    }
    if (!problem.IsEmpty()) {
        acutPrintf(L"%s\n", problem);
    }
    frame.ApplyLayout(layout);
    if (options.theme) {
        frame.SetThemeOfRun(*options.theme);
    }
}

/// Draws the window without anybody seeing it.
int TakePicture(Frame& frame, const CString& path) {
    // Until what is drawn in steps is all there.
    QElapsedTimer waited;
    waited.start();
    const auto isWhole = [&] {
        const DrawingView* const pView = frame.CurrentView();
        return !pView || pView->IsPictureWhole();
    };
    do {
        QApplication::processEvents(QEventLoop::AllEvents, kPictureStep);
    } while (!isWhole() && waited.elapsed() < kLongestWait);
    if (DrawingView* const pView = frame.CurrentView()) {
        pView->CompletePicture();
    }
    if (!frame.grab().save(ToQt(path.View()))) {
        Complain(Text(Msg::ScreenshotNotSaved));
        return kExitBadUsage;
    }
    return kExitDone;
}

int Run(const Options& options, Frame& frame, DesktopPort& port, Session& session) {
    const bool isOpen = session.Start(options.drawing);
    port.EndLine(); // the last module said its name
    LayoutKeeper keeper(LayoutPath(), [&frame] { return frame.CurrentLayout(); });
    if (!options.snapshot) {
        keeper.Start([](const CString& problem) {
            acutPrintf(L"%s\n", Text(Msg::LayoutNotSaved, problem));
        });
    }
    if (options.first) {
        CommandLines(port).RunScript(*options.first);
    }
    if (options.snapshot) {
        const int status = TakePicture(frame, *options.snapshot);
        session.End();
        return isOpen ? status : kExitCommandFailed;
    }
    const int status = HasQuit() ? kExitDone : QApplication::exec();
    SaveLayout(keeper);
    port.CancelAll();
    session.End();
    return status;
}

} // namespace

int RunDesktop(const Options& options) {
    AfxStartToolkit();
    if (QRawFont::fromFont(QApplication::font()).fontTable("head").isEmpty()) {
        Complain(Text(Msg::NoFont));
    }
    QApplication::setApplicationName(QStringLiteral("Tessaly"));
    Frame frame;
    DesktopPort port(frame, frame.Pane());
    IHostPort* const pBefore = SetHostPort(&port);
    const FrameDisplay display(frame, port);
    if (options.transcript) {
        port.SetTranscript(OpenFile(*options.transcript, "wb"));
    }
    RestoreLayout(frame, options);
    int status = kExitDone;
    {
        Session session;
        if (options.snapshot) {
            frame.resize(kPictureSize);
        }
        frame.show();
        frame.RaiseFloatingPanes();
        status = Run(options, frame, port, session);
    }
    SetHostPort(pBefore);
    return status;
}

} // namespace Tessaly
