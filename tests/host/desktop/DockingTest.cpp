// Docking panes and resizing controls in a frame of the toolkit.
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <gtest/gtest.h>

#include "platform/mfc/NativeWidget.h"
#include "platform/mfc/WinApp.h"
#include "platform/xtp/XTPDockingPaneManager.h"
#include "platform/xtp/XTPResize.h"
#include "tests/support/Rows.h"

namespace {

class DockingTest : public testing::Test {
protected:
    DockingTest() {
        AfxStartToolkit();
        m_pFrame = std::make_unique<QMainWindow>();
        m_pFrame->resize(800, 600);
        m_pFrame->setCentralWidget(new QWidget);
        AttachNativeWidget(m_frame, m_pFrame.get());
        EXPECT_EQ(m_panes.InstallDockingPanes(&m_frame, 1), 1);
        m_pFrame->show();
    }
    CXTPDockingPane& Pane(int id, XTPDockingPaneDirection side = xtpPaneDockLeft) {
        CXTPDockingPane* const pPane = m_panes.CreatePane(id, {0, 0, 200, 150}, side);
        EXPECT_NE(pPane, nullptr);
        return *pPane;
    }
    QDockWidget* DockOf(int id) const {
        return m_pFrame->findChild<QDockWidget*>(QStringLiteral("Pane%1").arg(id));
    }

    std::unique_ptr<QMainWindow> m_pFrame;
    CWnd m_frame;
    CXTPDockingPaneManager m_panes;
};

} // namespace

TEST_F(DockingTest, PanesAreFoundByTheirNumbersAndKeptWhenClosed) {
    CXTPDockingPane& pane = Pane(6666);
    EXPECT_EQ(m_panes.FindPane(6666), &pane);
    EXPECT_EQ(m_panes.FindPane(1), nullptr);
    EXPECT_EQ(m_panes.CreatePane(6666, {0, 0, 10, 10}, xtpPaneDockTop), nullptr);
    pane.SetTitle(L"Systeme");
    EXPECT_EQ(pane.GetTitle().Str(), L"Systeme");
    EXPECT_EQ(m_pFrame->dockWidgetArea(DockOf(6666)), Qt::LeftDockWidgetArea);
    EXPECT_EQ(pane.IsClosed(), 0);
    m_panes.CloseAll();
    EXPECT_NE(pane.IsClosed(), 0);
    m_panes.ShowPane(6666, 1);
    EXPECT_EQ(pane.IsClosed(), 0);
    m_pFrame->hide();
    EXPECT_EQ(pane.IsClosed(), 0) << "only the frame is hidden";
    pane.Hide();
    EXPECT_NE(pane.IsClosed(), 0);
    m_panes.ShowPane(1, 1);
    EXPECT_EQ(Pane(2, xtpPaneDockBottom).IsFloating(), 0);
    EXPECT_EQ(m_pFrame->dockWidgetArea(DockOf(2)), Qt::BottomDockWidgetArea);
}

TEST_F(DockingTest, AWindowFollowsItsPaneAndMayGoFirst) {
    CXTPDockingPane& pane = Pane(1);
    auto pWindow = std::make_unique<CWnd>();
    pWindow->Create(WS_CHILD, {0, 0, 50, 50}, &m_frame);
    pane.SetMinTrackSize({300, 200});
    pane.Attach(pWindow.get());
    EXPECT_EQ(pane.GetChild(), pWindow.get());
    QApplication::processEvents();
    EXPECT_GE(pWindow->GetClientRect().Width(), 290);
    EXPECT_TRUE(pWindow->IsWindowVisible());
    pane.Hide();
    EXPECT_FALSE(pWindow->IsWindowVisible());
    m_panes.ShowPane(1, 0);
    pWindow.reset();
    EXPECT_EQ(pane.GetChild(), nullptr);
    m_panes.ShowPane(1, 1);
}

TEST_F(DockingTest, AnAttachedWindowGoesWithTheFrame) {
    struct Noting : CWnd {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_DESTROY) {
                destroyed = GetSafeHwnd() != nullptr;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
        bool destroyed = false;
    };
    auto pView = std::make_unique<CWnd>();
    pView->Create(WS_CHILD, {0, 0, 50, 50}, &m_frame);
    Noting window;
    window.Create(WS_CHILD, {0, 0, 50, 50}, pView.get());
    Pane(1).Attach(&window);
    EXPECT_EQ(window.GetParent(), &m_frame);
    pView.reset();
    EXPECT_TRUE(window.GetSafeHwnd()) << "destroyed with its first parent";
    m_pFrame.reset();
    EXPECT_TRUE(window.destroyed) << "notified while the window existed";
    EXPECT_FALSE(window.GetSafeHwnd());
}

TEST_F(DockingTest, APaneComesWhereTheUserLeftIt) {
    Pane(7, xtpPaneDockRight);
    const QByteArray state = m_pFrame->saveState(1);
    QMainWindow later;
    later.setCentralWidget(new QWidget);
    CWnd window;
    AttachNativeWidget(window, &later);
    CXTPDockingPaneManager panes;
    panes.InstallDockingPanes(&window, 1);
    later.restoreState(state, 1);
    ASSERT_NE(panes.CreatePane(7, {0, 0, 100, 100}, xtpPaneDockLeft), nullptr);
    auto* const pDock = later.findChild<QDockWidget*>(QStringLiteral("Pane7"));
    EXPECT_EQ(later.dockWidgetArea(pDock), Qt::RightDockWidgetArea);
}

TEST_F(DockingTest, WithoutAFrameThereAreNoPanes) {
    CXTPDockingPaneManager panes;
    CWnd plain;
    EXPECT_EQ(panes.InstallDockingPanes(nullptr, 1), 0);
    EXPECT_EQ(panes.InstallDockingPanes(&plain, 1), 0);
    EXPECT_EQ(panes.CreatePane(1, {0, 0, 10, 10}, xtpPaneDockTop), nullptr);
    panes.CloseAll();
    CXTPDockingPane& pane = Pane(3);
    m_pFrame.reset();
    EXPECT_NE(pane.IsClosed(), 0);
    pane.SetTitle(L"x");
    m_panes.ShowPane(3, 1);
}

TEST(Resize, ControlsFollowByFractions) {
    const CRect designed(10, 20, 40, 30);
    const Rows<ResizeAnchors, CRect> cases = {
        {{0, 0, 0, 0}, {10, 20, 40, 30}},
        {{0, 0, 1, 1}, {10, 20, 140, 80}},
        {{1, 1, 1, 1}, {110, 70, 140, 80}},
        {{0, 0, 1.0 / 3, 0}, {10, 20, 73, 30}},
        {{1.0 / 3, 0, 2.0 / 3, 0}, {43, 20, 106, 30}},
    };
    for (const auto& [anchors, expected] : cases) {
        const CRect placed = ResizedRect(designed, {100, 50}, anchors);
        EXPECT_EQ(placed.left, expected.left);
        EXPECT_EQ(placed.top, expected.top);
        EXPECT_EQ(placed.right, expected.right);
        EXPECT_EQ(placed.bottom, expected.bottom);
    }
}
