// Windows around the frame: module panes and dialogs, themes.
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>

#include "host/desktop/Theme.h"
#include "platform/mfc/AdUiBaseDialog.h"
#include "platform/mfc/ListCtrl.h"
#include "platform/mfc/NativeWidget.h"
#include "platform/xtp/XTPDockingPaneManager.h"
#include "tests/host/desktop/FrameFixture.h"

namespace Tessaly {

namespace {

constexpr DialogItem kItems[] = {
    {enmControlKind::Edit, 107, 7, 7, 71, 14, L""},
    {enmControlKind::ListView, 108, 7, 25, 108, 40, L""},
};
constexpr DialogTemplate kTemplates[] = {
    {1, 200, 93, L"In a pane", WS_CHILD, kItems},
    {2, 200, 93, L"On its own", WS_POPUP | WS_CAPTION | WS_SYSMENU, kItems},
};

class KeepsFocus : public CAdUiBaseDialog {
public:
    using CAdUiBaseDialog::CAdUiBaseDialog;
    bool keeps = true;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == WM_ACAD_KEEPFOCUS && keeps
                   ? 1
                   : CAdUiBaseDialog::WindowProc(message, wParam, lParam);
    }
};

class FrameWindowsTest : public FrameTest {
protected:
    FrameWindowsTest() {
        AddDialogTemplates(nullptr, kTemplates);
        m_panes.InstallDockingPanes(acedGetAcadFrame(), 1);
        m_pPane = m_panes.CreatePane(6666, {0, 0, 200, 200}, xtpPaneDockLeft);
        m_pPane->SetTitle(L"Systems");
        m_inPane.Create(1, acedGetAcadFrame());
        m_pPane->Attach(&m_inPane);
        m_onTop.Create(2, acedGetAcadFrame());
        m_onTop.ShowWindow(SW_SHOW);
        QApplication::processEvents();
    }
    QWidget* Control(CWnd& dialog, UINT id) {
        return static_cast<QWidget*>(NativeWidget(*dialog.GetDlgItem(id)));
    }
    QAction* Action(const QString& text) const {
        for (QAction* const pAction : m_pFrame->findChildren<QAction*>()) {
            if (pAction->text() == text) {
                return pAction;
            }
        }
        return nullptr;
    }

    CXTPDockingPaneManager m_panes;
    CXTPDockingPane* m_pPane;
    KeepsFocus m_inPane;
    KeepsFocus m_onTop;
};

} // namespace

TEST_F(FrameWindowsTest, DialogsAreBroughtBackFromScreensThatHaveGone) {
    m_onTop.SetWindowPos(nullptr, 5000, 5000, 0, 0, SWP_NOSIZE);
    m_pFrame->BringAllWindowsHere();
    EXPECT_LT(m_onTop.GetWindowRect().left, 800);
    EXPECT_LT(m_onTop.GetWindowRect().top, 800);
}

TEST_F(FrameWindowsTest, WhileLongWorkGoesOnOnlyStoppingIsPossible) {
    m_inPane.GetDlgItem(107)->EnableWindow(false);
    m_pFrame->ShowProgress("Work", 0);
    EXPECT_FALSE(m_inPane.IsWindowEnabled());
    EXPECT_FALSE(m_onTop.IsWindowEnabled());
    EXPECT_TRUE(m_pFrame->statusBar()->findChild<QPushButton*>()->isEnabled());
    m_pFrame->EndProgress();
    EXPECT_TRUE(m_inPane.IsWindowEnabled());
    EXPECT_TRUE(m_onTop.IsWindowEnabled());
    EXPECT_FALSE(m_inPane.GetDlgItem(107)->IsWindowEnabled()) << "it was not enabled before";
}

