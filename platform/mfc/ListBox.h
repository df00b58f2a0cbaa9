// A list of text lines.
#pragma once

#include <vector>

#include "platform/mfc/Wnd.h"

inline constexpr int LB_ERR = -1;

/// With LBS_SORT, lines are in alphabetical order, ignoring case. LBS_EXTENDEDSEL allows multiple
/// selection.
class PLATFORM_API CListBox : public CWnd {
public:
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id);

    /// \return the line's index
    int AddString(const wchar_t* text);
    void ResetContent();
    int GetCount() const;
    CString GetText(int index) const;
    int GetCurSel() const; ///< LB_ERR if nothing is selected; the first of several
    int SetCurSel(int index);
    bool GetSel(int index) const;
    bool SetSel(int index, bool selected = true);
    /// Indices of the selected lines, ascending.
    std::vector<int> GetSelItems() const;
};
