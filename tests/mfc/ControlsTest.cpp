// Small controls, and interaction with the desktop: clipboard, drops.
#include "tests/mfc/WindowTest.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "platform/mfc/Button.h"
#include "platform/mfc/Clipboard.h"
#include "platform/mfc/ColorDialog.h"
#include "platform/mfc/ComboBox.h"
#include "platform/mfc/DC.h"
#include "platform/mfc/IIconSource.h"
#include "platform/mfc/ListBox.h"
#include "platform/mfc/Static.h"
#include "platform/mfc/ToolTipCtrl.h"
#include "platform/xtp/XTButton.h"
#include "tests/mfc/TestDialog.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"

namespace {

using Log = std::vector<std::string>;

class ControlsTest : public DialogOnScreenTest {
protected:
};

TEST_F(ControlsTest, AComboReportsOnlySelectionsByTheUser) {
    auto& combo = m_pDialog->Item<CComboBox>(kCombo);
    EXPECT_EQ(combo.SetCurSel(0), CB_ERR);
    EXPECT_EQ(combo.AddString(L"b"), 0);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR) << "nothing was selected yet";
    EXPECT_EQ(combo.AddString(L"c"), 1);
    EXPECT_EQ(combo.InsertString(0, L"a"), 0);
    EXPECT_EQ(combo.InsertString(9, L"x"), CB_ERR);
    combo.SetItemData(1, 0xFFFFFFFFFFFFFFFF);
    EXPECT_EQ(combo.SetCurSel(1), 1);
    EXPECT_EQ(combo.GetItemData(1), 0xFFFFFFFFFFFFFFFF);
    EXPECT_EQ(combo.GetItemData(7), 0U);
    EXPECT_EQ(combo.GetWindowText(), L"b");
    EXPECT_EQ(combo.FindStringExact(-1, L"C"), 2);
    combo.InsertString(0, L"0");
    EXPECT_EQ(combo.GetCurSel(), 2) << "the entry stays selected at its new index";
    EXPECT_EQ(combo.DeleteString(2), 3);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR) << "no neighbour gets selected";
    EXPECT_EQ(combo.SetCurSel(0), 0);
    EXPECT_EQ(combo.SetCurSel(-3), CB_ERR);
    EXPECT_EQ(m_pDialog->TakeLog(), Log());

    QTest::keyClick(FrameOf(combo), Qt::Key_Down);
    EXPECT_EQ(m_pDialog->TakeLog(), Log{"204:1"});
    EXPECT_EQ(combo.GetCurSel(), 0);
    combo.ResetContent();
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(m_pDialog->TakeLog(), Log());
}

TEST_F(ControlsTest, KeysOfAnOpenListDoNotReachTheDialog) {
    auto& combo = m_pDialog->Item<CComboBox>(kCombo);
    combo.AddString(L"a");
    combo.AddString(L"b");
    auto* const pCombo = static_cast<QComboBox*>(FrameOf(combo));
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        pCombo->showPopup();
        ASSERT_TRUE(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget()
                                                    : QApplication::activePopupWidget(),
                        key);
        pCombo->hidePopup();
        for (const std::string& entry : m_pDialog->TakeLog()) {
            EXPECT_EQ(entry, "204:1") << "a button of the dialog was pressed";
        }
    }
}

TEST_F(ControlsTest, OnlyAutomaticChecksChangeByThemselves) {
    const Rows<UINT, int> cases = {{BS_AUTOCHECKBOX, 1},
                                   {BS_AUTOCHECKBOX | BS_PUSHLIKE, 1},
                                   {BS_CHECKBOX, 0},
                                   {BS_CHECKBOX | BS_PUSHLIKE, 0},
                                   {BS_PUSHBUTTON, 0}};
    UINT id = 300;
    for (const auto& [style, afterClick] : cases) {
        CButton button;
        button.Create(L"x", style | WS_VISIBLE, {0, 0, 60, 20}, m_pDialog.get(), ++id);
        m_pDialog->log.clear();
        QTest::mouseClick(WidgetOf(button), Qt::LeftButton, {}, {5, 10});
        EXPECT_EQ(button.GetCheck(), afterClick) << style;
        EXPECT_EQ(m_pDialog->log, Log{std::to_string(id) + ":0"}) << style;
        button.SetCheck(1);
        EXPECT_EQ(m_pDialog->log.size(), 1U) << "the program's own change was reported";
        button.EnableWindow(false);
        QTest::mouseClick(WidgetOf(button), Qt::LeftButton, {}, {5, 10});
        EXPECT_EQ(m_pDialog->log.size(), 1U);
    }
}

