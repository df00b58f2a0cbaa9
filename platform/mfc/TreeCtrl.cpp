#include "platform/mfc/TreeCtrl.h"

#include <algorithm>
#include <utility>

#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/TreeWidget.h"

namespace {

TreeWidget* TreeOf(const CTreeCtrl& tree) {
    return WidgetOf<TreeWidget>(tree);
}

HTREEITEM SiblingOf(HTREEITEM item, int step) {
    if (!item) {
        return nullptr;
    }
    const auto& siblings = item->pParent->children;
    const std::size_t place = TreeModel::PlaceOf(*item) + static_cast<std::size_t>(step);
    return place < siblings.size() ? siblings[place].get() : nullptr;
}

HTREEITEM FirstBelow(HTREEITEM item) {
    return item && !item->children.empty() ? item->children.front().get() : nullptr;
}

} // namespace

bool CTreeCtrl::Create(UINT style, const CRect& rect, CWnd* pParent, UINT id) {
    return CreateControl(enmControlKind::TreeView, style, rect, pParent, id);
}

void CTreeCtrl::SetImageList(const CImageList& images) {
    if (TreeWidget* const pTree = TreeOf(*this)) {
        pTree->SetImages(images);
    }
}

HTREEITEM CTreeCtrl::InsertItem(const wchar_t* text, int image, int selectedImage, HTREEITEM parent,
                                HTREEITEM after) {
    TreeWidget* const pTree = TreeOf(*this);
    if (!pTree) {
        return nullptr;
    }
    HTREEITEM const above = parent == TVI_ROOT ? pTree->Nodes().Root() : parent;
    std::size_t place = above->children.size();
    if (after == TVI_FIRST) {
        place = 0;
    } else if (after != TVI_LAST && after && after->pParent == above) {
        place = TreeModel::PlaceOf(*after) + 1;
    }
    auto item = std::make_unique<_TREEITEM>();
    item->text = text;
    item->image = image;
    item->selectedImage = selectedImage;
    return pTree->Nodes().Insert(above, place, std::move(item));
}

bool CTreeCtrl::DeleteItem(HTREEITEM item) {
    TreeWidget* const pTree = TreeOf(*this);
    if (!pTree || !item) {
        return false;
    }
    pTree->Remove(item);
    return true;
}

void CTreeCtrl::DeleteAllItems() {
    if (TreeWidget* const pTree = TreeOf(*this)) {
        pTree->Clear();
    }
}

