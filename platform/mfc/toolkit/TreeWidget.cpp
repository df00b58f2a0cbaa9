#include "platform/mfc/toolkit/TreeWidget.h"

#include <utility>

#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include "platform/mfc/toolkit/Convert.h"

namespace {

bool IsWithin(const _TREEITEM* pItem, const _TREEITEM* pBranch) {
    while (pItem && pItem != pBranch) {
        pItem = pItem->pParent;
    }
    return pItem != nullptr;
}

void AppendBranch(const _TREEITEM& item, std::size_t depth, std::vector<std::wstring>& lines) {
    for (const std::unique_ptr<_TREEITEM>& child : item.children) {
        lines.push_back(std::wstring(2 * depth, L' ') + child->text.Str());
        AppendBranch(*child, depth + 1, lines);
    }
}

} // namespace

TreeWidget::TreeWidget(QWidget* pParent, UINT style) : HookedArea(pParent) {
    m_model.editable = (style & TVS_EDITLABELS) != 0;
    m_model.onEdited = [this](HTREEITEM item, const CString& text) {
        m_edited = nullptr;
        return TellLabel(TVN_ENDLABELEDIT, item, text) != 0;
    };
    setModel(&m_model);
    setUniformRowHeights(true);
    setHeaderHidden(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(m_model.editable ? SelectedClicked : NoEditTriggers);
    setRootIsDecorated((style & TVS_HASBUTTONS) != 0);
    setDragEnabled(!(style & TVS_DISABLEDRAGDROP));
    setExpandsOnDoubleClick(true);
    header()->setStretchLastSection(true);
    QObject::connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const QModelIndexList rows = selectionModel()->selectedIndexes();
        TellSelection(rows.isEmpty() ? nullptr : m_model.ItemOf(rows.front()));
    });
    QObject::connect(this, &QTreeView::expanded, this,
                     [this](const QModelIndex& index) { TellExpanded(index, TVE_EXPAND); });
    QObject::connect(this, &QTreeView::collapsed, this,
                     [this](const QModelIndex& index) { TellExpanded(index, TVE_COLLAPSE); });
}

void TreeWidget::SetImages(const CImageList& images) {
    m_model.images.clear();
    for (int index = 0; index < images.GetImageCount(); ++index) {
        m_model.images.push_back(ToRowIcon(images.GetImage(index)));
    }
    setIconSize(QSize(images.ImageSize().cx, images.ImageSize().cy));
    viewport()->update();
}

void TreeWidget::Select(HTREEITEM item) {
    if (item) {
        for (HTREEITEM above = item->pParent; above->pParent; above = above->pParent) {
            expand(m_model.IndexOf(above));
        }
        setCurrentIndex(m_model.IndexOf(item));
    } else {
        selectionModel()->clear();
    }
}

void TreeWidget::Remove(HTREEITEM item) {
    // The toolkit would select a neighbour; removing the selected node must leave none selected.
    const bool losesSelection = IsWithin(m_model.selected, item);
    if (IsWithin(m_model.dropTarget, item)) {
        m_model.dropTarget = nullptr;
    }
    if (losesSelection) {
        selectionModel()->clear();
    }
    m_model.Remove(item);
}

void TreeWidget::Clear() {
    const QScopedValueRollback quiet(m_quiet, true);
    m_model.Clear();
}

bool TreeWidget::EditLabel(HTREEITEM item) {
    const bool before = std::exchange(m_model.editable, true);
    const bool started = edit(m_model.IndexOf(item), AllEditTriggers, nullptr);
    m_model.editable = before;
    return started && m_edited;
}

QRect TreeWidget::LabelRect(const QModelIndex& index) const {
    QRect label = visualRect(index);
    label.setWidth(std::min(label.width(), sizeHintForIndex(index).width()));
    return label;
}

void TreeWidget::AppendLines(std::vector<std::wstring>& lines) const {
    AppendBranch(*const_cast<TreeModel&>(m_model).Root(), 0, lines);
}