TEST_F(ControlsTest, AButtonShowsAnIconAndAToolTip) {
    class Source : public IIconSource {
    public:
        CImage GetImage(HICON, CSize size) override {
            const std::vector<std::uint32_t> pixels(static_cast<std::size_t>(size.cx * size.cy),
                                                    0xFF00FF00U);
            return {size.cx, size.cy, pixels};
        }
    } source;
    auto& button = m_pDialog->Item<CButton>(kPush);
    int handle = 0;
    button.SetWindowText(L"");
    button.SetIcon(&handle, {16, 16});
    EXPECT_TRUE(static_cast<QAbstractButton*>(FrameOf(button))->icon().isNull()) << "no source";
    IIconSource* const pBefore = SetIconSource(&source);
    button.SetIcon(&handle, {16, 16});
    SetIconSource(pBefore);
    const QPoint middle = FrameOf(button)->rect().center();
    EXPECT_EQ(FrameOf(button)->grab().toImage().pixelColor(middle), QColor(0, 255, 0));
    CToolTipCtrl tips;
    EXPECT_TRUE(tips.Create(m_pDialog.get()));
    EXPECT_TRUE(tips.AddTool(&button, L"Zoom"));
    tips.UpdateTipText(L"Collapse", &button);
    EXPECT_EQ(tips.GetText(&button), L"Collapse");
    EXPECT_FALSE(tips.AddTool(nullptr, L""));
    EXPECT_TRUE(CImage(4, 4, std::vector<std::uint32_t>(15)).IsNull()) << "one pixel too few";
    EXPECT_TRUE(CImage::FromFile(L"/nowhere/picture.png").IsNull());
}

TEST_F(ControlsTest, AFlatButtonShowsItsEdgeWhileCheckedAndAGapShrinksThePicture) {
    CXTButton button;
    ASSERT_TRUE(button.Create(L"", BS_AUTOCHECKBOX | BS_PUSHLIKE | WS_VISIBLE, {10, 10, 40, 40},
                              m_pDialog.get(), 500));
    const auto looks = [&] { return FrameOf(button)->grab().toImage(); };
    const auto count = [&](QColor color) {
        const QImage picture = looks();
        int pixels = 0;
        for (int at = 0; at < picture.width() * picture.height(); ++at) {
            pixels += picture.pixelColor(at % picture.width(), at / picture.width()) == color;
        }
        return pixels;
    };
    const auto hasEdge = [&] { return count(looks().pixelColor(0, 0)) < 30 * 30; };
    EXPECT_TRUE(hasEdge());
    button.SetXButtonStyle(BS_XT_FLAT);
    EXPECT_FALSE(hasEdge());
    button.SetCheck(1);
    EXPECT_TRUE(hasEdge());
    const std::vector<std::uint32_t> pixels(24 * 24, 0xFFFF0000U);
    button.SetImage(CImage(24, 24, pixels));
    EXPECT_EQ(count(Qt::red), 24 * 24);
    button.SetBorderGap(8);
    EXPECT_EQ(count(Qt::red), 14 * 14);
}

TEST_F(ControlsTest, AColourIsChosenFromATableOrAtThePrompt) {
    int color = 20;
    const auto press = [](QList<Qt::Key> keys) {
        Later([keys] {
            QWidget* const pDialog = QApplication::activeModalWidget();
            auto* const pTable = pDialog->findChild<QWidget*>("Colours");
            for (const Qt::Key key : keys) {
                QTest::keyClick(key == Qt::Key_Escape ? pDialog : pTable, key);
            }
            QMetaObject::invokeMethod(pDialog, keys.last() == Qt::Key_Escape ? "reject" : "accept");
        });
    };
    press({Qt::Key_Right, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up});
    EXPECT_TRUE(acedSetColorDialog(color, false, 0));
    EXPECT_EQ(color, 5);
    press({Qt::Key_Right, Qt::Key_Escape});
    EXPECT_FALSE(acedSetColorDialog(color, false, 0));
    EXPECT_EQ(color, 5);
    AfxSetDesktopMode(false);
    TestHost host;
    host.Answer({L"255"});
    EXPECT_TRUE(acedSetColorDialog(color, false, 0));
    EXPECT_EQ(color, 255);
    host.Answer({L"256"});
    EXPECT_FALSE(acedSetColorDialog(color, false, 0));
    EXPECT_EQ(color, 255);
}

