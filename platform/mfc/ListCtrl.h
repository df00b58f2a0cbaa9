// A report view: rows of cells with column headers.
#pragma once

#include <functional>

#include "platform/mfc/DC.h"
#include "platform/mfc/ImageList.h"
#include "platform/mfc/Wnd.h"

inline constexpr UINT LVIF_TEXT = 0x0001;
inline constexpr UINT LVIF_IMAGE = 0x0002;
inline constexpr UINT LVIF_PARAM = 0x0004;
inline constexpr UINT LVIF_STATE = 0x0008;
inline constexpr UINT LVIS_FOCUSED = 0x0001;
inline constexpr UINT LVIS_SELECTED = 0x0002;
inline constexpr UINT LVNI_ALL = 0x0000;
inline constexpr UINT LVNI_SELECTED = 0x0002;
inline constexpr int LVCFMT_LEFT = 0;
inline constexpr int LVCFMT_RIGHT = 1;
inline constexpr int LVCFMT_CENTER = 2;
inline constexpr int LVSCW_AUTOSIZE = -1;
inline constexpr int LVSCW_AUTOSIZE_USEHEADER = -2;

/// A cell or a whole row; the mask selects the valid fields.
struct LVITEM {
    UINT mask = 0;
    int iItem = 0;
    int iSubItem = 0;
    UINT state = 0;
    UINT stateMask = 0;
    const wchar_t* pszText = nullptr;
    int iImage = -1;
    LPARAM lParam = 0;
};

/// Data of LVN_ITEMCHANGED, which is sent for each row whose state was changed by the user or the
/// program.
struct NMLISTVIEW {
    NMHDR hdr;
    int iItem = -1;
    int iSubItem = 0;
    UINT uNewState = 0;
    UINT uOldState = 0;
    UINT uChanged = 0;
    LPARAM lParam = 0;
};

/// Data of NM_CLICK, NM_RCLICK, NM_DBLCLK and LVN_ITEMACTIVATE; iItem is -1 outside the rows.
struct NMITEMACTIVATE {
    NMHDR hdr;
    int iItem = -1;
    int iSubItem = 0;
    CPoint ptAction;
};

/// Stages of NM_CUSTOMDRAW, and the handler's results.
inline constexpr UINT CDDS_PREPAINT = 0x00001;
inline constexpr UINT CDDS_ITEMPREPAINT = 0x10001;
inline constexpr UINT CDDS_ITEMPOSTPAINT = 0x10002;
inline constexpr UINT CDDS_SUBITEM = 0x20000;
inline constexpr LRESULT CDRF_DODEFAULT = 0x00;
inline constexpr LRESULT CDRF_NEWFONT = 0x02;
inline constexpr LRESULT CDRF_NOTIFYPOSTPAINT = 0x10;
inline constexpr LRESULT CDRF_NOTIFYITEMDRAW = 0x20;
inline constexpr LRESULT CDRF_NOTIFYSUBITEMDRAW = 0x20;

/// The handler may change the two colours and select a font into the device context. Colours set
/// for a row are the defaults of its cells.
struct NMLVCUSTOMDRAW {
    NMHDR hdr;
    UINT dwDrawStage = 0;
    CDC* pDC = nullptr;
    CRect rc;
    int iItem = -1; ///< the row's index
    int iSubItem = 0;
    LPARAM lItemlParam = 0;
    COLORREF clrText = 0;
    COLORREF clrTextBk = 0;
};

/// The first column shows the pictures. Row and column indices start at 0. Adding at either end is
/// fast, up to hundreds of thousands of rows.
class PLATFORM_API CListCtrl : public CWnd {
public:
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id);
    void SetExtendedStyle(UINT style);
    /// Copies the list; later additions to it have no effect.
    void SetImageList(const CImageList& images);
    void SetTextColor(COLORREF color);
    void SetTextBkColor(COLORREF color);
    COLORREF GetTextColor() const;
    COLORREF GetTextBkColor() const;

    /// \param width in pixels; a negative value for the default
    /// \return the column's index, or -1
    int InsertColumn(int column, const wchar_t* heading, int format = LVCFMT_LEFT, int width = -1);
    bool DeleteColumn(int column);
    int GetColumnCount() const;
    CString GetColumnText(int column) const;
    int GetColumnWidth(int column) const;
    /// Width in pixels, or LVSCW_AUTOSIZE for the widest cell, or LVSCW_AUTOSIZE_USEHEADER for the
    /// wider of header and cells; with the latter, the last column takes the remaining space.
    bool SetColumnWidth(int column, int width);

    /// An index past the last row appends. \return the row's index, or -1
    int InsertItem(int row, const wchar_t* text, int image = -1);
    int InsertItem(const LVITEM& item);
    bool SetItem(const LVITEM& item);
    bool SetItemText(int row, int column, const wchar_t* text);
    CString GetItemText(int row, int column) const;
    bool SetItemImage(int row, int image);
    int GetItemImage(int row) const;
    bool SetItemData(int row, DWORD_PTR data);
    DWORD_PTR GetItemData(int row) const;
    bool DeleteItem(int row);
    void DeleteAllItems();
    int GetItemCount() const;

    /// \param row -1 for all rows
    bool SetItemState(int row, UINT state, UINT mask);
    UINT GetItemState(int row, UINT mask) const;
    int GetSelectedCount() const;
    /// The next row after another (-1: from the start), or -1 if there are no more.
    int GetNextItem(int after, UINT flags) const;
    bool EnsureVisible(int row);
    void Update(int row);
    void RedrawItems();
    /// The row at a point in client coordinates, or -1.
    int HitTest(CPoint point) const;
    CRect GetSubItemRect(int row, int column) const;

    /// Sorts the rows by their data, with a comparison that returns less than, equal to or greater
    /// than 0. The sort is stable.
    void SortItems(const std::function<int(DWORD_PTR, DWORD_PTR)>& compare);
};
