// Time and allocations for one mouse step with a dialog among 200 others that attract it. Then the
// time from the first request for a dialog to its first painted frame, compared with a bare toolkit
// dialog with the same controls.
//
//   BenchDialogs [dialogs [runs]]
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <algorithm>
#include <boost/make_shared.hpp>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include "platform/arx/HostOptions.h"
#include "platform/mfc/ComboBox.h"
#include "platform/mfc/ListCtrl.h"
#include "platform/mfc/NativeWidget.h"
#include "platform/mfc/TreeCtrl.h"
#include "platform/mfc/WinApp.h"
#include "platform/win/CodePage.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/dialogs/WsBaseDialog.h"

// Counts all allocations of the process, including the toolkit's.
namespace {
long g_allocations = 0;
}
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* pBlock, std::size_t size);
void* malloc(std::size_t size) {
    ++g_allocations;
    return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
    ++g_allocations;
    return __libc_calloc(count, size);
}
void* realloc(void* pBlock, std::size_t size) {
    ++g_allocations;
    return __libc_realloc(pBlock, size);
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

using namespace Orvane;
using namespace Orvane::Workspace;
using Clock = std::chrono::steady_clock;

constexpr int kSteps = 20'000;
constexpr int kEntries = 10;

double Microseconds(Clock::duration time) {
    return std::chrono::duration<double, std::micro>(time).count();
}

template <class T>
T Quantile(std::vector<T>& values, double part) {
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

constexpr UINT kSmall = 900;
constexpr UINT kLarge = 901;
constexpr DialogItem kItems[] = {
    {enmControlKind::Static, 1, 7, 7, 60, 10, L"Name"},
    {enmControlKind::Edit, 2, 70, 7, 120, 14},
    {enmControlKind::Static, 3, 7, 25, 60, 10, L"Kind"},
    {enmControlKind::ComboBox, 4, 70, 25, 120, 100},
    {enmControlKind::Static, 5, 7, 43, 60, 10, L"Layer"},
    {enmControlKind::ComboBox, 6, 70, 43, 120, 100},
    {enmControlKind::Button, 7, 7, 61, 90, 12, L"Closed", BS_AUTOCHECKBOX},
    {enmControlKind::Button, 8, 100, 61, 90, 12, L"Visible", BS_AUTOCHECKBOX},
    {enmControlKind::Edit, 9, 7, 76, 60, 14},
    {enmControlKind::Edit, 10, 70, 76, 60, 14},
    {enmControlKind::Edit, 11, 133, 76, 57, 14},
    {enmControlKind::ListView, 12, 7, 94, 183, 60, L"", LVS_SHOWSELALWAYS},
    {enmControlKind::TreeView, 13, 7, 158, 183, 60, L"", TVS_HASBUTTONS},
    {enmControlKind::Button, 14, 7, 222, 50, 14, L"OK", BS_DEFPUSHBUTTON},
    {enmControlKind::Button, 15, 70, 222, 50, 14, L"Cancel"},
    {enmControlKind::Button, 16, 133, 222, 50, 14, L"Help"},
};
constexpr DialogTemplate kTemplates[] = {
    {kSmall, 100, 50, L"Dialog", WS_POPUP | WS_CAPTION | WS_SYSMENU, {}},
    {kLarge, 197, 243, L"Dialog", WS_POPUP | WS_CAPTION | WS_SYSMENU, kItems},
};

class Dialog final : public CWsBaseDialog {
public:
    explicit Dialog(const wchar_t* id)
        : CWsBaseDialog(0, id, enmDialogFixedCascaded, 1, 1, 1, nullptr, nullptr, 7) {}
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    ~Dialog() override {
        CWsManager::Instance()->UnregisterWsListener(this);
        DestroyWindow();
    }

    /// Fills the controls with their content.
    void Fill() {
        for (const UINT id : {4U, 6U}) {
            auto& combo = dynamic_cast<CComboBox&>(*GetDlgItem(id));
            for (int i = 0; i < kEntries; ++i) {
                combo.AddString(L"Entry");
            }
            GetSavedComboState(combo, L"combo", 0);
        }
        auto& list = dynamic_cast<CListCtrl&>(*GetDlgItem(12));
        list.InsertColumn(0, L"Name", 0, 150);
        auto& tree = dynamic_cast<CTreeCtrl&>(*GetDlgItem(13));
        for (int i = 0; i < kEntries; ++i) {
            list.InsertItem(i, L"Entry");
            tree.InsertItem(L"Entry");
        }
    }
};

class Factory final : public IWsDialogFactory {
public:
    CWsBaseDialog* CreateWsDialog(const wchar_t* id) override {
        m_dialog = std::make_unique<Dialog>(id);
        m_dialog->Create(kLarge);
        m_dialog->Fill();
        return m_dialog.get();
    }
    int DeleteWsDialog(const wchar_t*) override {
        m_dialog.reset();
        return 1;
    }
    void GetAllDialogIds(std::vector<CString>&) override {}

private:
    std::unique_ptr<Dialog> m_dialog;
};

/// Path of a mouse across the screen and its edges, in diagonal steps.
CPoint PlaceOnWay(int step) {
    return {(step * 7) % 2000 - 60, (step * 3) % 1200 - 60};
}

bool Snapping(int count) {
    std::vector<std::unique_ptr<Dialog>> dialogs;
    for (int i = 0; i < count; ++i) {
        dialogs.push_back(std::make_unique<Dialog>(FormatText(L"ORVZ_DIALOG_%04d", i).c_str()));
        Dialog& dialog = *dialogs.back();
        dialog.Create(kSmall);
        dialog.MoveWindow(CRect(CPoint(40 + i * 83 % 1600, 30 + i * 47 % 900), CSize(260, 140)));
        dialog.ShowWindow(SW_SHOW);
    }
    Dialog moved(L"ORVZ_DIALOG_MOVED");
    moved.Create(kSmall);
    moved.ShowWindow(SW_SHOW);
    AfxPumpMessages();

    std::vector<double> times;
    std::vector<long> allocations;
    times.reserve(kSteps);
    allocations.reserve(kSteps);
    int stuck = 0;
    for (int step = 0; step < kSteps; ++step) {
        const CPoint wanted = PlaceOnWay(step);
        WINDOWPOS place;
        place.hwnd = moved.GetSafeHwnd();
        place.x = wanted.x;
        place.y = wanted.y;
        place.flags = SWP_NOSIZE | SWP_NOZORDER | SWP_USERMOVE;
        const long before = g_allocations;
        const auto begin = Clock::now();
        moved.SendMessage(WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&place));
        times.push_back(Microseconds(Clock::now() - begin));
        allocations.push_back(g_allocations - before);
        stuck += place.x != wanted.x || place.y != wanted.y;
    }
    const long most = *std::max_element(allocations.begin(), allocations.end());
    const double median = Quantile(times, 0.5);
    std::printf("a step among %d dialogs: %.2f us median, %.2f us for 99 of 100, %ld allocations "
                "at most; %d of %d stuck\n",
                count, median, Quantile(times, 0.99), most, stuck, kSteps);
    return median <= 20 && most == 0;
}

/// Notes when a window is painted for the first time.
class FirstPaint final : public QObject {
public:
    FirstPaint() { qApp->installEventFilter(this); }
    void Await() {
        while (!m_painted) {
            QApplication::processEvents();
        }
    }

protected:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override {
        // An update request paints and flushes at once.
        if (pEvent->type() == QEvent::Paint && pObject->isWidgetType()) {
            m_painted = true;
        }
        return false;
    }

private:
    bool m_painted = false;
};

struct Frame {
    double shown;   ///< until it was requested to be visible
    double painted; ///< until it was painted
};

Frame Workspace() {
    FirstPaint paint;
    const auto begin = Clock::now();
    CWsBaseDialog* const pDialog = CWsManager::Instance()->GetDlgById(L"FIRST");
    CWsManager::Instance()->DlgMgr()->SetNewWindowPosition(pDialog);
    pDialog->ShowWindow(SW_SHOW);
    const double shown = Microseconds(Clock::now() - begin);
    paint.Await();
    const double painted = Microseconds(Clock::now() - begin);
    CWsManager::Instance()->DlgMgr()->DeleteDlgById(L"FIRST");
    AfxPumpMessages();
    return {shown / 1000, painted / 1000};
}

QWidget* BareControl(const DialogItem& item, QWidget* pParent) {
    switch (item.kind) {
    case enmControlKind::Static:
        return new QLabel(QString::fromWCharArray(item.text), pParent);
    case enmControlKind::Edit:
        return new QLineEdit(pParent);
    case enmControlKind::ComboBox: {
        auto* const pCombo = new QComboBox(pParent);
        for (int i = 0; i < kEntries; ++i) {
            pCombo->addItem(QStringLiteral("Entry"));
        }
        return pCombo;
    }
    case enmControlKind::Button:
        if (item.style == BS_AUTOCHECKBOX) {
            return new QCheckBox(QString::fromWCharArray(item.text), pParent);
        }
        return new QPushButton(QString::fromWCharArray(item.text), pParent);
    default: {
        auto* const pTree = new QTreeWidget(pParent);
        pTree->setHeaderHidden(item.kind == enmControlKind::TreeView);
        for (int i = 0; i < kEntries; ++i) {
            new QTreeWidgetItem(pTree, {QStringLiteral("Entry")});
        }
        return pTree;
    }
    }
}

Frame Bare() {
    FirstPaint paint;
    const auto begin = Clock::now();
    auto dialog = std::make_unique<QDialog>(nullptr, Qt::Window | Qt::FramelessWindowHint);
    dialog->setWindowTitle(QStringLiteral("Dialog"));
    // Approximately the size of the template.
    dialog->setGeometry(600, 0, 360, 470);
    for (const DialogItem& item : kItems) {
        BareControl(item, dialog.get())
            ->setGeometry(item.x * 2, item.y * 2, item.cx * 2,
                          item.kind == enmControlKind::ComboBox ? 26 : item.cy * 2);
    }
    dialog->show();
    const double shown = Microseconds(Clock::now() - begin);
    paint.Await();
    const double painted = Microseconds(Clock::now() - begin);
    dialog.reset();
    AfxPumpMessages();
    return {shown / 1000, painted / 1000};
}

void FirstFrames(int runs) {
    // The first window loads fonts and style; count that for neither.
    Bare();
    const Frame first = Workspace();
    std::vector<double> shown;
    std::vector<double> painted;
    std::vector<double> bareShown;
    std::vector<double> barePainted;
    for (int run = 0; run < runs; ++run) {
        const Frame bare = Bare();
        bareShown.push_back(bare.shown);
        barePainted.push_back(bare.painted);
        const Frame ours = Workspace();
        shown.push_back(ours.shown);
        painted.push_back(ours.painted);
    }
    const double median = Quantile(painted, 0.5);
    const double bare = Quantile(barePainted, 0.5);
    std::printf("from request to the first frame: %.2f ms the first time, then %.2f ms median "
                "(%.2f ms until shown), %.2f ms best\n",
                first.painted, median, Quantile(shown, 0.5), painted.front());
    std::printf("a bare dialog with the same %zu controls: %.2f ms median (%.2f ms until shown), "
                "%.2f ms best; ours takes %.2f times as long\n",
                std::size(kItems), bare, Quantile(bareShown, 0.5), barePainted.front(),
                median / bare);
}

} // namespace

int main(int argc, char** argv) {
    char folder[] = "/tmp/bench-dialogs-XXXXXX";
    if (!mkdtemp(folder)) {
        return 1;
    }
    SetHostOption(kHostOptionSupport, Utf8ToWide(std::string(folder) + "/").c_str());
    SetHostOption(kHostOptionInstall, L"" TESSALY_STAGE_DIR "/");
    AfxSetDesktopMode(true);
    AfxStartToolkit();
    AddDialogTemplates(nullptr, kTemplates);
    CWsManager::Instance()->RegisterWsDialogFactory(boost::make_shared<Factory>());
    FirstFrames(argc > 2 ? std::atoi(argv[2]) : 50);
    const bool fast = Snapping(argc > 1 ? std::atoi(argv[1]) : 200);
    AfxStopToolkit();
    std::printf(fast ? "within 20 us and without allocation\n" : "TOO SLOW, or it allocates\n");
    return fast ? 0 : 1;
}
