// A tree of labelled nodes.
#pragma once

#include <functional>

#include "platform/mfc/ImageList.h"
#include "platform/mfc/Wnd.h"

struct _TREEITEM; // NOLINT(bugprone-reserved-identifier): the name in interfaces
/// A node. It is valid until the node is deleted, and must not be used afterwards.
using HTREEITEM = _TREEITEM*;

/// Places for InsertItem.
inline const HTREEITEM TVI_ROOT = nullptr;
inline const HTREEITEM TVI_FIRST = reinterpret_cast<HTREEITEM>(1);
inline const HTREEITEM TVI_LAST = reinterpret_cast<HTREEITEM>(2);

inline constexpr UINT TVE_COLLAPSE = 1;
inline constexpr UINT TVE_EXPAND = 2;
inline constexpr UINT TVE_TOGGLE = 3;

/// What HitTest found at the point.
inline constexpr UINT TVHT_NOWHERE = 0x01;
inline constexpr UINT TVHT_ONITEM = 0x46;       ///< picture or label
inline constexpr UINT TVHT_ONITEMINDENT = 0x08; ///< beside them, button included

/// What the tree's notifications point to. TVN_SELCHANGED has the node before and the node
/// now; TVN_ITEMEXPANDED says in `action` what happened to itemNew; TVN_BEGINDRAG has the
/// node and the place in the client area.
struct NMTREEVIEW {
    NMHDR hdr;
    UINT action = 0;
    HTREEITEM itemOld = nullptr;
    HTREEITEM itemNew = nullptr;
    CPoint ptDrag;
};
/// TVN_BEGINLABELEDIT: a result other than 0 keeps the label from being edited.
/// TVN_ENDLABELEDIT: the new text, or null if the user gave up; a result other than 0 makes
/// it the label.
struct NMTVDISPINFO {
    NMHDR hdr;
    HTREEITEM item = nullptr;
    const wchar_t* pszText = nullptr;
};

/// One node at most is selected. Clicks come as NM_CLICK, NM_RCLICK and NM_DBLCLK; the right
/// button selects nothing. Filling takes the same time for each node, however many there are.
class PLATFORM_API CTreeCtrl : public CWnd {
public:
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id);
    /// Copies the list; later additions to it are not seen.
    void SetImageList(const CImageList& images);

    /// \param after a sibling, TVI_FIRST or TVI_LAST
    HTREEITEM InsertItem(const wchar_t* text, int image = -1, int selectedImage = -1,
                         HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    /// With all nodes below it. Data of nodes is not touched.
    bool DeleteItem(HTREEITEM item);
    void DeleteAllItems();
    UINT GetCount() const;

    CString GetItemText(HTREEITEM item) const;
    bool SetItemText(HTREEITEM item, const wchar_t* text);
    bool SetItemImage(HTREEITEM item, int image, int selectedImage);
    bool GetItemImage(HTREEITEM item, int& image, int& selectedImage) const;
    DWORD_PTR GetItemData(HTREEITEM item) const;
    bool SetItemData(HTREEITEM item, DWORD_PTR data);

    /// Each is null for none.
    HTREEITEM GetRootItem() const;
    HTREEITEM GetChildItem(HTREEITEM item) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const;
    HTREEITEM GetParentItem(HTREEITEM item) const;
    bool ItemHasChildren(HTREEITEM item) const;

    HTREEITEM GetSelectedItem() const;
    /// Null takes the selection away. The nodes above are opened.
    bool SelectItem(HTREEITEM item);
    /// Marks the node that something would be dropped on; null for none.
    void SelectDropTarget(HTREEITEM item);
    bool Expand(HTREEITEM item, UINT action);
    bool IsExpanded(HTREEITEM item) const;
    bool EnsureVisible(HTREEITEM item);
    /// The node at the height of a point of the client area, if any.
    HTREEITEM HitTest(CPoint point, UINT* pFlags = nullptr) const;
    /// Of the label alone, or of the whole line; empty while the node cannot be seen.
    CRect GetItemRect(HTREEITEM item, bool labelOnly) const;
    bool EditLabel(HTREEITEM item);

    /// Orders the children of a node (TVI_ROOT: the top ones) by their texts, or by their
    /// data. What compares equal keeps its order.
    bool SortChildren(HTREEITEM item);
    bool SortChildren(HTREEITEM item, const std::function<int(DWORD_PTR, DWORD_PTR)>& compare);
};
