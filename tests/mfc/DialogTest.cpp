// Dialogs: layout, keys, modal loops, prompts, and behaviour without a desktop.
#include "tests/mfc/WindowTest.h"

#include <clocale>

#include <QMessageBox>
#include <QPushButton>

#include "platform/mfc/Button.h"
#include "platform/mfc/DataExchange.h"
#include "platform/mfc/ListBox.h"
#include "platform/mfc/ListCtrl.h"
#include "platform/mfc/MessageBox.h"
#include "tests/mfc/TestDialog.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"

namespace {

using Log = std::vector<std::string>;

class DialogTest : public WindowTest {};

TEST_F(DialogTest, DialogUnitsAreQuartersAndEighthsOfALetter) {
    const Rows<CRect, CSize, CRect> cases = {
        {{0, 0, 4, 8}, {6, 13}, {0, 0, 6, 13}},
        {{7, 7, 78, 21}, {6, 13}, {11, 11, 117, 34}}, // rounded, halves up
        {{-7, -7, 0, 0}, {6, 13}, {-11, -11, 0, 0}},
        {{1, 1, 2, 2}, {8, 16}, {2, 2, 4, 4}},
    };
    for (const auto& [units, base, pixels] : cases) {
        EXPECT_EQ(FromDialogUnits(units, base), pixels) << units.left;
    }
}

TEST_F(DialogTest, ControlsArePositionedByTheTemplate) {
    TestDialog dialog;
    ASSERT_TRUE(dialog.Create());
    EXPECT_FALSE(dialog.Create()) << "a second window";
    EXPECT_EQ(dialog.GetWindowText(), L"Test");
    const CRect client = dialog.GetClientRect();
    EXPECT_EQ(client.Size(), dialog.MapDialogRect({0, 0, 250, 115}).Size());
    EXPECT_GT(dialog.GetWindowRect().Height(), client.Height()) << "no caption";
    for (const DialogItem& item : kTestItems) {
        const CWnd* const pItem = dialog.GetDlgItem(item.id);
        ASSERT_TRUE(pItem) << item.id;
        const CRect wanted =
            dialog.MapDialogRect({item.x, item.y, item.x + item.cx, item.y + item.cy});
        const CRect place = dialog.ScreenToClient(pItem->GetWindowRect());
        EXPECT_EQ(place.TopLeft(), wanted.TopLeft()) << item.id;
        EXPECT_EQ(place.Width(), wanted.Width()) << item.id;
        if (item.kind == enmControlKind::ComboBox) {
            EXPECT_LT(place.Height(), wanted.Height()) << "the height of the open list was used";
        } else {
            EXPECT_EQ(place.Height(), wanted.Height()) << item.id;
        }
        EXPECT_FALSE(pItem->IsWindowVisible()) << item.id;
    }
    dialog.ShowWindow(SW_SHOW);
    EXPECT_TRUE(dialog.GetDlgItem(kEdit)->IsWindowVisible());
    EXPECT_FALSE(TestDialog(nullptr, 12345).Create()) << "no such template";
}

TEST_F(DialogTest, DataIsExchangedInBothDirections) {
    class Exchanging : public TestDialog {
    public:
        int check = 1;
        CString text = L"first";
        CListCtrl list;
        UINT unknown = 0;

    protected:
        void DoDataExchange(CDataExchange* pExchange) override {
            DDX_Control(pExchange, kList, list);
            DDX_Check(pExchange, kCheck, check);
            DDX_Text(pExchange, kEdit, text);
            if (unknown) {
                DDX_Text(pExchange, unknown, text);
            }
        }
    } dialog;
    EXPECT_FALSE(dialog.UpdateData(false)) << "without a window";
    dialog.Create();
    EXPECT_EQ(dialog.GetDlgItem(kList), &dialog.list) << "the object is attached to the control";
    EXPECT_EQ(dialog.Item<CButton>(kCheck).GetCheck(), 1);
    EXPECT_EQ(dialog.GetDlgItem(kEdit)->GetWindowText(), L"first");
    dialog.Item<CButton>(kCheck).Click();
    dialog.GetDlgItem(kEdit)->SetWindowText(L"second");
    EXPECT_TRUE(dialog.UpdateData());
    EXPECT_EQ(dialog.check, 0);
    EXPECT_EQ(dialog.text, L"second");
    dialog.unknown = 999;
    EXPECT_FALSE(dialog.UpdateData());
    dialog.unknown = 0;
    dialog.DestroyWindow();
    ASSERT_TRUE(dialog.Create()) << "created again";
    EXPECT_EQ(dialog.list.InsertColumn(0, L"c"), 0);
}

TEST_F(DialogTest, EnterAndEscapeReachTheRightButton) {
    const Rows<const char*, UINT, Qt::Key, Log> cases = {
        {"edit", kEdit, Qt::Key_Return, {"1:0"}},
        {"keypad", kEdit, Qt::Key_Enter, {"1:0"}},
        {"check box", kCheck, Qt::Key_Return, {"1:0"}},
        {"focused button", kPush, Qt::Key_Return, {"205:0"}},
        {"cancel button", IDCANCEL, Qt::Key_Return, {"2:0"}},
        {"list", kList, Qt::Key_Return, {}},
        {"escape", kEdit, Qt::Key_Escape, {"2:0"}},
        {"another key", kEdit, Qt::Key_X, {}},
    };
    for (const auto& [what, focus, key, commands] : cases) {
        TestDialog dialog;
        dialog.Create();
        dialog.ShowWindow(SW_SHOW);
        AfxPumpMessages();
        dialog.onCommand = [](UINT) {};
        dialog.GetDlgItem(focus)->SetFocus();
        EXPECT_EQ(CWnd::GetFocus(), dialog.GetDlgItem(focus)) << what;
        QTest::keyClick(FrameOf(*dialog.GetDlgItem(focus)), key);
        EXPECT_EQ(dialog.log, commands) << what;
    }
}

TEST_F(DialogTest, ModalLoopsNestAndEndInAnyHandler) {
    TestDialog outer;
    TestDialog inner;
    Log order;
    inner.onInit = [&] {
        Later([&] {
            EXPECT_TRUE(inner.IsWindowVisible());
            EXPECT_EQ(FrameOf(inner)->windowModality(), Qt::ApplicationModal);
            order.push_back("inner");
            QTest::keyClick(WidgetOf(inner), Qt::Key_Escape);
        });
        return true;
    };
    outer.onCommand = [&](UINT id) {
        if (id == kPush) {
            order.push_back("in");
            EXPECT_EQ(inner.DoModal(), IDCANCEL);
            order.push_back("out");
            EXPECT_EQ(inner.GetSafeHwnd(), nullptr);
        } else {
            outer.EndDialog(77);
        }
    };
    outer.onInit = [&] {
        Later([&] {
            outer.Item<CButton>(kPush).Click();
            QTest::mouseClick(WidgetOf(*outer.GetDlgItem(IDOK)), Qt::LeftButton);
        });
        return true;
    };
    EXPECT_EQ(outer.DoModal(), 77);
    EXPECT_EQ(order, (Log{"in", "inner", "out"}));
    EXPECT_EQ(outer.GetSafeHwnd(), nullptr);
}

TEST_F(DialogTest, EndingBeforeTheLoopAndClosing) {
    TestDialog early;
    early.onInit = [&] {
        early.EndDialog(5);
        return true;
    };
    EXPECT_EQ(early.DoModal(), 5);
    TestDialog unknown(nullptr, 12345);
    EXPECT_EQ(unknown.DoModal(), -1);

    TestDialog closed;
    closed.onInit = [&] {
        Later([&] { FrameOf(closed)->close(); });
        return true;
    };
    EXPECT_EQ(closed.DoModal(), IDCANCEL);
    EXPECT_EQ(closed.log, Log{"2:0"});

    TestDialog stays;
    stays.Create();
    stays.ShowWindow(SW_SHOW);
    stays.onCommand = [](UINT) {};
    FrameOf(stays)->close();
    EXPECT_TRUE(stays.IsWindowVisible()) << "its handler decides whether it closes";
    stays.onCommand = nullptr;
    FrameOf(stays)->close();
    EXPECT_FALSE(stays.IsWindowVisible());
    EXPECT_TRUE(stays.GetSafeHwnd()) << "a modeless dialog is hidden";
}

TEST_F(DialogTest, AModalDialogHidesWhileTheUserPicks) {
    TestDialog dialog;
    dialog.onInit = [&] {
        Later([&] {
            dialog.BeginEditorCommand();
            EXPECT_FALSE(dialog.IsWindowVisible());
            EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
            dialog.CompleteEditorCommand();
            EXPECT_TRUE(dialog.IsWindowVisible());
            dialog.EndDialog(3);
        });
        return true;
    };
    EXPECT_EQ(dialog.DoModal(), 3);
}

TEST_F(DialogTest, MessageBoxesAskAndNestInDialogs) {
    const struct {
        UINT type;
        QMessageBox::StandardButton press;
        int answer;
    } cases[] = {
        {MB_OK | MB_ICONINFORMATION, QMessageBox::Ok, IDOK},
        {MB_YESNO | MB_ICONQUESTION, QMessageBox::Yes, IDYES},
        {MB_YESNO | MB_ICONSTOP, QMessageBox::No, IDNO},
        {MB_YESNOCANCEL, QMessageBox::Cancel, IDCANCEL},
        {MB_OKCANCEL, QMessageBox::NoButton, IDCANCEL}, // Escape
        {MB_YESNO, QMessageBox::NoButton, IDNO},
    };
    for (const auto& c : cases) {
        TestDialog dialog;
        int answer = 0;
        dialog.onInit = [&] {
            Later([&] {
                Later([&] {
                    auto* const pBox =
                        dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
                    ASSERT_TRUE(pBox);
                    EXPECT_EQ(pBox->text(), QStringLiteral("Really?"));
                    if (c.press == QMessageBox::NoButton) {
                        QTest::keyClick(pBox, Qt::Key_Escape);
                    } else {
                        pBox->button(c.press)->click();
                    }
                });
                answer = dialog.MessageBox(L"Really?", L"Halvane", c.type);
                dialog.EndDialog(1);
            });
            return true;
        };
        dialog.DoModal();
        EXPECT_EQ(answer, c.answer) << c.type;
        EXPECT_EQ(dialog.log, Log()) << "the key was passed on to the dialog";
    }
}

TEST_F(DialogTest, WithoutADesktopDialogsPrintAndQuestionsAskAtThePrompt) {
    TestHost host;
    AfxSetDesktopMode(false);
    TestDialog dialog;
    dialog.onInit = [&] {
        auto& list = dialog.Item<CListCtrl>(kList);
        list.InsertColumn(0, L"Name");
        list.InsertColumn(1, L"Value");
        list.InsertItem(0, L"Pipes");
        list.SetItemText(0, 1, L"12");
        dialog.Item<CListBox>(kLines).AddString(L"one line");
        dialog.GetDlgItem(kEdit)->SetWindowText(L"written");
        return true;
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(host.TakeOutput(), "\nTest\n  written\n  Pipes\t12\n  one line\n  A text & more\n");

    const Rows<UINT, std::vector<const wchar_t*>, int> cases = {
        {MB_YESNO, {L"y"}, IDYES},
        {MB_YESNO, {L"NO"}, IDNO},
        {MB_YESNO, {L"\x1B"}, IDNO},
        {MB_YESNOCANCEL, {L"\x1B"}, IDCANCEL},
        {MB_OKCANCEL, {L"cancel"}, IDCANCEL},
        {MB_YESNO, {L"", L"perhaps", L"yes"}, IDYES},
    };
    for (const auto& [type, answers, result] : cases) {
        for (const wchar_t* const answer : answers) {
            host.Answer({answer});
        }
        EXPECT_EQ(AfxMessageBox(L"Go on?", type), result) << type;
        EXPECT_TRUE(host.AllAnswered());
    }
    EXPECT_EQ(dialog.MessageBox(L"Done.", L"Halvane", MB_OK), IDOK);
    EXPECT_EQ(host.Alerts(), std::vector<std::wstring>{L"Done."});
}

TEST_F(DialogTest, NumbersKeepTheDecimalPoint) {
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

} // namespace
