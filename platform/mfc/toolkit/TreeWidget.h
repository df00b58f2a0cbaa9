// Model and widget of a tree. For sources only.
#pragma once

#include <boost/container/deque.hpp>
#include <memory>
#include <optional>

#include <QAbstractItemModel>
#include <QTreeView>

#include "platform/mfc/TreeCtrl.h"
#include "platform/mfc/toolkit/WindowCore.h"

struct _TREEITEM { // NOLINT(bugprone-reserved-identifier)
    _TREEITEM* pParent = nullptr;
    /// Cheap at both ends, and without memory if empty.
    boost::container::deque<std::unique_ptr<_TREEITEM>> children;
    std::ptrdiff_t firstPlace = 0;    ///< of the first child; decreases and increases at the front
    mutable std::ptrdiff_t place = 0; ///< cached, see TreeModel::PlaceOf
    CString text;
    int image = -1;
    int selectedImage = -1;
    DWORD_PTR data = 0;
};

class TreeModel final : public QAbstractItemModel {
public:
    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex&) const override { return 1; }
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// The invisible root above the top-level nodes.
    HTREEITEM Root() { return &m_root; }
    HTREEITEM ItemOf(const QModelIndex& index) const;
    QModelIndex IndexOf(HTREEITEM item) const;
    /// Index of a node among its siblings. The position cached in the node, relative to that of the
    /// first sibling, is valid unless siblings were inserted or removed between the two; then the
    /// cache of all siblings is refreshed.
    static std::size_t PlaceOf(const _TREEITEM& item);

    HTREEITEM Insert(HTREEITEM parent, std::size_t place, std::unique_ptr<_TREEITEM> item);
    void Remove(HTREEITEM item);
    void Clear();
    void Changed(HTREEITEM item);
    void Sort(HTREEITEM parent,
              const std::function<bool(const _TREEITEM&, const _TREEITEM&)>& less);
    std::size_t Count() const { return m_count; }

    bool editable = false;
    std::vector<QIcon> images;
    HTREEITEM selected = nullptr;
    HTREEITEM dropTarget = nullptr;
    /// Called to accept or reject a label entered by the user.
    std::function<bool(HTREEITEM, const CString&)> onEdited;

private:
    _TREEITEM m_root;
    std::size_t m_count = 0;
};

class TreeWidget final : public HookedArea<QTreeView> {
public:
    TreeWidget(QWidget* pParent, UINT style);

    TreeModel& Nodes() { return m_model; }
    const TreeModel& Nodes() const { return m_model; }
    void SetImages(const CImageList& images);
    void Select(HTREEITEM item);
    HTREEITEM Selected() const { return m_model.selected; }
    void Remove(HTREEITEM item);
    void Clear();
    bool EditLabel(HTREEITEM item);
    QRect LabelRect(const QModelIndex& index) const;

    void AppendLines(std::vector<std::wstring>& lines) const override;
    bool WantsReturn() const override { return true; }
    bool OwnsRelease() const override { return m_pressed.has_value(); }

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* pEvent) override;
    void closeEditor(QWidget* pEditor, QAbstractItemDelegate::EndEditHint hint) override;
    void startDrag(Qt::DropActions actions) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;

private:
    void TellSelection(HTREEITEM item);
    void TellClick(UINT code);
    void TellExpanded(const QModelIndex& index, UINT action);
    LRESULT TellLabel(UINT code, HTREEITEM item, const wchar_t* text);

    TreeModel m_model;
    bool m_quiet = false;
    std::optional<QPoint> m_pressed;
    HTREEITEM m_edited = nullptr; ///< the node being edited, until its editor returns a text
};
