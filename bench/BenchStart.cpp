// Start of the desktop with a sample drawing, from process start to the first painted frame of the
// drawing: with the workspace, without it, and compared with a bare toolkit window. The difference
// between the first two is the workspace's share.
//
// Each start is a separate process; the kinds alternate, and medians are compared.
#include <QApplication>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "host/Session.h"
#include "host/desktop/DesktopPort.h"
#include "host/desktop/Frame.h"
#include "host/desktop/FrameDisplay.h"
#include "host/desktop/view/DrawingView.h"
#include "platform/arx/HostOptions.h"
#include "platform/mfc/WinApp.h"
#include "platform/win/CodePage.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kTurns = 11;
constexpr const char* kDrawing = "town.gpkg";

/// Notes when a widget is painted for the first time.
class FirstPaint final : public QObject {
public:
    explicit FirstPaint(QWidget& widget) { widget.installEventFilter(this); }
    void Await() const {
        while (!m_isPainted) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

protected:
    bool eventFilter(QObject*, QEvent* pEvent) override {
        m_isPainted = m_isPainted || pEvent->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_isPainted = false;
};

void ShowDesktop(const CString& folder, bool withWorkspace) {
    SetHostOption(kHostOptionSupport, folder);
    SetHostOption(kHostOptionInstall, withWorkspace ? L"" TESSALY_STAGE_DIR "/" : L"/nowhere/");
    AfxSetDesktopMode(true);
    AfxStartToolkit();
    // Not destroyed until the process ends, as in the product.
    auto& frame = *new Tessaly::Frame;
    SetHostPort(&frame.Port());
    new Tessaly::FrameDisplay(frame);
    frame.ApplyLayout({});
    frame.show();
    frame.RaiseFloatingPanes();
    auto& session = *new Tessaly::Session(frame.Port());
    session.Start(folder + CString(Utf8ToWide(kDrawing)));
    FirstPaint(*frame.CurrentView()).Await();
}

void ShowBareWindow() {
    AfxSetDesktopMode(true);
    AfxStartToolkit();
    auto& window = *new QMainWindow;
    auto* const pText = new QPlainTextEdit;
    window.setCentralWidget(pText);
    window.resize(1280, 860);
    const FirstPaint paint(*pText->viewport());
    window.show();
    paint.Await();
}

/// Milliseconds of a start in a separate process.
double Start(const char* program, const char* kind, const std::string& folder) {
    int ends[2];
    if (pipe(ends) != 0) {
        std::abort();
    }
    const auto from = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDOUT_FILENO);
        // The in-memory display warns repeatedly about missing features.
        dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
        execl(program, program, kind, folder.c_str(), nullptr);
        _exit(127);
    }
    close(ends[1]);
    char mark = 0;
    const bool isShown = read(ends[0], &mark, 1) == 1;
    const auto to = Clock::now();
    close(ends[0]);
    waitpid(child, nullptr, 0);
    if (!isShown) {
        std::fprintf(stderr, "BenchStart: a start failed\n");
        std::exit(1);
    }
    return std::chrono::duration<double, std::milli>(to - from).count();
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void MakeDrawing(const fs::path& folder) {
    std::ofstream(folder / "town.scr")
        << "NETWORK_IMPORT\n" TESSALY_SOURCE_DIR "/share/sample/town-water.inp\nTown\nSAVEAS\n"
        << (folder / kDrawing).string() << "\n";
    const std::string command = TESSALY_STAGE_DIR "/tessaly --support " + folder.string() +
                                " --script " + (folder / "town.scr").string() + " > /dev/null";
    if (std::system(command.c_str()) != 0) {
        std::fprintf(stderr, "BenchStart: cannot create the sample drawing\n");
        std::exit(1);
    }
}

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    if (argc == 3) {
        if (std::strcmp(argv[1], "bare") == 0) {
            ShowBareWindow();
        } else {
            ShowDesktop(Utf8ToWide(argv[2]) + L"/", std::strcmp(argv[1], "whole") == 0);
        }
        if (write(STDOUT_FILENO, "x", 1) != 1) {
            _exit(1);
        }
        _exit(0);
    }
    std::string name = (fs::temp_directory_path() / "tessaly-start-XXXXXX").string();
    const fs::path folder = mkdtemp(name.data());
    MakeDrawing(folder);
    constexpr const char* kKinds[] = {"whole", "host", "bare"};
    std::vector<double> times[3];
    for (int turn = 0; turn < kTurns; ++turn) {
        for (int kind = 0; kind < 3; ++kind) {
            times[kind].push_back(Start(argv[0], kKinds[kind], folder.string()));
        }
    }
    fs::remove_all(folder);
    const double whole = Median(times[0]);
    const double host = Median(times[1]);
    const double bare = Median(times[2]);
    std::printf("start to the first frame, milliseconds, median of %d\n", kTurns);
    std::printf("  desktop with the sample drawing  %7.1f\n", whole);
    std::printf("  share of the workspace           %7.1f\n", whole - host);
    std::printf("  a bare window of the toolkit     %7.1f  (%.2f of it)\n", bare, bare / whole);
    return 0;
}
