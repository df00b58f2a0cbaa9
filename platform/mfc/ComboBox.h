// Choice of a text from a drop-down list.
#pragma once

#include "platform/mfc/ImageList.h"
#include "platform/mfc/Wnd.h"

inline constexpr int CB_ERR = -1;

/// CBN_SELCHANGE is sent only when the user selects an entry, not when the program does.
class PLATFORM_API CComboBox : public CWnd {
public:
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id);

    /// \return the index of the new entry
    int AddString(const wchar_t* text);
    int InsertString(int index, const wchar_t* text);
    /// Deleting the selected entry clears the selection.
    /// \return the number of remaining entries, or CB_ERR
    int DeleteString(UINT index);
    void ResetContent();
    int GetCount() const;
    CString GetLBText(int index) const;
    int FindStringExact(int after, const wchar_t* text) const;

    int GetCurSel() const; ///< CB_ERR if nothing is selected
    /// An invalid index clears the selection and returns CB_ERR.
    int SetCurSel(int index);

    bool SetItemData(int index, DWORD_PTR data);
    bool SetItemDataPtr(int index, void* pData);
    DWORD_PTR GetItemData(int index) const; ///< 0 for an invalid index
    void* GetItemDataPtr(int index) const;
};

/// A combo box with a picture before each text.
class PLATFORM_API CWzComboBox : public CComboBox {
public:
    /// The entries' pictures; 16 by 16 unless created otherwise.
    CImageList& GetImageList() { return m_images; }
    /// \param image index in the image list; without a picture if invalid
    int AddString(const wchar_t* text, int image);

private:
    CImageList m_images{CSize(16, 16)};
};
