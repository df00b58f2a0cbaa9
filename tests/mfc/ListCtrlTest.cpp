// Report lists: rows and cells, selection, clicks, stages of painting, speed.
#include "tests/mfc/WindowTest.h"

#include <chrono>

#include "platform/mfc/ListCtrl.h"
#include "tests/mfc/TestDialog.h"

namespace {

using Log = std::vector<std::string>;

class ListCtrlTest : public DialogOnScreenTest {
protected:
    void SetUp() override {
        DialogOnScreenTest::SetUp();
        m_pDialog->onNotify = [this](NMHDR* pHeader) -> LRESULT {
            if (pHeader->code == LVN_ITEMCHANGED) {
                const auto& change = *reinterpret_cast<NMLISTVIEW*>(pHeader);
                m_changes.push_back((change.uNewState & LVIS_SELECTED ? "+" : "-") +
                                    std::to_string(change.iItem));
            } else {
                const auto& click = *reinterpret_cast<NMITEMACTIVATE*>(pHeader);
                m_clicks.push_back(std::to_string(static_cast<int>(click.hdr.code)) + "@" +
                                   std::to_string(click.iItem));
            }
            return -1;
        };
    }
    CListCtrl& List() { return m_pDialog->Item<CListCtrl>(kList); }
    void Fill(int rows) {
        List().InsertColumn(0, L"Name", LVCFMT_LEFT, 80);
        List().InsertColumn(1, L"Count", LVCFMT_RIGHT, 40);
        for (int row = 0; row < rows; ++row) {
            List().InsertItem(row, std::to_wstring(row).c_str());
            List().SetItemData(row, static_cast<DWORD_PTR>(row));
        }
    }
    std::vector<int> Selected() {
        std::vector<int> rows;
        for (int row = -1; (row = List().GetNextItem(row, LVNI_SELECTED)) >= 0;) {
            rows.push_back(row);
        }
        return rows;
    }
    std::wstring Column(int column) {
        std::wstring text;
        for (int row = 0; row < List().GetItemCount(); ++row) {
            text += List().GetItemText(row, column).Str() + L" ";
        }
        return text;
    }
    CPoint Middle(int row) { return List().GetSubItemRect(row, 0).CenterPoint(); }
    void Click(int row, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(WidgetOf(List()), button, keys, {Middle(row).x, Middle(row).y});
    }

