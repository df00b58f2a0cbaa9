// A text chosen from a list that drops down.
#pragma once

#include "platform/mfc/ImageList.h"
#include "platform/mfc/Wnd.h"

inline constexpr int CB_ERR = -1;

/// CBN_SELCHANGE comes when the user has chosen, never for what the program selects.
class PLATFORM_API CComboBox : public CWnd {
public:
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id);

    /// \return the index of the new entry
    int AddString(const wchar_t* text);
    int InsertString(int index, const wchar_t* text);
    /// \return how many are left, or CB_ERR. A selected entry leaves no selection behind.
    int DeleteString(UINT index);
    void ResetContent();
    int GetCount() const;
    CString GetLBText(int index) const;
    int FindStringExact(int after, const wchar_t* text) const;

    int GetCurSel() const; ///< CB_ERR for none
    /// An index without an entry clears the selection and gives CB_ERR.
    int SetCurSel(int index);

    bool SetItemData(int index, DWORD_PTR data);
    bool SetItemDataPtr(int index, void* pData);
    DWORD_PTR GetItemData(int index) const; ///< 0 without an entry
    void* GetItemDataPtr(int index) const;
};

/// The same with a picture before each text.
class PLATFORM_API CWzComboBox : public CComboBox {
public:
    /// Of the entries' pictures; 16 by 16 unless created otherwise.
    CImageList& GetImageList() { return m_images; }
    /// \param image an index of the image list; without one there is no picture
    int AddString(const wchar_t* text, int image);

private:
    CImageList m_images{CSize(16, 16)};
};
