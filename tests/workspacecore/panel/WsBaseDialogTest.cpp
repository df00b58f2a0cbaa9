// What a workspace dialog remembers, how it rolls up, and what reaches it.
#include "tests/support/Rows.h"
#include "tests/workspacecore/panel/WsTestDialog.h"

#include <QToolButton>

#include "platform/arx/ApDocManager.h"
#include "platform/mfc/CustomBitmapButton.h"
#include "platform/mfc/Edit.h"
#include "platform/xtp/XTPDockingPaneManager.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/Publisher.h"

namespace Orvane::Workspace {
namespace {

using Data::CDataBox;

class WsBaseDialogTest : public WsDialogTest {
protected:
    static CDialogState& State(const wchar_t* id) {
        return *Manager().GetDialogStates()->GetDialogStateById(id);
    }
    static void Remember(const wchar_t* id, const CRect& place, bool resizable) {
        auto state = boost::make_shared<CDialogState>();
        state->SetId(id);
        state->SetLeft(place.left);
        state->SetTop(place.top);
        state->SetWidth(place.Width());
        state->SetHeight(place.Height());
        state->SetResizable(resizable);
        Manager().GetDialogStates()->AddDialogState(state);
    }
    std::string File() const { return m_host.Support().Read("uiStates.xml"); }
};

// Values.

TEST_F(WsBaseDialogTest, ReadingAValueLeavesNothingBehind) {
    EXPECT_EQ(CString(CWsBaseDialog::GetStateValue(L"CLOSED", L"k", L"default")), L"default");
    EXPECT_EQ(RememberedIds(), "");
    CDataBox value(7);
    CWsBaseDialog::SetStateValue(L"CLOSED", L"k", value);
    EXPECT_EQ(RememberedIds(), "CLOSED ");
    EXPECT_EQ(static_cast<int>(CWsBaseDialog::GetStateValue(L"CLOSED", L"k", 1)), 7);
    EXPECT_EQ(static_cast<int>(CWsBaseDialog::GetStateValue(L"CLOSED", L"K", 1)), 1) << "case";
    EXPECT_EQ(static_cast<int>(CWsBaseDialog::GetStateValue(L"closed", L"k", 1)), 1) << "case";
    EXPECT_EQ(State(L"CLOSED").GetStateAttributeVector()->size(), 1U);
}

TEST_F(WsBaseDialogTest, AValueTakesTheKindOfTheLastOne) {
    WsTestDialog dialog(L"D");
    CDataBox text(L"3.5");
    CDataBox real(2.25);
    dialog.SetStateValue(L"k", text);
    EXPECT_EQ(CWsBaseDialog::GetStateValue(L"D", L"k", 0).GetDataType(), Data::DataTypeText);
    dialog.SetStateValue(L"k", real);
    const CDataBox read = dialog.GetStateValue(L"k", 0);
    EXPECT_EQ(read.GetDataType(), Data::DataTypeDouble);
    EXPECT_EQ(static_cast<double>(read), 2.25);
    EXPECT_EQ(State(L"D").GetStateAttributeVector()->size(), 1U);
    State(L"D").GetStateAttributeById(L"k")->SetType(4711);
    EXPECT_TRUE(dialog.GetStateValue(L"k", 9).IsNull()) << "a kind that nobody knows";
}

TEST_F(WsBaseDialogTest, ComboBoxesComeBackAsFarAsTheirEntriesGo) {
    const Rows<const char*, int, CDataBox, int, int, int> cases = {
        {"nothing stored", 3, {}, 1, 1, 1},
        {"stored", 3, 2, 1, 2, 2},
        {"stored, the first", 3, 0, 1, 0, 0},
        {"beyond the entries", 3, 3, 1, 1, 1},
        {"both beyond", 3, 5, 7, 0, 0},
        {"nothing stored, the default beyond", 3, {}, 3, 0, 0},
        {"no entries", 0, 2, 1, -1, CB_ERR},
        {"below nothing", 3, -1, 1, -1, CB_ERR},
        {"a text that is a number", 3, L"2", 1, 2, 2},
        {"a text that is none", 3, L"two", 1, 0, 0},
    };
    for (const auto& [what, entries, itsStored, standard, expected, selected] : cases) {
        WsTestDialog dialog(L"D");
        dialog.Create(kWsFixed);
        auto& combo = dynamic_cast<CComboBox&>(*dialog.GetDlgItem(kWsCombo));
        for (int i = 0; i < entries; ++i) {
            combo.AddString(L"entry");
        }
        Manager().GetDialogStates()->Clear();
        if (CDataBox stored = itsStored; !stored.IsNull()) {
            dialog.SetStateValue(L"combo", stored);
        }
        EXPECT_EQ(dialog.GetSavedComboState(combo, L"combo", standard), expected) << what;
        EXPECT_EQ(combo.GetCurSel(), selected) << what;
        // What is not selected is not stored.
        dialog.SetSavedComboState(combo, L"saved");
        EXPECT_EQ(static_cast<int>(dialog.GetStateValue(L"saved", -7)),
                  selected == CB_ERR ? -7 : selected)
            << what;
    }
}

// Position.

TEST_F(WsBaseDialogTest, WhatIsRememberedOfAPlace) {
    for (const int type : {1, 2, 4, 8, 16, 32}) {
        CString id;
        id.Format(L"D%d", type);
        {
            WsTestDialog dialog(id, static_cast<enmDialogType>(type));
            dialog.Show({-20, 30, 280, 130});
        }
        const CDialogState& state = State(id);
        EXPECT_EQ(CRect(CPoint(state.GetLeft(), state.GetTop()),
                        CSize(state.GetWidth(), state.GetHeight())),
                  CRect(-20, 30, 280, 130))
            << type;
        EXPECT_EQ(state.GetResizable(), type == 2 || type == 8 || type == 32) << type;
        EXPECT_EQ(state.GetDocked() + state.GetSide(), 0) << type;
    }
    CUiStates read;
    EXPECT_EQ(read.Load(m_host.Support().Wide("uiStates.xml")), 1);
    EXPECT_EQ(read.GetDialogStateVector()->size(), 6U);
}

TEST_F(WsBaseDialogTest, TheCloseBoxRemembersThePlaceAndHides) {
    WsTestDialog dialog(L"D");
    dialog.Show({40, 50, 340, 250});
    EXPECT_EQ(RememberedIds(), "");
    FrameOf(dialog)->close();
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_EQ(dialog.TakeLog(), std::vector<std::string>{"cancel"});
    EXPECT_EQ(State(L"D").GetLeft(), 40);
    EXPECT_TRUE(Manager().IsDialogCreated(L"D")) << "a hidden dialog lives on";
    EXPECT_EQ(File(), "") << "in memory alone";
    dialog.MoveWindow({60, 70, 360, 270});
    dialog.DestroyWindow();
    EXPECT_EQ(State(L"D").GetLeft(), 60);
    EXPECT_EQ(File(), "");
}

TEST_F(WsBaseDialogTest, ARememberedPlaceIsMeasuredByTheMonitorUnderTheCursor) {
    const std::vector<Monitor> one = {{{0, 0, 1280, 1024}, {0, 0, 1280, 984}}};
    const std::vector<Monitor> right = {one[0], {{1280, -200, 3200, 880}, {}}};
    const std::vector<Monitor> left = {
        one[0], {{-1920, 0, 0, 1080}, {}}, {{1280, 0, 2080, 600}, {}}};
    const Rows<const char*, std::vector<Monitor>, CPoint, CPoint, bool> cases = {
        {"within the only one", one, {5, 5}, {1279, 1023}, true},
        {"its monitor on the right has gone", one, {5, 5}, {1280, 100}, false},
        {"its monitor on the left has gone", one, {5, 5}, {-1900, 100}, true},
        {"cursor on the wider one", right, {1300, 0}, {1900, 100}, true},
        {"cursor on the narrower one", right, {5, 5}, {1900, 100}, false},
        {"lower than the lower one is high", right, {1300, 0}, {100, 1080}, false},
        {"cursor on the left one", left, {-1, 0}, {1700, 1050}, true},
        {"cursor on the small one, place on the primary one", left, {1400, 300}, {800, 5}, false},
        {"cursor beyond all, nearest to the small one", left, {9000, 300}, {800, 5}, false},
    };
    for (const auto& [what, monitors, cursor, place, restored] : cases) {
        Manager().GetDialogStates()->Clear();
        Remember(L"D", CRect(place, CSize(300, 200)), true);
        WsTestDialog dialog(L"D", enmDialogSizable);
        dialog.Create(kWsSizable);
        const CRect before = dialog.GetWindowRect();
        m_desktop.monitors = monitors;
        m_desktop.cursor = cursor;
        EXPECT_EQ(dialog.LoadWindowPosition(), restored) << what;
        EXPECT_EQ(dialog.GetWindowRect(), restored ? CRect(place, CSize(300, 200)) : before)
            << what;
    }
}

TEST_F(WsBaseDialogTest, TheSizeComesBackIfTheStateSaysSo) {
    for (const bool resizable : {false, true}) {
        for (const int type : {1, 2, 4, 8, 16, 32}) {
            Manager().GetDialogStates()->Clear();
            WsTestDialog dialog(L"D", static_cast<enmDialogType>(type));
            dialog.Create(kWsSizable);
            EXPECT_EQ(dialog.LoadWindowPosition(), 0) << "never placed";
            const CSize size = dialog.GetWindowRect().Size();
            Remember(L"D", {50, 60, 450, 360}, resizable);
            EXPECT_EQ(dialog.LoadWindowPosition(), type < 16) << type;
            const CRect moved(CPoint(50, 60), resizable ? CSize(400, 300) : size);
            EXPECT_EQ(dialog.GetWindowRect(), type < 16 ? moved : CRect(CPoint(), size)) << type;
        }
    }
}

TEST_F(WsBaseDialogTest, RestoringLeavesTheOrderOfWindows) {
    WsTestDialog behind(L"BEHIND");
    WsTestDialog front(L"FRONT");
    behind.Show({0, 0, 300, 200});
    front.Show({400, 400, 600, 500});
    front.BringWindowToTop();
    Remember(L"BEHIND", {50, 60, 450, 360}, true);
    EXPECT_EQ(behind.LoadWindowPosition(), 1);
    SetScreens(nullptr);
    EXPECT_EQ(Screens().Stacking(), (std::vector{front.GetSafeHwnd(), behind.GetSafeHwnd()}));
    SetScreens(&m_desktop);
    behind.PutOnTop();
    SetScreens(nullptr);
    EXPECT_EQ(Screens().Stacking().front(), behind.GetSafeHwnd());
    SetScreens(&m_desktop);
}

// Collapsing.

int CaptionOnly() {
    return GetSystemMetrics(SM_CYSIZE) + GetSystemMetrics(SM_CXFIXEDFRAME);
}

TEST_F(WsBaseDialogTest, ADialogRollsUpToItsCaptionAndDownAgain) {
    WsTestDialog dialog(L"D");
    dialog.Show({10, 20, 310, 220});
    const int caption = CaptionOnly();
    std::vector<int> heights;
    dialog.onSize = [&] { heights.push_back(dialog.GetWindowRect().Height()); };
    dialog.ExpandCollapse();
    EXPECT_EQ(dialog.GetWindowRect(), CRect(10, 20, 310, 20 + caption));
    std::vector<int> expected;
    for (int height = 155; height > caption; height -= 45) {
        expected.push_back(height); // the first step keeps the height, so there is no resize
    }
    EXPECT_EQ(std::vector(heights.begin(), heights.begin() + 3),
              std::vector(expected.begin(), expected.begin() + 3));

    dialog.SaveWindowPosition();
    EXPECT_EQ(State(L"D").GetHeight(), caption) << "remembered as it is";
    dialog.ExpandWindow();
    EXPECT_EQ(dialog.GetWindowRect().Height(), caption) << "without a button of its own it stays";

    dialog.MoveWindow({700, 40, 1010, 40 + caption});
    dialog.ExpandCollapse();
    EXPECT_EQ(dialog.GetWindowRect(), CRect(700, 40, 1010, 240))
        << "place and width of now, height of then";
}

TEST_F(WsBaseDialogTest, RollingGivesTheFocusToTheDrawingAndThenToTheDialog) {
    WsTestDialog dialog(L"D");
    dialog.Show({10, 20, 310, 220});
    CWnd view;
    view.Create(WS_POPUP | WS_VISIBLE, {0, 0, 50, 50}, nullptr);
    dialog.GetDlgItem(kWsEdit)->SetFocus();
    std::vector<std::string> focused;
    const auto connection =
        QObject::connect(qApp, &QApplication::focusChanged, qApp, [&](QWidget*, QWidget* pNow) {
            if (pNow) {
                focused.emplace_back(pNow == WidgetOf(view)     ? "view"
                                     : pNow == WidgetOf(dialog) ? "dialog"
                                                                : "other");
            }
        });
    acedSetAcadDwgView(&view);
    for (int round = 0; round < 2; ++round) {
        focused.clear();
        dialog.ExpandCollapse();
        AfxPumpMessages();
        EXPECT_EQ(CWnd::GetFocus(), &dialog);
        EXPECT_EQ(focused.empty() ? "" : focused.back(), "dialog");
    }
    acedSetAcadDwgView(nullptr);
    dialog.ExpandCollapse();
    EXPECT_EQ(CWnd::GetFocus(), &dialog) << "without a drawing";
    QObject::disconnect(connection);
}

TEST_F(WsBaseDialogTest, ADialogMayGoWhileItRolls) {
    auto dialog = std::make_unique<WsTestDialog>(L"D");
    dialog->Show({10, 20, 310, 220});
    dialog->onSize = [&] { dialog.reset(); };
    dialog->ExpandCollapse();
    EXPECT_EQ(dialog, nullptr);
    WsTestDialog closing(L"D");
    closing.Show({10, 20, 310, 220});
    closing.onSize = [&] { closing.DestroyWindow(); };
    closing.ExpandCollapse();
    EXPECT_FALSE(closing.GetSafeHwnd());
    closing.onSize = nullptr;
    closing.Show({10, 20, 310, 220});
    closing.ExpandCollapse();
    EXPECT_EQ(closing.GetWindowRect().Height(), CaptionOnly()) << "it was not rolled up";
}

// The caption strip.

TEST_F(WsBaseDialogTest, OnlySettingsHaveAButton) {
    CModuleConfiguration::Instance();
    for (const int settings : {0, 1}) {
        WsTestDialog dialog(L"D", enmDialogFixed, settings);
        dialog.Show({10, 20, 310, 220}, kWsFixed);
        const auto buttons = FrameOf(dialog)->findChildren<QToolButton*>();
        ASSERT_EQ(buttons.size(), 1 + settings) << "the close box first";
        for (const UINT number : {1U, 2U, 3U}) {
            NMHDR header{nullptr, number, NM_CLICK};
            dialog.SendMessage(WM_NOTIFY, number, reinterpret_cast<LPARAM>(&header));
        }
        EXPECT_EQ(dialog.TakeLog(), std::vector<std::string>(settings, "settings"))
            << "button 1, and no others";
        if (settings) {
            EXPECT_FALSE(buttons[1]->toolTip().isEmpty());
            EXPECT_EQ(buttons[1]->iconSize(), QSize(13, 11));
            EXPECT_FALSE(buttons[1]->icon().isNull());
            QTest::mouseClick(buttons[1], Qt::LeftButton);
            EXPECT_EQ(dialog.TakeLog(), std::vector<std::string>{"settings"});
        }
    }
}

TEST_F(WsBaseDialogTest, ADialogMayGoAtItsOwnButton) {
    auto dialog = std::make_unique<WsTestDialog>(L"D", enmDialogFixed, 1);
    dialog->Show({10, 20, 310, 220}, kWsFixed);
    dialog->onSettings = [&] { dialog.reset(); };
    QTest::mouseClick(FrameOf(*dialog)->findChildren<QToolButton*>().at(1), Qt::LeftButton);
    EXPECT_EQ(dialog, nullptr);
}

// Keys.

/// Counts key presses.
class KeyEdit : public CEdit {
public:
    std::vector<WPARAM> keys;

protected:
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageEntry kEntries[] = {MapMessage<&KeyEdit::OnKey>(WM_KEYDOWN)};
        static const MessageMap kMap{CEdit::GetMessageMap(), kEntries};
        return &kMap;
    }
    LRESULT OnKey(WPARAM key, LPARAM) {
        keys.push_back(key);
        return Default();
    }
};

TEST_F(WsBaseDialogTest, EnterAndEscapeAreForTheControl) {
    WsTestDialog dialog(L"D");
    dialog.Show({10, 20, 310, 220});
    KeyEdit edit;
    ASSERT_TRUE(edit.SubclassDlgItem(kWsEdit, &dialog));
    edit.SetFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_A}) {
        QTest::keyClick(WidgetOf(edit), key);
    }
    EXPECT_EQ(edit.keys, (std::vector<WPARAM>{VK_RETURN, VK_RETURN, VK_ESCAPE, 'A'}));
    EXPECT_EQ(dialog.TakeLog(), std::vector<std::string>());
    EXPECT_TRUE(dialog.IsWindowVisible());
    // A focused button is not pressed by Enter either, but by Space.
    dialog.GetDlgItem(IDOK)->SetFocus();
    QTest::keyClick(WidgetOf(*dialog.GetDlgItem(IDOK)), Qt::Key_Return);
    EXPECT_EQ(dialog.TakeLog(), std::vector<std::string>());
    QTest::keyClick(WidgetOf(*dialog.GetDlgItem(IDOK)), Qt::Key_Space);
    EXPECT_EQ(dialog.TakeLog(), std::vector<std::string>{"ok"});
}

// Notifications.

TEST_F(WsBaseDialogTest, ADialogHearsOfRefreshesAndEventsWhileItLives) {
    CWsManager& manager = *CWsManager::Instance();
    auto dialog = std::make_unique<WsTestDialog>(L"D");
    manager.GetRefreshAllPbl()->Notify(nullptr, nullptr);
    manager.GetRefreshTreePbl()->Notify(nullptr, nullptr);
    manager.Raise_OnAcadDocumentBecomeCurrent(nullptr);
    EXPECT_EQ(dialog->TakeLog(), (std::vector<std::string>{"refresh", "current"}));
    dialog.reset();
    manager.GetRefreshAllPbl()->Notify(nullptr, nullptr);
    manager.Raise_OnAcadDocumentBecomeCurrent(nullptr);
}

} // namespace
} // namespace Orvane::Workspace
