// Keys and mouse buttons in PreTranslateMessage.
#include "tests/mfc/WindowTest.h"

#include <QLineEdit>
#include <QShortcut>

#include "platform/mfc/Edit.h"
#include "platform/mfc/ListCtrl.h"
#include "platform/mfc/Menu.h"
#include "tests/mfc/TestDialog.h"

namespace {

class KeysTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        m_pDialog = std::make_unique<TestDialog>();
        m_pDialog->Create();
        m_pDialog->ShowWindow(SW_SHOW);
        AfxPumpMessages();
        m_pDialog->onCommand = [](UINT) {};
        m_pDialog->GetDlgItem(kEdit)->SetFocus();
    }
    void TearDown() override {
        m_pDialog.reset();
        WindowTest::TearDown();
    }
    CWnd& Edit() { return *m_pDialog->GetDlgItem(kEdit); }

    std::unique_ptr<TestDialog> m_pDialog;
};

TEST_F(KeysTest, AKeyIsSeenOnceAndPassedOnUnlessEaten) {
    int seen = 0;
    bool eat = false;
    m_pDialog->onPreTranslate = [&](MSG* pMsg) {
        EXPECT_EQ(pMsg->message, WM_KEYDOWN);
        EXPECT_EQ(pMsg->hwnd, Edit().GetSafeHwnd());
        EXPECT_EQ(pMsg->wParam, static_cast<WPARAM>('A'));
        ++seen;
        return eat;
    };
    QTest::keyClick(FrameOf(Edit()), Qt::Key_A);
    EXPECT_EQ(seen, 1);
    EXPECT_EQ(Edit().GetWindowText(), L"a");
    eat = true;
    QTest::keyClick(FrameOf(Edit()), Qt::Key_A);
    EXPECT_EQ(seen, 2);
    EXPECT_EQ(Edit().GetWindowText(), L"a");
}

