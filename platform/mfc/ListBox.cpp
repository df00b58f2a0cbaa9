#include "platform/mfc/ListBox.h"

#include <algorithm>

#include <QItemSelectionModel>

#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/ListBoxWidget.h"

QVariant LinesModel::data(const QModelIndex& index, int role) const {
    return role == Qt::DisplayRole ? QVariant(ToQString(Line(index.row()).View())) : QVariant();
}

int LinesModel::Add(CString line) {
    auto place = m_lines.end();
    if (m_sorted) {
        place = std::upper_bound(
            m_lines.begin(), m_lines.end(), line,
            [](const CString& a, const CString& b) { return a.CompareNoCase(b) < 0; });
    }
    const int row = static_cast<int>(place - m_lines.begin());
    beginInsertRows({}, row, row);
    m_lines.insert(place, std::move(line));
    endInsertRows();
    return row;
}

void LinesModel::Clear() {
    beginResetModel();
    m_lines.clear();
    endResetModel();
}

ListBoxWidget::ListBoxWidget(QWidget* pParent, UINT style)
    : HookedArea(pParent), m_lines((style & LBS_SORT) != 0) {
    setModel(&m_lines);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(style & LBS_EXTENDEDSEL ? ExtendedSelection : SingleSelection);
}

void ListBoxWidget::AppendLines(std::vector<std::wstring>& lines) const {
    for (int row = 0; row < m_lines.rowCount(); ++row) {
        lines.push_back(m_lines.Line(row).Str());
    }
}

bool CListBox::Create(UINT style, const CRect& rect, CWnd* pParent, UINT id) {
    return CreateControl(enmControlKind::ListBox, style, rect, pParent, id);
}

int CListBox::AddString(const wchar_t* text) {
    auto* const pList = WidgetOf<ListBoxWidget>(*this);
    return pList ? pList->Lines().Add(text) : LB_ERR;
}

void CListBox::ResetContent() {
    if (auto* const pList = WidgetOf<ListBoxWidget>(*this)) {
        pList->Lines().Clear();
    }
}

int CListBox::GetCount() const {
    const auto* const pList = WidgetOf<ListBoxWidget>(*this);
    return pList ? pList->Lines().rowCount() : 0;
}

CString CListBox::GetText(int index) const {
    return index >= 0 && index < GetCount() ? WidgetOf<ListBoxWidget>(*this)->Lines().Line(index)
                                            : CString();
}

int CListBox::GetCurSel() const {
    const std::vector<int> selected = GetSelItems();
    return selected.empty() ? LB_ERR : selected.front();
}

int CListBox::SetCurSel(int index) {
    if (auto* const pList = WidgetOf<ListBoxWidget>(*this)) {
        pList->selectionModel()->clearSelection();
    }
    return SetSel(index) ? index : LB_ERR;
}

bool CListBox::GetSel(int index) const {
    const auto* const pList = WidgetOf<ListBoxWidget>(*this);
    return pList && pList->selectionModel()->isSelected(pList->Lines().index(index));
}

bool CListBox::SetSel(int index, bool selected) {
    if (index < 0 || index >= GetCount()) {
        return false;
    }
    auto* const pList = WidgetOf<ListBoxWidget>(*this);
    pList->selectionModel()->select(pList->Lines().index(index),
                                    selected ? QItemSelectionModel::Select
                                             : QItemSelectionModel::Deselect);
    return true;
}

std::vector<int> CListBox::GetSelItems() const {
    std::vector<int> rows;
    if (const auto* const pList = WidgetOf<ListBoxWidget>(*this)) {
        for (const QModelIndex& index : pList->selectionModel()->selectedIndexes()) {
            rows.push_back(index.row());
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}