bool TreeWidget::edit(const QModelIndex& index, EditTrigger trigger, QEvent* pEvent) {
    const bool starts = trigger == AllEditTriggers || (trigger & editTriggers());
    if (!starts || !index.isValid() || state() == EditingState) {
        return HookedArea::edit(index, trigger, pEvent);
    }
    if (trigger == SelectedClicked) {
        // The toolkit waits for a possible double click, then calls again.
        return HookedArea::edit(index, trigger, pEvent);
    }
    const HTREEITEM item = m_model.ItemOf(index);
    if (TellLabel(TVN_BEGINLABELEDIT, item, nullptr) != 0) {
        // Returning false would make the toolkit warn, as it has waited since the click.
        return true;
    }
    m_edited = item;
    const bool started = HookedArea::edit(index, trigger, pEvent);
    if (!started) {
        m_edited = nullptr;
    }
    return started;
}

void TreeWidget::closeEditor(QWidget* pEditor, QAbstractItemDelegate::EndEditHint hint) {
    HookedArea::closeEditor(pEditor, hint);
    if (const HTREEITEM item = std::exchange(m_edited, nullptr)) {
        TellLabel(TVN_ENDLABELEDIT, item, nullptr);
    }
}

void TreeWidget::startDrag(Qt::DropActions) {
    WindowCore* const pCore = Core();
    const QPoint from = m_pressed.value_or(QPoint());
    const QModelIndex index = indexAt(from);
    if (!pCore || !index.isValid()) {
        return;
    }
    m_pressed.reset(); // a drag is not a click
    NMTREEVIEW drag;
    drag.itemNew = m_model.ItemOf(index);
    drag.ptDrag = ToCPoint(from);
    pCore->Notify(drag.hdr, TVN_BEGINDRAG);
}

void TreeWidget::mousePressEvent(QMouseEvent* pEvent) {
    m_pressed = pEvent->position().toPoint();
    if (pEvent->button() == Qt::LeftButton) {
        HookedArea::mousePressEvent(pEvent);
    } else {
        pEvent->accept();
    }
}

void TreeWidget::mouseReleaseEvent(QMouseEvent* pEvent) {
    const bool clicked = m_pressed.has_value();
    const Qt::MouseButton button = pEvent->button();
    const QPointer<QWidget> self = this;
    if (button == Qt::LeftButton) {
        HookedArea::mouseReleaseEvent(pEvent);
    }
    if (self && clicked && viewport()->rect().contains(pEvent->position().toPoint())) {
        m_pressed.reset();
        if (button == Qt::LeftButton || button == Qt::RightButton) {
            TellClick(button == Qt::LeftButton ? NM_CLICK : NM_RCLICK);
        }
    } else if (self) {
        m_pressed.reset();
    }
}

void TreeWidget::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    const QPointer<QWidget> self = this;
    HookedArea::mouseDoubleClickEvent(pEvent);
    if (self && pEvent->button() == Qt::LeftButton) {
        TellClick(NM_DBLCLK);
    }
}

void TreeWidget::TellSelection(HTREEITEM item) {
    const HTREEITEM before = std::exchange(m_model.selected, item);
    WindowCore* const pCore = Core();
    if (m_quiet || !pCore || before == item) {
        return;
    }
    m_model.Changed(before);
    m_model.Changed(item);
    NMTREEVIEW change;
    change.itemOld = before;
    change.itemNew = item;
    pCore->Notify(change.hdr, TVN_SELCHANGED);
}

void TreeWidget::TellClick(UINT code) {
    if (WindowCore* const pCore = Core()) {
        NMHDR header;
        pCore->Notify(header, code);
    }
}

void TreeWidget::TellExpanded(const QModelIndex& index, UINT action) {
    if (WindowCore* const pCore = Core()) {
        NMTREEVIEW change;
        change.action = action;
        change.itemNew = m_model.ItemOf(index);
        pCore->Notify(change.hdr, TVN_ITEMEXPANDED);
    }
}

LRESULT TreeWidget::TellLabel(UINT code, HTREEITEM item, const wchar_t* text) {
    WindowCore* const pCore = Core();
    if (!pCore) {
        return 0;
    }
    NMTVDISPINFO info;
    info.item = item;
    info.pszText = text;
    return pCore->Notify(info.hdr, code);
}
