// A report: rows of cells under column headers.
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

/// A cell, or all of a row; the mask says which of the fields count.
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

/// What LVN_ITEMCHANGED points to. It comes for each row whose state changed, by the user
/// or the program.
struct NMLISTVIEW {
    NMHDR hdr;
    int iItem = -1;
    int iSubItem = 0;
    UINT uNewState = 0;
    UINT uOldState = 0;
    UINT uChanged = 0;
    LPARAM lParam = 0;
};

/// What NM_CLICK, NM_RCLICK, NM_DBLCLK and LVN_ITEMACTIVATE point to; iItem is -1 beside
/// the rows.
struct NMITEMACTIVATE {
    NMHDR hdr;
    int iItem = -1;
    int iSubItem = 0;
    CPoint ptAction;
};

/// Stages of NM_CUSTOMDRAW, and what a handler answers to them.
inline constexpr UINT CDDS_PREPAINT = 0x00001;
inline constexpr UINT CDDS_ITEMPREPAINT = 0x10001;
inline constexpr UINT CDDS_ITEMPOSTPAINT = 0x10002;
inline constexpr UINT CDDS_SUBITEM = 0x20000;
inline constexpr LRESULT CDRF_DODEFAULT = 0x00;
inline constexpr LRESULT CDRF_NEWFONT = 0x02;
inline constexpr LRESULT CDRF_NOTIFYPOSTPAINT = 0x10;
inline constexpr LRESULT CDRF_NOTIFYITEMDRAW = 0x20;
inline constexpr LRESULT CDRF_NOTIFYSUBITEMDRAW = 0x20;

/// The handler may change the two colours, and select a font into the device context.
/// Colours set for a row are those its cells start with.
struct NMLVCUSTOMDRAW {
    NMHDR hdr;
    UINT dwDrawStage = 0;
    CDC* pDC = nullptr;
    CRect rc;
    int iItem = -1; ///< the row
    int iSubItem = 0;
    LPARAM lItemlParam = 0;
    COLORREF clrText = 0;
    COLORREF clrTextBk = 0;
};

/// The first column carries the pictures. Rows and columns count from 0. Filling is fast for
/// hundreds of thousands of rows, at both ends of the list.
class PLATFORM_API CListCtrl : public CWnd {
public:
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id);
    void SetExtendedStyle(UINT style);
    /// Copies the list; later additions to it are not seen.
    void SetImageList(const CImageList& images);
    void SetTextColor(COLORREF color);
    void SetTextBkColor(COLORREF color);
    COLORREF GetTextColor() const;
    COLORREF GetTextBkColor() const;

    /// \param width in pixels; below 0 for the usual width
    /// \return the column's place, or -1
    int InsertColumn(int column, const wchar_t* heading, int format = LVCFMT_LEFT, int width = -1);
    bool DeleteColumn(int column);
    int GetColumnCount() const;
    CString GetColumnText(int column) const;
    int GetColumnWidth(int column) const;
    /// In pixels, or LVSCW_AUTOSIZE for the widest cell, LVSCW_AUTOSIZE_USEHEADER for the
    /// header and the widest cell; the last column then takes what is left.
    bool SetColumnWidth(int column, int width);

    /// A place behind the last row means the end. \return where the row came to stand, or -1
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
    /// The next row behind another (-1: from the start), -1 at the end.
    int GetNextItem(int after, UINT flags) const;
    bool EnsureVisible(int row);
    void Update(int row);
    void RedrawItems();
    /// The row at a point of the client area, or -1.
    int HitTest(CPoint point) const;
    CRect GetSubItemRect(int row, int column) const;

    /// Orders the rows by their data: the comparison gives less than, equal to or greater
    /// than 0. Rows that compare equal keep their order.
    void SortItems(const std::function<int(DWORD_PTR, DWORD_PTR)>& compare);
};