    Log m_changes;
    Log m_clicks;
};

TEST_F(ListCtrlTest, RowsAndColumnsKeepTheirCells) {
    CListCtrl& list = List();
    EXPECT_EQ(list.InsertItem(5, L"b", 3), 0) << "the end";
    EXPECT_FALSE(list.SetItemText(0, 1, L"x")) << "no such column";
    EXPECT_EQ(list.InsertColumn(0, L"Name"), 0);
    EXPECT_EQ(list.InsertColumn(9, L"Count", LVCFMT_RIGHT, 77), 1);
    EXPECT_EQ(list.GetColumnWidth(1), 77);
    EXPECT_EQ(list.InsertItem(0, L"a"), 0);
    EXPECT_TRUE(list.SetItemText(0, 1, L"1"));
    EXPECT_TRUE(list.SetItemText(1, 1, L"2"));
    EXPECT_FALSE(list.SetItemText(2, 0, L"no such row"));
    EXPECT_EQ(list.InsertColumn(1, L"Kind"), 1);
    EXPECT_EQ(list.GetColumnText(2), L"Count");
    EXPECT_EQ(Column(0), L"a b ");
    EXPECT_EQ(Column(1), L"  ");
    EXPECT_EQ(Column(2), L"1 2 ");
    EXPECT_EQ(list.GetItemImage(1), 3);
    EXPECT_TRUE(list.DeleteColumn(1));
    EXPECT_EQ(Column(1), L"1 2 ");
    LVITEM item;
    item.mask = LVIF_TEXT | LVIF_PARAM | LVIF_STATE;
    item.iItem = 1;
    item.pszText = L"m";
    item.lParam = -5;
    item.state = item.stateMask = LVIS_SELECTED;
    EXPECT_EQ(list.InsertItem(item), 1);
    EXPECT_EQ(static_cast<LPARAM>(list.GetItemData(1)), -5);
    EXPECT_EQ(list.GetItemState(1, LVIS_SELECTED), LVIS_SELECTED);
    item.mask = LVIF_PARAM;
    item.lParam = 8;
    EXPECT_TRUE(list.SetItem(item));
    EXPECT_EQ(list.GetItemText(1, 0), L"m") << "a field that is not in the mask";
    EXPECT_EQ(list.GetItemData(1), 8U);
    EXPECT_EQ(list.GetItemData(99), 0U);
}

TEST_F(ListCtrlTest, EachSelectionChangeIsReported) {
    Fill(5);
    List().SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    List().SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);
    List().SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(m_changes, (Log{"+1", "+3"}));
    EXPECT_EQ(Selected(), (std::vector<int>{1, 3}));
    m_changes.clear();
    Click(2);
    EXPECT_EQ(m_changes, (Log{"-1", "-3", "+2"}));
    Click(4, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(List().GetSelectedCount(), 2);
    m_changes.clear();
    List().InsertItem(0, L"new");
    EXPECT_EQ(Selected(), (std::vector<int>{3, 5})) << "the selection moves with its rows";
    List().DeleteItem(3);
    List().DeleteAllItems();
    EXPECT_EQ(m_changes, Log()) << "deleted rows send no notification";
    EXPECT_EQ(Selected(), std::vector<int>());
    Fill(3);
    m_changes.clear();
    List().SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(m_changes, (Log{"+0", "+1", "+2"}));
    List().SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_EQ(List().GetSelectedCount(), 0);
}

TEST_F(ListCtrlTest, ClicksAreReportedAfterTheSelectionAndAlsoOutsideRows) {
    Fill(2);
    Log order;
    m_pDialog->onNotify = [&](NMHDR* pHeader) -> LRESULT {
        order.push_back(pHeader->code == LVN_ITEMCHANGED ? "changed" : "click");
        return 0;
    };
    Click(1);
    EXPECT_EQ(order, (Log{"changed", "click"}));

    TearDown();
    SetUp();
    Fill(2);
    Click(1);
    Click(0, Qt::RightButton);
    EXPECT_EQ(Selected(), std::vector<int>{0}) << "the right button selects, too";
    QTest::mouseClick(WidgetOf(List()), Qt::LeftButton, {}, {5, WidgetOf(List())->height() - 3});
    QTest::mouseDClick(WidgetOf(List()), Qt::LeftButton, {}, {Middle(1).x, Middle(1).y});
    EXPECT_EQ(m_clicks, (Log{"-2@1", "-5@0", "-2@-1", "-3@1", "-114@1"}));
    m_clicks.clear();
    QTest::mousePress(WidgetOf(List()), Qt::LeftButton, {}, {Middle(1).x, Middle(1).y});
    QTest::mouseRelease(WidgetOf(List()), Qt::LeftButton, {}, {-50, -50});
    EXPECT_EQ(m_clicks, Log()) << "the button was released elsewhere";
    List().SetFocus();
    List().SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED);
    QTest::keyClick(FrameOf(List()), Qt::Key_Return);
    EXPECT_EQ(m_clicks, Log{"-114@1"});
}

TEST_F(ListCtrlTest, SortingIsStableAndKeepsTheSelection) {
    Fill(4);
    List().SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);
    m_changes.clear();
    List().SortItems([](DWORD_PTR a, DWORD_PTR b) {
        return static_cast<int>(b % 2) - static_cast<int>(a % 2); // odd ones first
    });
    EXPECT_EQ(Column(0), L"1 3 0 2 ");
    EXPECT_EQ(Selected(), std::vector<int>{1});
    EXPECT_EQ(m_changes, Log());
}

TEST_F(ListCtrlTest, ColumnsFitTheirContentOrHeader) {
    Fill(2);
    List().SetItemText(1, 0, L"a rather long text of a cell");
    List().SetColumnWidth(0, LVSCW_AUTOSIZE);
    const int content = List().GetColumnWidth(0);
    EXPECT_GT(content, 80);
    List().SetItemText(1, 0, L"x");
    List().SetColumnWidth(0, LVSCW_AUTOSIZE);
    EXPECT_LT(List().GetColumnWidth(0), 40);
    const int narrow = List().GetColumnWidth(0);
    List().SetColumnWidth(0, LVSCW_AUTOSIZE_USEHEADER);
    EXPECT_GT(List().GetColumnWidth(0), narrow) << "the header is wider";
    List().SetColumnWidth(1, LVSCW_AUTOSIZE_USEHEADER);
    EXPECT_EQ(List().GetColumnWidth(0) + List().GetColumnWidth(1), WidgetOf(List())->width())
        << "the last column takes the remaining space";
    EXPECT_FALSE(List().SetColumnWidth(2, 50));
}

