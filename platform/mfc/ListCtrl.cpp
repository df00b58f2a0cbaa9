#include "platform/mfc/ListCtrl.h"

#include <algorithm>
#include <utility>

#include <QHeaderView>

#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/ListWidget.h"

namespace {

ListWidget* ListOf(const CListCtrl& list) {
    return WidgetOf<ListWidget>(list);
}

/// The list's widget if the row exists, else null.
ListWidget* WithRow(const CListCtrl& list, int row) {
    ListWidget* const pList = ListOf(list);
    return pList && pList->Rows().HasRow(row) ? pList : nullptr;
}

} // namespace

bool CListCtrl::Create(UINT style, const CRect& rect, CWnd* pParent, UINT id) {
    return CreateControl(enmControlKind::ListView, style, rect, pParent, id);
}

void CListCtrl::SetExtendedStyle(UINT style) {
    if (ListWidget* const pList = ListOf(*this)) {
        pList->SetExtendedStyle(style);
    }
}

void CListCtrl::SetImageList(const CImageList& images) {
    if (ListWidget* const pList = ListOf(*this)) {
        pList->SetImages(images);
    }
}

void CListCtrl::SetTextColor(COLORREF color) {
    if (ListWidget* const pList = ListOf(*this)) {
        pList->SetTextColor(color);
    }
}

void CListCtrl::SetTextBkColor(COLORREF color) {
    if (ListWidget* const pList = ListOf(*this)) {
        pList->SetBackColor(color);
    }
}

COLORREF CListCtrl::GetTextColor() const {
    const ListWidget* const pList = ListOf(*this);
    return pList ? pList->TextColor() : 0;
}

COLORREF CListCtrl::GetTextBkColor() const {
    const ListWidget* const pList = ListOf(*this);
    return pList ? pList->BackColor() : 0;
}

int CListCtrl::InsertColumn(int column, const wchar_t* heading, int format, int width) {
    ListWidget* const pList = ListOf(*this);
    if (!pList || column < 0) {
        return -1;
    }
    const int place = std::min(column, pList->Rows().columnCount());
    pList->Rows().InsertColumn(place, {heading, format});
    if (width >= 0) {
        pList->setColumnWidth(place, width);
    }
    return place;
}

bool CListCtrl::DeleteColumn(int column) {
    ListWidget* const pList = ListOf(*this);
    if (!pList || !pList->Rows().HasColumn(column)) {
        return false;
    }
    pList->ChangeQuietly([&] { pList->Rows().RemoveColumn(column); });
    return true;
}

int CListCtrl::GetColumnCount() const {
    const ListWidget* const pList = ListOf(*this);
    return pList ? pList->Rows().columnCount() : 0;
}

CString CListCtrl::GetColumnText(int column) const {
    const ListWidget* const pList = ListOf(*this);
    return pList && pList->Rows().HasColumn(column) ? pList->Rows().Column(column).heading
                                                    : CString();
}

int CListCtrl::GetColumnWidth(int column) const {
    const ListWidget* const pList = ListOf(*this);
    return pList ? pList->columnWidth(column) : 0;
}

bool CListCtrl::SetColumnWidth(int column, int width) {
    ListWidget* const pList = ListOf(*this);
    if (!pList || !pList->Rows().HasColumn(column)) {
        return false;
    }
    if (width == LVSCW_AUTOSIZE || width == LVSCW_AUTOSIZE_USEHEADER) {
        const bool useHeader = width == LVSCW_AUTOSIZE_USEHEADER;
        width = pList->ContentWidth(column);
        if (useHeader) {
            width = std::max(width, pList->HeaderWidth(column));
            if (column + 1 == pList->Rows().columnCount()) {
                const int left = pList->header()->sectionPosition(column);
                width = std::max(width, pList->viewport()->width() - left);
            }
        }
    }
    pList->setColumnWidth(column, std::max(0, width));
    return true;
}

int CListCtrl::InsertItem(int row, const wchar_t* text, int image) {
    LVITEM item;
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = row;
    item.pszText = text;
    item.iImage = image;
    return InsertItem(item);
}

int CListCtrl::InsertItem(const LVITEM& item) {
    ListWidget* const pList = ListOf(*this);
    if (!pList || item.iItem < 0) {
        return -1;
    }
    ListRow row;
    if (item.mask & LVIF_TEXT) {
        row.cells.emplace_back(item.pszText);
    }
    if (item.mask & LVIF_IMAGE) {
        row.image = item.iImage;
    }
    if (item.mask & LVIF_PARAM) {
        row.data = static_cast<DWORD_PTR>(item.lParam);
    }
    const int place = std::min(item.iItem, pList->Rows().rowCount());
    pList->Rows().InsertRow(place, std::move(row));
    if (item.mask & LVIF_STATE) {
        pList->SetState(place, item.state, item.stateMask);
    }
    return place;
}