UINT CTreeCtrl::GetCount() const {
    const TreeWidget* const pTree = TreeOf(*this);
    return pTree ? static_cast<UINT>(pTree->Nodes().Count()) : 0;
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const {
    return item ? item->text : CString();
}

bool CTreeCtrl::SetItemText(HTREEITEM item, const wchar_t* text) {
    TreeWidget* const pTree = TreeOf(*this);
    if (!pTree || !item) {
        return false;
    }
    item->text = text;
    pTree->Nodes().Changed(item);
    return true;
}

bool CTreeCtrl::SetItemImage(HTREEITEM item, int image, int selectedImage) {
    TreeWidget* const pTree = TreeOf(*this);
    if (!pTree || !item) {
        return false;
    }
    item->image = image;
    item->selectedImage = selectedImage;
    pTree->Nodes().Changed(item);
    return true;
}

bool CTreeCtrl::GetItemImage(HTREEITEM item, int& image, int& selectedImage) const {
    if (item) {
        image = item->image;
        selectedImage = item->selectedImage;
    }
    return item != nullptr;
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const {
    return item ? item->data : 0;
}

bool CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR data) {
    if (item) {
        item->data = data;
    }
    return item != nullptr;
}

HTREEITEM CTreeCtrl::GetRootItem() const {
    TreeWidget* const pTree = TreeOf(*this);
    return pTree ? FirstBelow(pTree->Nodes().Root()) : nullptr;
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const {
    return FirstBelow(item);
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const {
    return SiblingOf(item, 1);
}

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM item) const {
    return SiblingOf(item, -1);
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM item) const {
    // Top-level nodes are children of the invisible root, which has no parent.
    return item && item->pParent->pParent ? item->pParent : nullptr;
}

bool CTreeCtrl::ItemHasChildren(HTREEITEM item) const {
    return item && !item->children.empty();
}

HTREEITEM CTreeCtrl::GetSelectedItem() const {
    const TreeWidget* const pTree = TreeOf(*this);
    return pTree ? pTree->Selected() : nullptr;
}

bool CTreeCtrl::SelectItem(HTREEITEM item) {
    TreeWidget* const pTree = TreeOf(*this);
    if (pTree) {
        pTree->Select(item);
    }
    return pTree != nullptr;
}

void CTreeCtrl::SelectDropTarget(HTREEITEM item) {
    if (TreeWidget* const pTree = TreeOf(*this)) {
        const HTREEITEM before = std::exchange(pTree->Nodes().dropTarget, item);
        pTree->Nodes().Changed(before);
        pTree->Nodes().Changed(item);
    }
}

bool CTreeCtrl::Expand(HTREEITEM item, UINT action) {
    TreeWidget* const pTree = TreeOf(*this);
    if (!pTree || !ItemHasChildren(item)) {
        return false;
    }
    const bool open = action == TVE_EXPAND || (action == TVE_TOGGLE && !IsExpanded(item));
    pTree->setExpanded(pTree->Nodes().IndexOf(item), open);
    return true;
}

bool CTreeCtrl::IsExpanded(HTREEITEM item) const {
    const TreeWidget* const pTree = TreeOf(*this);
    return pTree && item && pTree->isExpanded(pTree->Nodes().IndexOf(item));
}

bool CTreeCtrl::EnsureVisible(HTREEITEM item) {
    TreeWidget* const pTree = TreeOf(*this);
    if (!pTree || !item) {
        return false;
    }
    pTree->scrollTo(pTree->Nodes().IndexOf(item));
    return true;
}

HTREEITEM CTreeCtrl::GetFirstVisibleItem() const {
    const TreeWidget* const pTree = TreeOf(*this);
    const QModelIndex index = pTree ? pTree->indexAt(QPoint(0, 0)) : QModelIndex();
    return index.isValid() ? pTree->Nodes().ItemOf(index) : nullptr;
}

bool CTreeCtrl::SelectSetFirstVisible(HTREEITEM item) {
    TreeWidget* const pTree = TreeOf(*this);
    if (pTree && item) {
        pTree->scrollTo(pTree->Nodes().IndexOf(item), QAbstractItemView::PositionAtTop);
    }
    return pTree && item;
}

HTREEITEM CTreeCtrl::HitTest(CPoint point, UINT* pFlags) const {
    const TreeWidget* const pTree = TreeOf(*this);
    UINT flags = TVHT_NOWHERE;
    HTREEITEM item = nullptr;
    if (pTree) {
        const QModelIndex index = pTree->indexAt(ToQPoint(point));
        if (index.isValid()) {
            item = pTree->Nodes().ItemOf(index);
            flags =
                pTree->LabelRect(index).contains(ToQPoint(point)) ? TVHT_ONITEM : TVHT_ONITEMINDENT;
        }
    }
    if (pFlags) {
        *pFlags = flags;
    }
    return item;
}

CRect CTreeCtrl::GetItemRect(HTREEITEM item, bool labelOnly) const {
    const TreeWidget* const pTree = TreeOf(*this);
    if (!pTree || !item) {
        return {};
    }
    const QModelIndex index = pTree->Nodes().IndexOf(item);
    return ToCRect(labelOnly ? pTree->LabelRect(index) : pTree->visualRect(index));
}

bool CTreeCtrl::EditLabel(HTREEITEM item) {
    TreeWidget* const pTree = TreeOf(*this);
    return pTree && item && pTree->EditLabel(item);
}

bool CTreeCtrl::SortChildren(HTREEITEM item) {
    TreeWidget* const pTree = TreeOf(*this);
    if (pTree) {
        pTree->Nodes().Sort(item ? item : pTree->Nodes().Root(),
                            [](const _TREEITEM& a, const _TREEITEM& b) {
                                return a.text.CompareNoCase(b.text) < 0;
                            });
    }
    return pTree != nullptr;
}

bool CTreeCtrl::SortChildren(HTREEITEM item,
                             const std::function<int(DWORD_PTR, DWORD_PTR)>& compare) {
    TreeWidget* const pTree = TreeOf(*this);
    if (pTree) {
        pTree->Nodes().Sort(item ? item : pTree->Nodes().Root(),
                            [&compare](const _TREEITEM& a, const _TREEITEM& b) {
                                return compare(a.data, b.data) < 0;
                            });
    }
    return pTree != nullptr;
}
