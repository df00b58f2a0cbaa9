// Positions of windows: proposed positions, captions, placement, screens, stacking.
#include "tests/mfc/WindowTest.h"

#include <QFile>
#include <QTemporaryDir>
#include <QToolButton>

#include "platform/mfc/CustomBitmapButton.h"
#include "tests/mfc/TestDialog.h"
#include "tests/support/Rows.h"
#include "tests/support/ScriptedScreens.h"

namespace {

/// Snaps to a grid of ten pixels.
class GridDialog : public TestDialog {
public:
    int asked = 0;
    bool refuse = false;

protected:
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageEntry kEntries[] = {
            MapMessage<&GridDialog::OnWindowPosChanging>(WM_WINDOWPOSCHANGING)};
        static const MessageMap kMap{TestDialog::GetMessageMap(), kEntries};
        return &kMap;
    }
    void OnWindowPosChanging(WINDOWPOS* pPlace) {
        ++asked;
        EXPECT_EQ(pPlace->hwnd, GetSafeHwnd());
        pPlace->x = (pPlace->x + 5) / 10 * 10;
        pPlace->y = (pPlace->y + 5) / 10 * 10;
        if (refuse) {
            pPlace->flags |= SWP_NOMOVE | SWP_NOSIZE;
        }
        TestDialog::OnWindowPosChanging(pPlace);
    }
};

class MovingTest : public WindowTest {};

TEST_F(MovingTest, AHandlerCanChangeEachProposedPosition) {
    GridDialog dialog;
    dialog.Create();
    const CSize size = dialog.GetWindowRect().Size();
    dialog.SetWindowPos(nullptr, 103, 207, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(dialog.GetWindowRect(), CRect(CPoint(100, 210), size));
    dialog.MoveWindow({1, 2, 301, 202});
    EXPECT_EQ(dialog.GetWindowRect(), CRect(0, 0, 300, 200));
    dialog.refuse = true;
    dialog.MoveWindow({50, 50, 80, 80});
    EXPECT_EQ(dialog.GetWindowRect(), CRect(0, 0, 300, 200));
    EXPECT_EQ(dialog.asked, 3);
}

TEST_F(MovingTest, EveryStepOfADragIsProposed) {
    GridDialog dialog;
    dialog.Create();
    dialog.MoveWindow({100, 100, 400, 300});
    dialog.ShowWindow(SW_SHOW);
    dialog.asked = 0;
    QWidget* const pFrame = FrameOf(dialog);
    const CRect before = dialog.GetWindowRect();
    const auto send = [pFrame](QEvent::Type type, QPoint onScreen) {
        const bool pressed = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, pFrame->mapFromGlobal(onScreen), onScreen, Qt::LeftButton,
                          pressed ? Qt::LeftButton : Qt::NoButton, {});
        QApplication::sendEvent(pFrame, &event);
    };
    const QPoint grip(before.left + 60, before.top + 10); // on the caption
    send(QEvent::MouseButtonPress, grip);
    for (int step = 1; step <= 22; ++step) {
        send(QEvent::MouseMove, grip + QPoint(step, 2 * step));
        const CPoint wanted((before.left + step + 5) / 10 * 10,
                            (before.top + 2 * step + 5) / 10 * 10);
        EXPECT_EQ(dialog.GetWindowRect().TopLeft(), wanted) << step;
    }
    send(QEvent::MouseButtonRelease, grip);
    EXPECT_EQ(dialog.asked, 22);
    EXPECT_EQ(dialog.GetWindowRect().Size(), before.Size());
    send(QEvent::MouseMove, grip + QPoint(50, 50));
    EXPECT_EQ(dialog.asked, 22) << "the button was released";
}

TEST_F(MovingTest, EdgesResizeOnlySizableWindows) {
    for (const bool sizable : {false, true}) {
        CWnd wnd;
        wnd.Create(WS_POPUP | WS_CAPTION | WS_VISIBLE | (sizable ? WS_THICKFRAME : 0),
                   {100, 100, 300, 250}, nullptr);
        QWidget* const pFrame = FrameOf(wnd);
        const auto send = [pFrame](QEvent::Type type, QPoint onScreen) {
            QMouseEvent event(type, pFrame->mapFromGlobal(onScreen), onScreen, Qt::LeftButton,
                              Qt::LeftButton, {});
            QApplication::sendEvent(pFrame, &event);
        };
        send(QEvent::MouseButtonPress, {299, 249});
        send(QEvent::MouseMove, {319, 279});
        EXPECT_EQ(wnd.GetWindowRect(),
                  sizable ? CRect(100, 100, 320, 280) : CRect(120, 130, 320, 280));
        send(QEvent::MouseMove, {-500, -500});
        EXPECT_GT(wnd.GetWindowRect().Width(), 30);
    }
}