/// The parent provides the colours of its controls.
TEST_F(ControlsTest, ColoursOfTheParentTakePrecedence) {
    class Colored : public TestDialog {
    public:
        const CBrush blue{RGB(0, 0, 255)};
        HBRUSH answer = nullptr;
        UINT type = 0;

    protected:
        const MessageMap* GetMessageMap() const override {
            static constexpr MessageEntry kEntries[] = {
                MapMessage<&Colored::OnCtlColor>(WM_CTLCOLOR)};
            static const MessageMap kMap{TestDialog::GetMessageMap(), kEntries};
            return &kMap;
        }
        HBRUSH OnCtlColor(CDC* pDC, CWnd* pControl, UINT t) {
            if (pControl->GetDlgCtrlID() < 400) {
                return TestDialog::OnCtlColor(pDC, pControl, t);
            }
            type = t;
            pDC->SetTextColor(RGB(255, 255, 255));
            return answer;
        }
    } parent;
    parent.Create();
    CXColorStatic bar;
    bar.Create(L"", WS_VISIBLE, {0, 0, 40, 20}, &parent, 400);
    bar.SetBkColor(RGB(0, 255, 0));
    const auto colorOf = [](const CWnd& wnd) {
        return FrameOf(wnd)->grab().toImage().pixelColor(20, 10);
    };
    EXPECT_EQ(colorOf(bar), QColor(0, 255, 0)) << "the control's own";
    EXPECT_EQ(parent.type, CTLCOLOR_STATIC);
    parent.answer = &parent.blue;
    EXPECT_EQ(colorOf(bar), QColor(0, 0, 255)) << "the parent's";
    parent.answer = CBrush::Hollow();
    EXPECT_NE(colorOf(bar), QColor(0, 255, 0)) << "none";

    CButton button;
    button.Create(L"", WS_VISIBLE | BS_OWNERDRAW, {0, 0, 40, 20}, &parent, 401);
    parent.answer = &parent.blue;
    EXPECT_EQ(colorOf(button), QColor(0, 0, 255));
    EXPECT_EQ(parent.type, CTLCOLOR_BTN);
}

TEST_F(ControlsTest, ListBoxesSortAndSelectAccordingToStyle) {
    auto& lines = m_pDialog->Item<CListBox>(kLines);
    EXPECT_EQ(lines.AddString(L"pipes"), 0);
    EXPECT_EQ(lines.AddString(L"Valves"), 1);
    EXPECT_EQ(lines.AddString(L"Nodes"), 0);
    EXPECT_EQ(lines.GetText(2), L"Valves");
    EXPECT_EQ(lines.GetText(3), L"");
    EXPECT_TRUE(lines.SetSel(2));
    EXPECT_TRUE(lines.SetSel(0));
    EXPECT_FALSE(lines.SetSel(9));
    EXPECT_EQ(lines.GetSelItems(), (std::vector<int>{0, 2}));
    EXPECT_EQ(lines.AddString(L"A"), 0);
    EXPECT_EQ(lines.GetSelItems(), (std::vector<int>{1, 3})) << "the selection moves with its line";
    EXPECT_EQ(lines.SetCurSel(2), 2);
    EXPECT_EQ(lines.GetSelItems(), std::vector<int>{2});
    lines.ResetContent();
    EXPECT_EQ(lines.GetCount(), 0);
    EXPECT_EQ(lines.GetCurSel(), LB_ERR);
}

TEST_F(ControlsTest, TheClipboardHoldsSeveralFormats) {
    const UINT own = RegisterClipboardFormat(L"Tessaly rows");
    EXPECT_EQ(RegisterClipboardFormat(L"Tessaly rows"), own);
    EXPECT_NE(RegisterClipboardFormat(L"Other rows"), own);
    const std::vector<std::byte> data = {std::byte{1}, std::byte{0}, std::byte{255}};
    CClipboardContent content;
    content.SetText(L"Náme\tÜ\r\n");
    content.SetData(own, data);
    content.SetData(12345, data); // not registered
    content.Put();
    EXPECT_EQ(GetClipboardText(), L"Náme\tÜ\r\n");
    EXPECT_EQ(GetClipboardData(own), data);
    EXPECT_TRUE(IsClipboardFormatAvailable(CF_UNICODETEXT));
    EXPECT_FALSE(IsClipboardFormatAvailable(12345));
    CClipboardContent text;
    text.SetText(L"only text");
    text.Put();
    EXPECT_FALSE(IsClipboardFormatAvailable(own)) << "the previous content was replaced";
    EXPECT_TRUE(GetClipboardData(own).empty());
    QApplication::clipboard()->clear();
}

TEST_F(ControlsTest, FilesCanBeDroppedWhereTheyAreAccepted) {
    class Target : public TestDialog {
    public:
        std::vector<CString> files;

    protected:
        const MessageMap* GetMessageMap() const override {
            static constexpr MessageEntry kEntries[] = {
                MapMessage<&Target::OnDropFiles>(WM_DROPFILES)};
            static const MessageMap kMap{TestDialog::GetMessageMap(), kEntries};
            return &kMap;
        }
        void OnDropFiles(HDROP drop) {
            for (int i = 0; i < GetDropFileCount(drop); ++i) {
                files.push_back(GetDropFile(drop, i));
            }
            EXPECT_TRUE(GetDropFile(drop, 99).IsEmpty());
            TestDialog::OnDropFiles(drop);
        }
    } target;
    target.Create();
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/Módule one.ARX")),
                  QUrl(QStringLiteral("https://example.org/x")),
                  QUrl::fromLocalFile(QStringLiteral("/tmp/notes.txt"))});
    EXPECT_FALSE(WidgetOf(target)->acceptDrops());
    target.DragAcceptFiles();
    ASSERT_TRUE(WidgetOf(target)->acceptDrops());
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(WidgetOf(target), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(WidgetOf(target), &drop);
    EXPECT_EQ(target.files, (std::vector<CString>{L"/tmp/Módule one.ARX", L"/tmp/notes.txt"}));
}

} // namespace
