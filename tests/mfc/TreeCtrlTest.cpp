// Trees: nodes and their order, selection, labels, drags, speed.
#include "tests/mfc/WindowTest.h"

#include <chrono>

#include <QLineEdit>

#include "platform/mfc/TreeCtrl.h"
#include "tests/mfc/TestDialog.h"
#include "tests/support/Rows.h"

namespace {

using Log = std::vector<std::string>;

class TreeCtrlTest : public DialogOnScreenTest {
protected:
    void SetUp() override {
        DialogOnScreenTest::SetUp();
        m_pDialog->onNotify = [this](NMHDR* pHeader) -> LRESULT { return Note(pHeader); };
    }

    LRESULT Note(NMHDR* pHeader) {
        const auto& change = *reinterpret_cast<NMTREEVIEW*>(pHeader);
        const auto& label = *reinterpret_cast<NMTVDISPINFO*>(pHeader);
        switch (pHeader->code) {
        case TVN_SELCHANGED:
            m_log.push_back("select " + Name(change.itemOld) + ">" + Name(change.itemNew));
            return 0;
        case TVN_ITEMEXPANDED:
            m_log.push_back((change.action == TVE_EXPAND ? "open " : "shut ") +
                            Name(change.itemNew));
            return 0;
        case TVN_BEGINDRAG:
            m_log.push_back("drag " + Name(change.itemNew));
            return 0;
        case TVN_BEGINLABELEDIT:
            m_log.push_back("edit " + Name(label.item));
            return m_refuseEdit ? 1 : 0;
        case TVN_ENDLABELEDIT:
            m_log.push_back(
                "label " + Name(label.item) + "=" +
                (label.pszText ? QString::fromWCharArray(label.pszText).toStdString() : "nothing"));
            return m_refuseLabel ? 0 : 1;
        default:
            m_log.push_back("click " + std::to_string(static_cast<int>(pHeader->code)));
            return 0;
        }
    }
    std::string Name(HTREEITEM item) {
        return item ? QString::fromStdWString(Tree().GetItemText(item).Str()).toStdString() : "-";
    }
    /// A branch as text: "a(b c(d))".
    std::string Shape(HTREEITEM item) {
        std::string text = Name(item);
        if (Tree().ItemHasChildren(item)) {
            text += "(" + Level(Tree().GetChildItem(item)) + ")";
        }
        return text;
    }
    std::string Level(HTREEITEM item) {
        std::string text;
        for (; item; item = Tree().GetNextSiblingItem(item)) {
            text += (text.empty() ? "" : " ") + Shape(item);
        }
        return text;
    }
    std::string Shape() { return Level(Tree().GetRootItem()); }
    CTreeCtrl& Tree() { return m_pDialog->Item<CTreeCtrl>(kTree); }
    HTREEITEM Add(const wchar_t* text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST) {
        return Tree().InsertItem(text, -1, -1, parent, after);
    }
    QPoint On(HTREEITEM item) {
        const CRect label = Tree().GetItemRect(item, true);
        return {label.CenterPoint().x, label.CenterPoint().y};
    }