/// Handles the stages of painting like a list with custom styles.
class StagesList : public CListCtrl {
public:
    Log stages;
    const CFont bold{[] {
        LOGFONT font;
        font.lfWeight = 700;
        return font;
    }()};

protected:
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageEntry kEntries[] = {
            MapNotifyReflect<&StagesList::OnCustomDraw>(NM_CUSTOMDRAW)};
        static const MessageMap kMap{CListCtrl::GetMessageMap(), kEntries};
        return &kMap;
    }
    void OnCustomDraw(NMHDR* pHeader, LRESULT* pResult) {
        auto& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(pHeader);
        static const std::map<UINT, std::string> kNames = {
            {CDDS_PREPAINT, "all"},
            {CDDS_ITEMPREPAINT, "row"},
            {CDDS_ITEMPOSTPAINT, "row done"},
            {CDDS_SUBITEM | CDDS_ITEMPREPAINT, "cell"},
            {CDDS_SUBITEM | CDDS_ITEMPOSTPAINT, "cell done"}};
        stages.push_back(kNames.at(draw.dwDrawStage));
        switch (draw.dwDrawStage) {
        case CDDS_PREPAINT:
            *pResult = CDRF_NOTIFYITEMDRAW;
            break;
        case CDDS_ITEMPREPAINT:
            m_wasSelected = GetItemState(draw.iItem, LVIS_SELECTED) != 0;
            SetItemState(draw.iItem, 0, LVIS_SELECTED);
            *pResult = CDRF_NOTIFYSUBITEMDRAW | CDRF_NOTIFYPOSTPAINT;
            break;
        case CDDS_SUBITEM | CDDS_ITEMPREPAINT:
            m_pFontBefore = draw.pDC->SelectObject(&bold);
            draw.clrTextBk = draw.iSubItem == 1 ? RGB(0, 0, 255) : RGB(255, 255, 0);
            *pResult = CDRF_NEWFONT | CDRF_NOTIFYPOSTPAINT;
            break;
        case CDDS_SUBITEM | CDDS_ITEMPOSTPAINT:
            draw.pDC->SelectObject(m_pFontBefore);
            break;
        default:
            SetItemState(draw.iItem, m_wasSelected ? LVIS_SELECTED : 0, LVIS_SELECTED);
        }
    }

private:
    bool m_wasSelected = false;
    const CFont* m_pFontBefore = nullptr;
};

TEST_F(ListCtrlTest, PaintingCallsAllStagesAndUsesTheirColours) {
    StagesList list;
    ASSERT_TRUE(list.SubclassDlgItem(kList, m_pDialog.get()));
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 60);
    list.InsertColumn(1, L"Colour", LVCFMT_LEFT, 60);
    list.InsertItem(0, L"");
    list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    QTest::qWait(50); // let pending paints finish
    m_changes.clear();
    list.stages.clear();
    QWidget* const pView = WidgetOf(list);
    const QImage picture = pView->grab().toImage();
    EXPECT_EQ(list.stages,
              (Log{"all", "row", "cell", "cell done", "cell", "cell done", "row done"}));
    const CPoint name = list.GetSubItemRect(0, 0).CenterPoint();
    const CPoint color = list.GetSubItemRect(0, 1).CenterPoint();
    EXPECT_EQ(picture.pixelColor(name.x, name.y), QColor(255, 255, 0)) << "not the highlight";
    EXPECT_EQ(picture.pixelColor(color.x, color.y), QColor(0, 0, 255));
    EXPECT_EQ(list.GetItemState(0, LVIS_SELECTED), LVIS_SELECTED) << "restored after painting";
    EXPECT_EQ(m_changes, Log()) << "temporary state changes are not reported";
    list.stages.clear();
    QTest::qWait(50);
    EXPECT_EQ(list.stages, Log()) << "painting triggered a repaint";
}

TEST_F(ListCtrlTest, AddsAHundredThousandRowsFastAtBothEnds) {
    const auto begin = std::chrono::steady_clock::now();
    Fill(100000);
    for (int i = 0; i < 100000; ++i) {
        List().InsertItem(0, L"newest first");
    }
    List().EnsureVisible(150000);
    WidgetOf(List())->grab();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(List().GetItemCount(), 200000);
    EXPECT_EQ(List().GetItemText(199999, 0), L"99999");
    // Much more than it takes, but much less than quadratic time.
    EXPECT_LT(took.count(), 8.0);
}

} // namespace