TEST_F(KeysTest, AnEatenKeyDoesNotTriggerAShortcut) {
    QShortcut shortcut(QKeySequence(Qt::CTRL | Qt::Key_C), FrameOf(*m_pDialog));
    int fired = 0;
    QObject::connect(&shortcut, &QShortcut::activated, [&] { ++fired; });
    m_pDialog->GetDlgItem(kPush)->SetFocus();
    QWidget* const pFocus = FrameOf(*m_pDialog->GetDlgItem(kPush));
    QTest::keyClick(pFocus, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(fired, 1);
    int seen = 0;
    m_pDialog->onPreTranslate = [&](MSG* pMsg) {
        if (pMsg->wParam != 'C') {
            return false; // the control key itself
        }
        EXPECT_LT(GetKeyState(VK_CONTROL), 0);
        EXPECT_GE(GetKeyState(VK_SHIFT), 0);
        ++seen;
        return true;
    };
    QTest::keyClick(pFocus, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(fired, 1);
    EXPECT_EQ(seen, 1);
}

TEST_F(KeysTest, AKeyCanBeDispatchedImmediately) {
    m_pDialog->onPreTranslate = [&](MSG* pMsg) {
        if (pMsg->wParam != VK_RETURN && pMsg->wParam != VK_ESCAPE) {
            return false;
        }
        DispatchMessage(pMsg);
        return true;
    };
    auto* const pEdit = static_cast<QLineEdit*>(FrameOf(Edit()));
    int returns = 0;
    QObject::connect(pEdit, &QLineEdit::returnPressed, [&] { ++returns; });
    QTest::keyClick(pEdit, Qt::Key_Return);
    QTest::keyClick(pEdit, Qt::Key_Escape);
    EXPECT_EQ(returns, 1);
    EXPECT_TRUE(m_pDialog->log.empty()) << "the default or cancel button was pressed";
}

TEST_F(KeysTest, AHandlerCanTakeKeysFromItsControl) {
    class DigitsOnly : public CEdit {
    protected:
        const MessageMap* GetMessageMap() const override {
            static constexpr MessageEntry kEntries[] = {MapMessage<&DigitsOnly::OnKey>(WM_KEYDOWN)};
            static const MessageMap kMap{CEdit::GetMessageMap(), kEntries};
            return &kMap;
        }
        LRESULT OnKey(WPARAM key, LPARAM) { return key >= '0' && key <= '9' ? Default() : 0; }
    } digits;
    ASSERT_TRUE(digits.SubclassDlgItem(kEdit, m_pDialog.get()));
    QTest::keyClicks(FrameOf(digits), QStringLiteral("a1b2"));
    EXPECT_EQ(digits.GetWindowText(), L"12");
}

TEST_F(KeysTest, AWindowMayBeDestroyedWhileItsKeyIsPreTranslated) {
    m_pDialog->onPreTranslate = [&](MSG*) {
        m_pDialog->DestroyWindow();
        return false;
    };
    QTest::keyClick(FrameOf(Edit()), Qt::Key_A);
    EXPECT_EQ(m_pDialog->GetSafeHwnd(), nullptr);
}

TEST_F(KeysTest, NestedLoopsInAKeyDoNotRepeatIt) {
    TestDialog nested;
    nested.onInit = [&] {
        Later([&] { QTest::keyClick(WidgetOf(nested), Qt::Key_Return); });
        return true;
    };
    m_pDialog->onCommand = [&](UINT) { EXPECT_EQ(nested.DoModal(), IDOK); };
    QTest::keyClick(FrameOf(Edit()), Qt::Key_Return);
    EXPECT_EQ(m_pDialog->log, std::vector<std::string>{"1:0"});
    EXPECT_EQ(nested.log, std::vector<std::string>{"1:0"});
}

TEST_F(KeysTest, RightButtonReleasesAreEatenExceptForClicksOfAList) {
    auto& list = m_pDialog->Item<CListCtrl>(kList);
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 80);
    list.InsertItem(0, L"row");
    int seen = 0;
    m_pDialog->onPreTranslate = [&](MSG* pMsg) {
        seen += pMsg->message == WM_RBUTTONUP;
        return pMsg->message == WM_RBUTTONUP;
    };
    QTest::mouseClick(WidgetOf(*m_pDialog), Qt::RightButton, {}, {1, 1});
    EXPECT_EQ(seen, 1);
    QTest::mouseClick(WidgetOf(list), Qt::RightButton, {}, {5, 5});
    EXPECT_EQ(seen, 1) << "the release is part of the list's click";
    EXPECT_EQ(m_pDialog->log.back(), "202:-5");
}

TEST_F(KeysTest, AnOpenPopupGetsAllKeys) {
    CMenu menu;
    menu.AppendMenu(MF_STRING, 0, L"First");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING | MF_GRAYED, 8, L"Grey");
    menu.AppendMenu(MF_STRING | MF_CHECKED, 9, L"Ticked");
    CMenu sub;
    sub.AppendMenu(MF_STRING, 77, L"Below");
    menu.AppendMenu(std::move(sub), L"More");
    EXPECT_EQ(menu.GetMenuItemCount(), 5U);
    EXPECT_EQ(menu.GetSubMenu(4)->GetMenuItemID(0), 77U);

    const struct {
        const char* what;
        std::vector<Qt::Key> keys;
        std::optional<UINT> chosen;
    } cases[] = {
        {"id 0 can be chosen", {Qt::Key_Down, Qt::Key_Return}, 0U},
        {"disabled items are skipped", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, 9U},
        {"dismissed", {Qt::Key_Down, Qt::Key_Escape}, {}},
        {"from below", {Qt::Key_Up, Qt::Key_Right, Qt::Key_Return}, 77U},
    };
    for (const auto& c : cases) {
        std::function<void()> step;
        std::size_t next = 0;
        // Submenus open with a delay, so each key is sent after the previous one was processed.
        step = [&] {
            if (next < c.keys.size()) {
                QWidget* const pPopup = QApplication::activePopupWidget();
                ASSERT_TRUE(pPopup) << c.what;
                const Qt::Key key = c.keys[next++];
                QTimer::singleShot(10, qApp, [&] { step(); });
                QTest::keyClick(pPopup, key);
                return;
            }
            while (QWidget* const pPopup = QApplication::activePopupWidget()) {
                pPopup->close();
            }
        };
        Later([&] { step(); });
        const std::optional<UINT> chosen =
            menu.TrackPopupMenu(TPM_RIGHTBUTTON | TPM_RETURNCMD, 20, 20, m_pDialog.get());
        QTest::qWait(20);
        EXPECT_EQ(chosen, c.chosen) << c.what;
    }
    EXPECT_TRUE(m_pDialog->log.empty()) << "keys of the menu reached the dialog";
    EXPECT_EQ(CMenu().TrackPopupMenu(0, 0, 0, m_pDialog.get()), std::nullopt) << "empty";
}

} // namespace