    Log m_log;
    bool m_refuseEdit = false;
    bool m_refuseLabel = false;
};

TEST_F(TreeCtrlTest, NodesAreInsertedAtTheGivenPositions) {
    EXPECT_EQ(Tree().GetRootItem(), nullptr);
    const HTREEITEM b = Add(L"b");
    const HTREEITEM d = Add(L"d");
    const HTREEITEM c = Add(L"c", TVI_ROOT, b);
    const HTREEITEM a = Add(L"a", TVI_ROOT, TVI_FIRST);
    const HTREEITEM b2 = Add(L"b2", b);
    Add(L"b1", b, TVI_FIRST);
    Add(L"x", b2);
    EXPECT_EQ(Shape(), "a b(b1 b2(x)) c d");
    EXPECT_EQ(Tree().GetRootItem(), a);
    EXPECT_EQ(Tree().GetParentItem(b2), b);
    EXPECT_EQ(Tree().GetParentItem(b), nullptr);
    EXPECT_EQ(Tree().GetPrevSiblingItem(d), c);
    EXPECT_EQ(Tree().GetPrevSiblingItem(a), nullptr);
    EXPECT_EQ(Tree().GetNextSiblingItem(d), nullptr);
    EXPECT_EQ(Tree().GetCount(), 7U);
    EXPECT_TRUE(Tree().DeleteItem(b));
    EXPECT_EQ(Shape(), "a c d");
    EXPECT_EQ(Tree().GetCount(), 3U);
    EXPECT_EQ(Tree().GetPrevSiblingItem(d), c);
    EXPECT_FALSE(Tree().DeleteItem(nullptr));
    Tree().DeleteAllItems();
    EXPECT_EQ(Tree().GetCount(), 0U);
    EXPECT_EQ(Shape(), "");
}

TEST_F(TreeCtrlTest, SelectionChangesReportTheOldAndTheNewNode) {
    const HTREEITEM a = Add(L"a");
    const HTREEITEM b = Add(L"b", a);
    const HTREEITEM c = Add(L"c");
    EXPECT_EQ(Tree().GetSelectedItem(), nullptr) << "nothing was selected yet";
    Tree().SelectItem(b);
    EXPECT_TRUE(Tree().IsExpanded(a)) << "it must be visible";
    Tree().SelectItem(b);
    QTest::mouseClick(WidgetOf(Tree()), Qt::LeftButton, {}, On(c));
    QTest::mouseClick(WidgetOf(Tree()), Qt::RightButton, {}, On(a));
    EXPECT_EQ(Tree().GetSelectedItem(), c) << "the right button does not select";
    Tree().SelectItem(nullptr);
    EXPECT_EQ(m_log,
              (Log{"open a", "select ->b", "select b>c", "click -2", "click -5", "select c>-"}));
    m_log.clear();
    Tree().SelectItem(b);
    Tree().DeleteItem(a);
    EXPECT_EQ(Tree().GetSelectedItem(), nullptr) << "no neighbour takes over";
    EXPECT_EQ(m_log.back(), "select b>-") << "reported before the node was deleted";
    Tree().SelectItem(c);
    m_log.clear();
    Tree().DeleteAllItems();
    EXPECT_EQ(Tree().GetSelectedItem(), nullptr);
    EXPECT_EQ(m_log, Log());
}

TEST_F(TreeCtrlTest, BranchesExpandAndCollapse) {
    const HTREEITEM a = Add(L"a");
    EXPECT_FALSE(Tree().Expand(a, TVE_EXPAND)) << "nothing below";
    const HTREEITEM b = Add(L"b", a);
    EXPECT_TRUE(Tree().GetItemRect(b, false).IsRectEmpty());
    EXPECT_TRUE(Tree().Expand(a, TVE_TOGGLE));
    EXPECT_FALSE(Tree().GetItemRect(b, false).IsRectEmpty());
    Tree().Expand(a, TVE_EXPAND);
    Tree().Expand(a, TVE_COLLAPSE);
    EXPECT_FALSE(Tree().IsExpanded(a));
    Tree().EnsureVisible(b);
    EXPECT_TRUE(Tree().IsExpanded(a));
    EXPECT_EQ(m_log, (Log{"open a", "shut a", "open a"}));
    m_log.clear();
    QTest::mouseClick(WidgetOf(Tree()), Qt::LeftButton, {}, On(a));
    QTest::mouseDClick(WidgetOf(Tree()), Qt::LeftButton, {}, On(a));
    EXPECT_EQ(m_log, (Log{"select ->a", "click -2", "shut a", "click -3"}));
}

TEST_F(TreeCtrlTest, APointBesideALabelHitsItsNode) {
    const HTREEITEM a = Add(L"a");
    const HTREEITEM b = Add(L"b", a);
    Tree().Expand(a, TVE_EXPAND);
    const CRect label = Tree().GetItemRect(b, true);
    UINT flags = 0;
    EXPECT_EQ(Tree().HitTest(label.CenterPoint(), &flags), b);
    EXPECT_EQ(flags, TVHT_ONITEM);
    EXPECT_EQ(Tree().HitTest({1, label.CenterPoint().y}, &flags), b) << "the indent";
    EXPECT_EQ(flags, TVHT_ONITEMINDENT);
    EXPECT_EQ(Tree().HitTest({5, 500}, &flags), nullptr);
    EXPECT_EQ(flags, TVHT_NOWHERE);
}

TEST_F(TreeCtrlTest, LabelEditsCanBeRefused) {
    const Rows<const char*, bool, bool, Qt::Key, std::string, Log> cases = {
        {"edited", false, false, Qt::Key_Return, "new", {"edit old", "label old=new"}},
        {"refused at the end", false, true, Qt::Key_Return, "old", {"edit old", "label old=new"}},
        {"cancelled", false, false, Qt::Key_Escape, "old", {"edit old", "label old=nothing"}},
        {"refused at once", true, false, Qt::Key_Return, "old", {"edit old"}},
    };
    for (const auto& [what, refuseEdit, refuseLabel, end, label, log] : cases) {
        Tree().DeleteAllItems();
        const HTREEITEM item = Add(L"old");
        m_log.clear();
        m_refuseEdit = refuseEdit;
        m_refuseLabel = refuseLabel;
        EXPECT_EQ(Tree().EditLabel(item), !refuseEdit) << what;
        if (auto* const pEditor = WidgetOf(Tree())->findChild<QLineEdit*>()) {
            pEditor->setText(QStringLiteral("new"));
            QTest::keyClick(pEditor, end);
            AfxPumpMessages();
        }
        EXPECT_EQ(Name(item), label) << what;
        EXPECT_EQ(m_log, log) << what;
        EXPECT_TRUE(m_pDialog->IsWindowVisible()) << what;
    }
}

TEST_F(TreeCtrlTest, ARefusedClickOnASelectedLabelGivesNoWarning) {
    const HTREEITEM item = Add(L"fixed");
    Tree().SelectItem(item);
    m_refuseEdit = true;
    AfxPumpMessages();
    const CRect label = Tree().GetItemRect(item, true);
    QTest::mouseClick(WidgetOf(Tree()), Qt::LeftButton, {}, QPoint(label.left + 4, label.top + 4));
    m_log.clear();
    // The toolkit waits for a possible double click.
    QTest::qWait(2 * QApplication::doubleClickInterval());
    EXPECT_EQ(m_log, std::vector<std::string>{"edit fixed"});
}

TEST_F(TreeCtrlTest, ADragStartsAfterTheMinimumDistance) {
    const HTREEITEM a = Add(L"a");
    Add(L"b");
    QWidget* const pView = WidgetOf(Tree());
    const QPoint from = On(a);
    const auto move = [pView](QPoint to) {
        QMouseEvent event(QEvent::MouseMove, to, pView->mapToGlobal(to), Qt::NoButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(pView, &event);
    };
    QTest::mousePress(pView, Qt::LeftButton, {}, from);
    move(from + QPoint(1, 0));
    EXPECT_EQ(m_log, Log{"select ->a"});
    move(from + QPoint(40, 0));
    move(from + QPoint(41, 0));
    EXPECT_EQ(m_log, (Log{"select ->a", "drag a"}));
    QTest::mouseRelease(pView, Qt::LeftButton, {}, from + QPoint(41, 0));
    EXPECT_EQ(m_log, (Log{"select ->a", "drag a"})) << "a drag is not a click";
}

TEST_F(TreeCtrlTest, ChildrenAreSortedByTextOrData) {
    const HTREEITEM top = Add(L"top");
    const wchar_t* const names[] = {L"b", L"C", L"a", L"B"};
    DWORD_PTR data = 4;
    for (const wchar_t* const name : names) {
        Tree().SetItemData(Add(name, top), data--);
    }
    Add(L"below", Tree().GetChildItem(top));
    Tree().SelectItem(Tree().GetChildItem(top));
    m_log.clear();
    EXPECT_TRUE(Tree().SortChildren(top));
    EXPECT_EQ(Shape(), "top(a b(below) B C)");
    EXPECT_EQ(Name(Tree().GetSelectedItem()), "b");
    Tree().SortChildren(top, [](DWORD_PTR x, DWORD_PTR y) { return x < y ? -1 : x > y; });
    EXPECT_EQ(Shape(), "top(B a C b(below))");
    Tree().SortChildren(TVI_ROOT);
    EXPECT_EQ(m_log, Log());
}

} // namespace
