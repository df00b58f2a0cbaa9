// A tree of labelled nodes.
#pragma once

#include <functional>

#include "platform/mfc/ImageList.h"
#include "platform/mfc/Wnd.h"

struct _TREEITEM; // NOLINT(bugprone-reserved-identifier): the name in interfaces
/// A node. Valid until the node is deleted; must not be used afterwards.
using HTREEITEM = _TREEITEM*;

/// Positions for InsertItem.
inline const HTREEITEM TVI_ROOT = nullptr;
inline const HTREEITEM TVI_FIRST = reinterpret_cast<HTREEITEM>(1);
inline const HTREEITEM TVI_LAST = reinterpret_cast<HTREEITEM>(2);

inline constexpr UINT TVE_COLLAPSE = 1;
inline constexpr UINT TVE_EXPAND = 2;
inline constexpr UINT TVE_TOGGLE = 3;

/// Result flags of HitTest.
inline constexpr UINT TVHT_NOWHERE = 0x01;
inline constexpr UINT TVHT_ONITEM = 0x46;       ///< picture or label
inline constexpr UINT TVHT_ONITEMINDENT = 0x08; ///< beside them, including the expand button

/// Data of the tree's notifications. TVN_SELCHANGED: the old and the new node; TVN_ITEMEXPANDED:
/// `action` tells whether itemNew was expanded or collapsed; TVN_BEGINDRAG: the node and the
/// position in the client area.
struct NMTREEVIEW {
    NMHDR hdr;
    UINT action = 0;
    HTREEITEM itemOld = nullptr;
    HTREEITEM itemNew = nullptr;
    CPoint ptDrag;
};
/// TVN_BEGINLABELEDIT: a non-zero result prevents editing. TVN_ENDLABELEDIT: the new text, or null
/// if the user cancelled; a non-zero result accepts it as the label.
struct NMTVDISPINFO {
    NMHDR hdr;
    HTREEITEM item = nullptr;
    const wchar_t* pszText = nullptr;
};

/// Single selection. Clicks are sent as NM_CLICK, NM_RCLICK and NM_DBLCLK; the right button does
/// not select. Inserting takes constant time per node.
class PLATFORM_API CTreeCtrl : public CWnd {
public:
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id);
    /// Copies the list; later additions to it have no effect.
    void SetImageList(const CImageList& images);

    /// \param after a sibling, TVI_FIRST or TVI_LAST
    HTREEITEM InsertItem(const wchar_t* text, int image = -1, int selectedImage = -1,
                         HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    /// Including its descendants. Node data is not destroyed.
    bool DeleteItem(HTREEITEM item);
    void DeleteAllItems();
    UINT GetCount() const;

    CString GetItemText(HTREEITEM item) const;
    bool SetItemText(HTREEITEM item, const wchar_t* text);
    bool SetItemImage(HTREEITEM item, int image, int selectedImage);
    bool GetItemImage(HTREEITEM item, int& image, int& selectedImage) const;
    DWORD_PTR GetItemData(HTREEITEM item) const;
    bool SetItemData(HTREEITEM item, DWORD_PTR data);

    /// Each returns null if there is no such node.
    HTREEITEM GetRootItem() const;
    HTREEITEM GetChildItem(HTREEITEM item) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const;
    HTREEITEM GetParentItem(HTREEITEM item) const;
    bool ItemHasChildren(HTREEITEM item) const;

    HTREEITEM GetSelectedItem() const;
    /// Null clears the selection. Expands the node's ancestors.
    bool SelectItem(HTREEITEM item);
    /// Highlights the node as drop target; null for none.
    void SelectDropTarget(HTREEITEM item);
    bool Expand(HTREEITEM item, UINT action);
    bool IsExpanded(HTREEITEM item) const;
    bool EnsureVisible(HTREEITEM item);
    /// The uppermost one that is in view; null without any.
    HTREEITEM GetFirstVisibleItem() const;
    /// Scrolls so that the node is the uppermost one, as far as there is enough below it.
    bool SelectSetFirstVisible(HTREEITEM item);
    /// The node at the height of a point in client coordinates, if any.
    HTREEITEM HitTest(CPoint point, UINT* pFlags = nullptr) const;
    /// The rectangle of the label or of the whole line; empty if the node is not visible.
    CRect GetItemRect(HTREEITEM item, bool labelOnly) const;
    bool EditLabel(HTREEITEM item);

    /// Sorts the children of a node (TVI_ROOT: the top-level nodes) by their texts or by their
    /// data. The sort is stable.
    bool SortChildren(HTREEITEM item);
    bool SortChildren(HTREEITEM item, const std::function<int(DWORD_PTR, DWORD_PTR)>& compare);
};