bool CListCtrl::SetItem(const LVITEM& item) {
    ListWidget* const pList = WithRow(*this, item.iItem);
    if (!pList) {
        return false;
    }
    if (item.mask & LVIF_TEXT) {
        SetItemText(item.iItem, item.iSubItem, item.pszText);
    }
    if (item.mask & LVIF_IMAGE) {
        SetItemImage(item.iItem, item.iImage);
    }
    if (item.mask & LVIF_PARAM) {
        SetItemData(item.iItem, static_cast<DWORD_PTR>(item.lParam));
    }
    if (item.mask & LVIF_STATE) {
        pList->SetState(item.iItem, item.state, item.stateMask);
    }
    return true;
}

bool CListCtrl::SetItemText(int row, int column, const wchar_t* text) {
    ListWidget* const pList = WithRow(*this, row);
    if (!pList || !pList->Rows().HasColumn(column)) {
        return false;
    }
    pList->Rows().SetCell(row, column, text);
    return true;
}

CString CListCtrl::GetItemText(int row, int column) const {
    const ListWidget* const pList = WithRow(*this, row);
    return pList && column >= 0 ? pList->Rows().Cell(row, column) : CString();
}

bool CListCtrl::SetItemImage(int row, int image) {
    ListWidget* const pList = WithRow(*this, row);
    if (pList) {
        pList->Rows().Row(row).image = image;
        pList->Rows().Changed(row);
    }
    return pList != nullptr;
}

int CListCtrl::GetItemImage(int row) const {
    const ListWidget* const pList = WithRow(*this, row);
    return pList ? pList->Rows().Row(row).image : -1;
}

bool CListCtrl::SetItemData(int row, DWORD_PTR data) {
    ListWidget* const pList = WithRow(*this, row);
    if (pList) {
        pList->Rows().Row(row).data = data;
    }
    return pList != nullptr;
}

DWORD_PTR CListCtrl::GetItemData(int row) const {
    const ListWidget* const pList = WithRow(*this, row);
    return pList ? pList->Rows().Row(row).data : 0;
}

bool CListCtrl::DeleteItem(int row) {
    ListWidget* const pList = WithRow(*this, row);
    if (pList) {
        pList->ChangeQuietly([&] { pList->Rows().RemoveRow(row); });
    }
    return pList != nullptr;
}

void CListCtrl::DeleteAllItems() {
    if (ListWidget* const pList = ListOf(*this)) {
        pList->ChangeQuietly([&] { pList->Rows().Clear(); });
    }
}

int CListCtrl::GetItemCount() const {
    const ListWidget* const pList = ListOf(*this);
    return pList ? pList->Rows().rowCount() : 0;
}

bool CListCtrl::SetItemState(int row, UINT state, UINT mask) {
    ListWidget* const pList = row == -1 ? ListOf(*this) : WithRow(*this, row);
    if (pList) {
        pList->SetState(row, state, mask);
    }
    return pList != nullptr;
}

UINT CListCtrl::GetItemState(int row, UINT mask) const {
    const ListWidget* const pList = WithRow(*this, row);
    return pList ? pList->State(row) & mask : 0;
}

int CListCtrl::GetSelectedCount() const {
    const ListWidget* const pList = ListOf(*this);
    int count = 0;
    if (pList) {
        for (const QItemSelectionRange& range : pList->selectionModel()->selection()) {
            count += range.height();
        }
    }
    return count;
}

int CListCtrl::GetNextItem(int after, UINT flags) const {
    const ListWidget* const pList = ListOf(*this);
    const int next = std::max(after, -1) + 1;
    if (!pList || !pList->Rows().HasRow(next)) {
        return -1;
    }
    if (!(flags & LVNI_SELECTED)) {
        return next;
    }
    int nearest = -1;
    for (const QItemSelectionRange& range : pList->selectionModel()->selection()) {
        const int row = std::max(range.top(), next);
        if (row <= range.bottom() && (nearest < 0 || row < nearest)) {
            nearest = row;
        }
    }
    return nearest;
}

bool CListCtrl::EnsureVisible(int row) {
    ListWidget* const pList = WithRow(*this, row);
    if (pList) {
        pList->scrollTo(pList->Rows().index(row, 0));
    }
    return pList != nullptr;
}

void CListCtrl::Update(int row) {
    if (ListWidget* const pList = WithRow(*this, row)) {
        pList->Rows().Changed(row);
    }
}

void CListCtrl::RedrawItems() {
    Invalidate();
}

int CListCtrl::HitTest(CPoint point) const {
    const ListWidget* const pList = ListOf(*this);
    return pList ? pList->indexAt(ToQPoint(point)).row() : -1;
}

CRect CListCtrl::GetSubItemRect(int row, int column) const {
    const ListWidget* const pList = WithRow(*this, row);
    return pList ? ToCRect(pList->visualRect(pList->Rows().index(row, column))) : CRect();
}

void CListCtrl::SortItems(const std::function<int(DWORD_PTR, DWORD_PTR)>& compare) {
    if (ListWidget* const pList = ListOf(*this)) {
        pList->ChangeQuietly([&] { pList->Rows().Sort(compare); });
    }
}
