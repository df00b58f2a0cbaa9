#include <algorithm>

#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/TreeWidget.h"

namespace {

std::size_t CountBelow(const _TREEITEM& item) {
    std::size_t count = item.children.size();
    for (const std::unique_ptr<_TREEITEM>& child : item.children) {
        count += CountBelow(*child);
    }
    return count;
}

} // namespace

std::size_t TreeModel::PlaceOf(const _TREEITEM& item) {
    const _TREEITEM& parent = *item.pParent;
    const auto guess = static_cast<std::size_t>(item.place - parent.firstPlace);
    if (guess < parent.children.size() && parent.children[guess].get() == &item) {
        return guess;
    }
    std::ptrdiff_t place = parent.firstPlace;
    for (const auto& sibling : parent.children) {
        sibling->place = place++;
    }
    return static_cast<std::size_t>(item.place - parent.firstPlace);
}

HTREEITEM TreeModel::ItemOf(const QModelIndex& index) const {
    return static_cast<HTREEITEM>(index.internalPointer());
}

QModelIndex TreeModel::IndexOf(HTREEITEM item) const {
    return item && item != &m_root ? createIndex(static_cast<int>(PlaceOf(*item)), 0, item)
                                   : QModelIndex();
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
    const _TREEITEM& above = parent.isValid() ? *ItemOf(parent) : m_root;
    if (column != 0 || row < 0 || static_cast<std::size_t>(row) >= above.children.size()) {
        return {};
    }
    const auto place = static_cast<std::size_t>(row);
    return createIndex(row, 0, above.children[place].get());
}

QModelIndex TreeModel::parent(const QModelIndex& index) const {
    return index.isValid() ? IndexOf(ItemOf(index)->pParent) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
    const _TREEITEM& above = parent.isValid() ? *ItemOf(parent) : m_root;
    return static_cast<int>(above.children.size());
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
    const HTREEITEM item = ItemOf(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return ToQString(item->text.View());
    case Qt::DecorationRole: {
        const int image =
            item == selected && item->selectedImage >= 0 ? item->selectedImage : item->image;
        return image >= 0 && image < static_cast<int>(images.size())
                   ? QVariant(images[static_cast<std::size_t>(image)])
                   : QVariant();
    }
    case Qt::BackgroundRole:
        return item == dropTarget ? QVariant(ToQColor(GetSysColor(COLOR_HIGHLIGHT))) : QVariant();
    case Qt::ForegroundRole:
        return item == dropTarget ? QVariant(ToQColor(GetSysColor(COLOR_HIGHLIGHTTEXT)))
                                  : QVariant();
    default:
        return {};
    }
}

bool TreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const HTREEITEM item = ItemOf(index);
    if (role != Qt::EditRole || !onEdited) {
        return false;
    }
    const CString text = ToCString(value.toString());
    if (!onEdited(item, text)) {
        return false;
    }
    item->text = text;
    Changed(item);
    return true;
}

Qt::ItemFlags TreeModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags usual = QAbstractItemModel::flags(index) | Qt::ItemIsDragEnabled;
    return editable ? usual | Qt::ItemIsEditable : usual;
}

HTREEITEM TreeModel::Insert(HTREEITEM parent, std::size_t place, std::unique_ptr<_TREEITEM> item) {
    const HTREEITEM added = item.get();
    added->pParent = parent;
    const int row = static_cast<int>(place);
    beginInsertRows(IndexOf(parent), row, row);
    if (row == 0) {
        --parent->firstPlace;
    }
    added->place = parent->firstPlace + row;
    parent->children.insert(parent->children.begin() + row, std::move(item));
    ++m_count;
    endInsertRows();
    return added;
}

void TreeModel::Remove(HTREEITEM item) {
    const HTREEITEM parent = item->pParent;
    const int row = static_cast<int>(PlaceOf(*item));
    m_count -= 1 + CountBelow(*item);
    beginRemoveRows(IndexOf(parent), row, row);
    parent->children.erase(parent->children.begin() + row);
    if (row == 0) {
        ++parent->firstPlace;
    }
    endRemoveRows();
}

void TreeModel::Clear() {
    beginResetModel();
    m_root.children.clear();
    m_count = 0;
    selected = nullptr;
    dropTarget = nullptr;
    endResetModel();
}

void TreeModel::Changed(HTREEITEM item) {
    if (item) {
        const QModelIndex index = IndexOf(item);
        dataChanged(index, index);
    }
}

void TreeModel::Sort(HTREEITEM parent,
                     const std::function<bool(const _TREEITEM&, const _TREEITEM&)>& less) {
    layoutAboutToBeChanged({QPersistentModelIndex(IndexOf(parent))});
    const QModelIndexList before = persistentIndexList();
    std::stable_sort(parent->children.begin(), parent->children.end(),
                     [&less](const auto& a, const auto& b) { return less(*a, *b); });
    std::ptrdiff_t place = parent->firstPlace;
    for (const auto& child : parent->children) {
        child->place = place++;
    }
    QModelIndexList after;
    for (const QModelIndex& old : before) {
        after.append(IndexOf(ItemOf(old)));
    }
    changePersistentIndexList(before, after);
    layoutChanged({QPersistentModelIndex(IndexOf(parent))});
}
