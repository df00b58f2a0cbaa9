#include "platform/mfc/ComboBox.h"

#include "platform/mfc/toolkit/ComboWidget.h"
#include "platform/mfc/toolkit/Convert.h"

namespace {

bool HasEntry(const ComboWidget* pCombo, int index) {
    return pCombo && index >= 0 && index < pCombo->count();
}

} // namespace

bool CComboBox::Create(UINT style, const CRect& rect, CWnd* pParent, UINT id) {
    return CreateControl(enmControlKind::ComboBox, style, rect, pParent, id);
}

int CComboBox::AddString(const wchar_t* text) {
    return InsertString(-1, text);
}

int CComboBox::InsertString(int index, const wchar_t* text) {
    auto* const pCombo = WidgetOf<ComboWidget>(*this);
    if (!pCombo || index > pCombo->count()) {
        return CB_ERR;
    }
    const int place = index < 0 ? pCombo->count() : index;
    const bool first = pCombo->count() == 0;
    pCombo->insertItem(place, ToQString(text));
    if (first) {
        // The toolkit selects the first entry added; undo that.
        pCombo->setCurrentIndex(-1);
    }
    return place;
}

int CComboBox::DeleteString(UINT index) {
    auto* const pCombo = WidgetOf<ComboWidget>(*this);
    const int place = static_cast<int>(index);
    if (!HasEntry(pCombo, place)) {
        return CB_ERR;
    }
    if (pCombo->currentIndex() == place) {
        pCombo->setCurrentIndex(-1);
    }
    pCombo->removeItem(place);
    return pCombo->count();
}

void CComboBox::ResetContent() {
    if (auto* const pCombo = WidgetOf<ComboWidget>(*this)) {
        pCombo->clear();
    }
}

int CComboBox::GetCount() const {
    const auto* const pCombo = WidgetOf<ComboWidget>(*this);
    return pCombo ? pCombo->count() : 0;
}

CString CComboBox::GetLBText(int index) const {
    const auto* const pCombo = WidgetOf<ComboWidget>(*this);
    return pCombo ? ToCString(pCombo->itemText(index)) : CString();
}

int CComboBox::FindStringExact(int after, const wchar_t* text) const {
    const int count = GetCount();
    for (int step = 1; step <= count; ++step) {
        const int index = (after + step) % count;
        if (GetLBText(index).CompareNoCase(text) == 0) {
            return index;
        }
    }
    return CB_ERR;
}

int CComboBox::GetCurSel() const {
    const auto* const pCombo = WidgetOf<ComboWidget>(*this);
    return pCombo ? pCombo->currentIndex() : CB_ERR;
}

int CComboBox::SetCurSel(int index) {
    auto* const pCombo = WidgetOf<ComboWidget>(*this);
    const int wanted = HasEntry(pCombo, index) ? index : CB_ERR;
    if (pCombo) {
        pCombo->setCurrentIndex(wanted);
    }
    return wanted;
}

bool CComboBox::SetItemData(int index, DWORD_PTR data) {
    auto* const pCombo = WidgetOf<ComboWidget>(*this);
    if (!HasEntry(pCombo, index)) {
        return false;
    }
    pCombo->setItemData(index, QVariant::fromValue<quint64>(data));
    return true;
}

bool CComboBox::SetItemDataPtr(int index, void* pData) {
    return SetItemData(index, reinterpret_cast<DWORD_PTR>(pData));
}

DWORD_PTR CComboBox::GetItemData(int index) const {
    const auto* const pCombo = WidgetOf<ComboWidget>(*this);
    return HasEntry(pCombo, index) ? pCombo->itemData(index).toULongLong() : 0;
}

void* CComboBox::GetItemDataPtr(int index) const {
    return PointerOf<void>(static_cast<LPARAM>(GetItemData(index)));
}

int CWzComboBox::AddString(const wchar_t* text, int image) {
    const int index = CComboBox::AddString(text);
    if (auto* const pCombo = WidgetOf<ComboWidget>(*this); HasEntry(pCombo, index)) {
        pCombo->setItemIcon(index, ToPixmap(m_images.GetImage(image)));
        pCombo->setIconSize(QSize(m_images.ImageSize().cx, m_images.ImageSize().cy));
    }
    return index;
}