TEST_F(MovingTest, PlacementCoversAnotherWindowExactly) {
    TestDialog owner;
    owner.Create();
    owner.MoveWindow({40, 50, 340, 250});
    owner.ShowWindow(SW_SHOW);
    CWnd target;
    target.Create(WS_POPUP, {0, 0, 10, 10}, &owner);
    WINDOWPLACEMENT place;
    EXPECT_FALSE(CWnd().GetWindowPlacement(&place));
    ASSERT_TRUE(owner.GetWindowPlacement(&place));
    place.showCmd = SW_SHOWNORMAL;
    target.SetWindowPlacement(&place);
    EXPECT_EQ(target.GetWindowRect(), owner.GetWindowRect());
    EXPECT_TRUE(target.IsWindowVisible());
    owner.CloseWindow();
    owner.GetWindowPlacement(&place);
    EXPECT_EQ(place.showCmd, SW_SHOWMINIMIZED);
    owner.DestroyWindow();
    EXPECT_FALSE(target.GetSafeHwnd()) << "a window is destroyed with its owner";
}

TEST_F(MovingTest, WindowsAreListedFrontToBack) {
    CWnd a;
    CWnd b;
    CWnd hidden;
    for (CWnd* const pWnd : {&a, &b, &hidden}) {
        pWnd->Create(WS_POPUP, {0, 0, 50, 50}, nullptr);
    }
    a.ShowWindow(SW_SHOW);
    b.ShowWindow(SW_SHOWNOACTIVATE);
    AfxPumpMessages();
    using Order = std::vector<HWND>;
    b.BringWindowToTop();
    EXPECT_EQ(Screens().Stacking(), (Order{b.GetSafeHwnd(), a.GetSafeHwnd()}));
    a.BringWindowToTop();
    EXPECT_EQ(Screens().Stacking(), (Order{a.GetSafeHwnd(), b.GetSafeHwnd()}));
    a.ShowWindow(SW_HIDE);
    EXPECT_EQ(Screens().Stacking(), Order{b.GetSafeHwnd()});
}

TEST_F(MovingTest, CaptionButtonsNotifyTheirDialog) {
    TestDialog dialog;
    dialog.Create();
    dialog.ShowWindow(SW_SHOW);
    CCustomBitmapButton strip;
    EXPECT_FALSE(strip.AddButton(1)) << "not attached to a window";
    ASSERT_TRUE(strip.Attach(&dialog));
    EXPECT_TRUE(strip.AddButton(1));
    EXPECT_TRUE(strip.AddButton(2));
    EXPECT_FALSE(strip.AddButton(2)) << "twice";
    EXPECT_TRUE(strip.SetTooltip(2, L"Collapse"));
    EXPECT_FALSE(strip.SetTooltip(3, L"Help"));
    int seen = 0;
    dialog.onPreTranslate = [&](MSG*) { return ++seen > 0; };
    for (auto* const pButton : FrameOf(dialog)->findChildren<QToolButton*>()) {
        if (pButton->toolTip() == QStringLiteral("Collapse")) {
            QTest::mouseClick(pButton, Qt::LeftButton);
        }
    }
    EXPECT_EQ(dialog.log, std::vector<std::string>{"2:-2"});
    EXPECT_EQ(seen, 0) << "PreTranslateMessage does not see the caption";
    dialog.DestroyWindow();
    EXPECT_FALSE(strip.HasButton(1));
    TestDialog child(nullptr, 901);
    child.Create();
    EXPECT_FALSE(strip.Attach(&child)) << "no caption";
}

TEST_F(MovingTest, TheTaskBarIsTheAreaOutsideTheWorkArea) {
    const CRect full(0, 0, 1920, 1080);
    const Rows<CRect, CRect> cases = {
        {full, {}},
        {{0, 0, 1920, 1040}, {0, 1040, 1920, 1080}},
        {{0, 40, 1920, 1080}, {0, 0, 1920, 40}},
        {{60, 0, 1920, 1080}, {0, 0, 60, 1080}},
        {{0, 0, 1860, 1080}, {1860, 0, 1920, 1080}},
        {{0, 24, 1920, 1020}, {0, 1020, 1920, 1080}}, // two of them: the thicker
    };
    for (const auto& [work, bar] : cases) {
        EXPECT_EQ(TaskBarOf({full, work}), bar) << work.top << " " << work.bottom;
    }
    const Monitor left{{-1280, 0, 0, 1024}, {-1280, 0, 0, 1024}};
    EXPECT_TRUE(TaskBarOf(left).IsRectEmpty());
}