TEST_F(FrameWindowsTest, PanesAreShownFloatedAndReachedByTheKeyboard) {
    m_pPane->Hide();
    QMenu* const pMenu = Action("&Panes")->menu();
    emit pMenu->aboutToShow();
    ASSERT_NE(Action("Systems"), nullptr);
    Action("Systems")->trigger();
    EXPECT_FALSE(m_pPane->IsClosed());
    emit pMenu->aboutToShow();
    Action("Float Systems")->trigger();
    EXPECT_TRUE(m_pPane->IsFloating());
    emit pMenu->aboutToShow();
    Action("Dock Systems")->trigger();
    EXPECT_FALSE(m_pPane->IsFloating());
    m_pFrame->activateWindow();
    m_pInput->setFocus();
    QApplication::processEvents();
    std::vector<QWidget*> reached;
    for (int i = 0; i < 3; ++i) {
        Action("Ne&xt pane")->trigger();
        QApplication::processEvents();
        reached.push_back(QApplication::focusWidget());
    }
    EXPECT_EQ(std::count(reached.begin(), reached.end(), m_pInput), 1);
    EXPECT_EQ(std::count(reached.begin(), reached.end(), Control(m_inPane, 107)), 1);
    EXPECT_EQ(std::count(reached.begin(), reached.end(), m_pFrame->CurrentView()), 1);
}

TEST_F(FrameWindowsTest, OverTheDrawingADialogGivesTheKeyboardAwayUnlessItKeepsIt) {
    const auto enterDrawing = [&] {
        QEnterEvent event({5, 5}, {5, 5}, {5, 5});
        QApplication::sendEvent(m_pFrame->CurrentView(), &event);
    };
    m_pFrame->activateWindow();
    QApplication::processEvents();
    Control(m_inPane, 107)->setFocus();
    enterDrawing();
    EXPECT_EQ(QApplication::focusWidget(), Control(m_inPane, 107));
    m_inPane.keeps = false;
    enterDrawing();
    EXPECT_EQ(QApplication::focusWidget(), m_pFrame->CurrentView());
    m_pInput->setFocus();
    enterDrawing();
    EXPECT_EQ(QApplication::focusWidget(), m_pInput) << "the command line is not a dialog";
}

TEST_F(FrameWindowsTest, ListsFollowTheTheme) {
    auto& list = dynamic_cast<CListCtrl&>(*m_onTop.GetDlgItem(108));
    ApplyTheme(L"dark");
    EXPECT_EQ(list.GetTextBkColor(), GetSysColor(COLOR_WINDOW));
    list.SetTextBkColor(RGB(1, 2, 3));
    ApplyTheme(L"light");
    EXPECT_EQ(list.GetTextBkColor(), RGB(1, 2, 3)) << "explicit colours are kept";
}

TEST_F(FrameWindowsTest, ThemesAreTheUsersOrTheSystems) {
    using enum SystemTheme::Scheme;
    const struct {
        const wchar_t* theme;
        SystemTheme::Scheme system;
        bool isDark;
    } cases[] = {{L"", Dark, true}, {L"", Light, false}, {L"light", Dark, false}};
    for (const auto& c : cases) {
        ApplyTheme(c.theme, c.system);
        EXPECT_EQ(IsDark(), c.isDark) << CString(c.theme).View().size();
    }
    Layout layout;
    layout.theme = L"light";
    m_pFrame->ApplyLayout(layout);
    m_pFrame->SetThemeOfRun(L"dark");
    EXPECT_TRUE(IsDark());
    EXPECT_EQ(m_pFrame->CurrentLayout().theme, L"light") << "saved for the next run";
}

TEST_F(FrameWindowsTest, WhatIsShownOfADrawing) {
    acDocManagerPtr()->newDocument(L"a&b[*]");
    EXPECT_EQ(Tabs().tabText(1), "a&&b[*]");
    EXPECT_TRUE(m_pFrame->windowTitle().startsWith("a&b[*][*]"));
    const auto status = [&] {
        QString text;
        for (const QLabel* const pLabel : m_pFrame->statusBar()->findChildren<QLabel*>()) {
            text += pLabel->text();
        }
        return text;
    };
    emit m_pFrame->CurrentView()->PositionMoved(1, 2);
    EXPECT_EQ(status(), "1.000, 2.000");
    emit m_pFrame->CurrentView()->PositionLeft();
    EXPECT_EQ(status(), "");
}

} // namespace Tessaly
