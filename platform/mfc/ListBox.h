// A list of lines.
#pragma once

#include <vector>

#include "platform/mfc/Wnd.h"

inline constexpr int LB_ERR = -1;

/// With LBS_SORT lines keep alphabetical order, upper and lower case alike. With
/// LBS_EXTENDEDSEL several lines can be selected.
class PLATFORM_API CListBox : public CWnd {
public:
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id);

    /// \return where the line came to stand
    int AddString(const wchar_t* text);
    void ResetContent();
    int GetCount() const;
    CString GetText(int index) const;
    int GetCurSel() const; ///< LB_ERR for none; the first of several
    int SetCurSel(int index);
    bool GetSel(int index) const;
    bool SetSel(int index, bool selected = true);
    /// The selected lines, ascending.
    std::vector<int> GetSelItems() const;
};