TEST_F(MovingTest, FindsTheMonitorThatContainsOrIsNearestToAPoint) {
    const ScriptedScreens desktop(
        {{{0, 0, 1920, 1080}, {}}, {{-1280, 0, 0, 1024}, {}}, {{1920, 100, 3200, 900}, {}}});
    const Rows<CPoint, int> cases = {{{0, 0}, 0},         {{-1, 500}, -1280}, {{1919, 1079}, 0},
                                     {{1920, 100}, 1920}, {{1920, 50}, 0},    {{-9000, 0}, -1280},
                                     {{5000, 500}, 1920}, {{-10, 1050}, 0}};
    for (const auto& [point, left] : cases) {
        EXPECT_EQ(NearestMonitor(Screens().Monitors(), point).full.left, left)
            << point.x << "," << point.y;
    }
}

TEST_F(MovingTest, APanelReducesTheWorkAreaOfItsMonitor) {
    const CRect all(0, 0, 1600, 900);
    const CRect left(0, 0, 800, 800);
    const CRect right(800, 0, 1600, 900);
    const Rows<const char*, EdgeStrut, CRect, CRect> cases = {
        {"below the right one", {enmEdge::Bottom, 40, 800, 1599}, left, {800, 0, 1600, 860}},
        {"below the lower left one", {enmEdge::Bottom, 140, 0, 799}, {0, 0, 800, 760}, right},
        {"above both", {enmEdge::Top, 30, 0, 1599}, {0, 30, 800, 800}, {800, 30, 1600, 900}},
        {"between them, on the right one", {enmEdge::Left, 860, 0, 899}, left, {860, 0, 1600, 900}},
        {"none", {enmEdge::Right, 0, 0, 0}, left, right},
    };
    for (const auto& [what, strut, leftWork, rightWork] : cases) {
        EXPECT_EQ(WorkAreaOf(left, all, {&strut, 1}), leftWork) << what;
        EXPECT_EQ(WorkAreaOf(right, all, {&strut, 1}), rightWork) << what;
    }
}

/// The primary monitor is not the leftmost one.
class PrimaryOnTheRightTest : public WindowTest {
protected:
    QByteArray Platform() const override {
        QFile file(m_folder.filePath("screens.json"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(R"({"windowFrameMargins": false, "screens": [
            {"name": "0-MAIN", "x": 1280, "y": 100, "width": 1920, "height": 1080,
             "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
            {"name": "1-LEFT", "x": 0, "y": 0, "width": 1280, "height": 1024,
             "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
        return "offscreen:configfile=" + file.fileName().toUtf8();
    }
    QTemporaryDir m_folder;
};

TEST_F(PrimaryOnTheRightTest, PositionsAreRelativeToItsCorner) {
    const std::vector<Monitor> monitors = Screens().Monitors();
    ASSERT_EQ(monitors.size(), 2U);
    EXPECT_EQ(monitors[0].full, CRect(0, 0, 1920, 1080));
    EXPECT_EQ(monitors[1].full, CRect(-1280, -100, 0, 924));
    TestDialog dialog;
    dialog.Create();
    dialog.SetWindowPos(nullptr, -200, 50, 0, 0, SWP_NOSIZE);
    dialog.ShowWindow(SW_SHOW);
    AfxPumpMessages();
    EXPECT_EQ(dialog.GetWindowRect().TopLeft(), CPoint(-200, 50));
    EXPECT_EQ(FrameOf(dialog)->pos(), QPoint(1080, 150)) << "in toolkit coordinates";
    EXPECT_EQ(dialog.ScreenToClient(dialog.ClientToScreen({3, 4})), CPoint(3, 4));
    EXPECT_EQ(dialog.ClientToScreen({0, 0}).x, -200 + GetSystemMetrics(SM_CXFIXEDFRAME));
    WINDOWPLACEMENT placement;
    dialog.GetWindowPlacement(&placement);
    EXPECT_EQ(placement.rcNormalPosition.TopLeft(), CPoint(-200, 50));
    // A drag starts at the window's current position.
    QTest::mousePress(FrameOf(dialog), Qt::LeftButton, {}, {60, 8});
    QTest::mouseMove(FrameOf(dialog), {100, 8});
    EXPECT_EQ(dialog.GetWindowRect().TopLeft(), CPoint(-160, 50));
    QTest::mouseRelease(FrameOf(dialog), Qt::LeftButton, {}, {60, 8});
    CPoint clicked;
    dialog.onPreTranslate = [&clicked](const MSG* pMsg) {
        clicked = pMsg->message == WM_LBUTTONUP ? pMsg->pt : clicked;
        return false;
    };
    QTest::mouseClick(WidgetOf(dialog), Qt::LeftButton, {}, {10, 10});
    EXPECT_EQ(clicked, dialog.ClientToScreen({10, 10}));
}

TEST_F(PrimaryOnTheRightTest, AModalDialogIsCentredOnIt) {
    TestDialog dialog;
    CRect place;
    Later([&] {
        place = dialog.GetWindowRect();
        dialog.EndDialog(IDOK);
    });
    dialog.DoModal();
    EXPECT_EQ(place.left, (1920 - place.Width()) / 2);
    EXPECT_EQ(place.top, (1080 - place.Height()) / 2);
}

} // namespace
