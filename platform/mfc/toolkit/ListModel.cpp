#include <algorithm>
#include <unordered_map>

#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/ListWidget.h"

QModelIndex ListModel::index(int row, int column, const QModelIndex& parent) const {
    return !parent.isValid() && HasRow(row) && HasColumn(column) ? createIndex(row, column)
                                                                 : QModelIndex();
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole) {
        return ToQString(Cell(index.row(), index.column()).View());
    }
    return {};
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || !HasColumn(section)) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return ToQString(Column(section).heading.View());
    }
    if (role == Qt::TextAlignmentRole) {
        const int format = Column(section).format;
        return static_cast<int>(Qt::AlignVCenter | (format == LVCFMT_RIGHT    ? Qt::AlignRight
                                                    : format == LVCFMT_CENTER ? Qt::AlignHCenter
                                                                              : Qt::AlignLeft));
    }
    return {};
}

const CString& ListModel::Cell(int row, int column) const {
    static const CString kNone;
    const std::vector<CString>& cells = Row(row).cells;
    const auto place = static_cast<std::size_t>(column);
    return place < cells.size() ? cells[place] : kNone;
}

void ListModel::SetCell(int row, int column, const wchar_t* text) {
    std::vector<CString>& cells = Row(row).cells;
    const auto place = static_cast<std::size_t>(column);
    if (place >= cells.size()) {
        cells.resize(place + 1);
    }
    cells[place] = text;
    dataChanged(index(row, column), index(row, column));
}

void ListModel::Changed(int row) {
    dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void ListModel::InsertColumn(int place, ListColumn column) {
    beginInsertColumns({}, place, place);
    const bool pushes = HasColumn(place); // rows may have texts before columns exist
    m_columns.insert(m_columns.begin() + place, std::move(column));
    for (const std::unique_ptr<ListRow>& row : m_rows) {
        if (pushes && static_cast<std::size_t>(place) < row->cells.size()) {
            row->cells.insert(row->cells.begin() + place, CString());
        }
    }
    endInsertColumns();
}

void ListModel::RemoveColumn(int column) {
    beginRemoveColumns({}, column, column);
    m_columns.erase(m_columns.begin() + column);
    for (const std::unique_ptr<ListRow>& row : m_rows) {
        if (static_cast<std::size_t>(column) < row->cells.size()) {
            row->cells.erase(row->cells.begin() + column);
        }
    }
    endRemoveColumns();
}

void ListModel::InsertRow(int place, ListRow row) {
    beginInsertRows({}, place, place);
    m_rows.insert(m_rows.begin() + place, std::make_unique<ListRow>(std::move(row)));
    endInsertRows();
}

void ListModel::RemoveRow(int row) {
    beginRemoveRows({}, row, row);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
}

void ListModel::Clear() {
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

void ListModel::Sort(const std::function<int(DWORD_PTR, DWORD_PTR)>& compare) {
    layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    std::vector<const ListRow*> rowsBefore;
    for (const QModelIndex& old : before) {
        rowsBefore.push_back(&Row(old.row()));
    }
    std::stable_sort(m_rows.begin(), m_rows.end(), [&compare](const auto& a, const auto& b) {
        return compare(a->data, b->data) < 0;
    });
    std::unordered_map<const ListRow*, int> places;
    if (!before.isEmpty()) {
        for (int row = 0; row < rowCount(); ++row) {
            places.emplace(&Row(row), row);
        }
    }
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i) {
        after.append(index(places.at(rowsBefore[static_cast<std::size_t>(i)]), before[i].column()));
    }
    changePersistentIndexList(before, after);
    layoutChanged();
}
