// Named values of a dialog that persist between runs.
#include "platform/mfc/ComboBox.h"
#include "workspacecore/dialogs/DialogHome.h"
#include "workspacecore/dialogs/WsBaseDialog.h"
#include "workspacecore/dialogs/WsDialogManager.h"

namespace Orvane::Workspace {

namespace {

CUiStates& States() {
    return *DialogHome().Dialogs().GetDialogStates();
}

} // namespace

Data::CDataBox CWsBaseDialog::GetStateValue(const wchar_t* dialogId, const wchar_t* key,
                                            const Data::CDataBox& defaultValue) {
    const CUiStates::DialogStatePtr state = States().GetDialogStateById(dialogId);
    const CDialogState::AttributePtr attribute =
        state ? state->GetStateAttributeById(key) : nullptr;
    return attribute ? attribute->GetDataBox() : defaultValue;
}

Data::CDataBox CWsBaseDialog::GetStateValue(const wchar_t* key,
                                            const Data::CDataBox& defaultValue) const {
    return GetStateValue(m_dialogId, key, defaultValue);
}

void CWsBaseDialog::SetStateValue(const wchar_t* dialogId, const wchar_t* key,
                                  Data::CDataBox& value) {
    const CUiStates::DialogStatePtr state = States().NeedDialogState(dialogId);
    if (const CDialogState::AttributePtr attribute = state->GetStateAttributeById(key)) {
        attribute->SetValue(value.operator CString());
        attribute->SetType(value.GetDataType());
    } else {
        const CDialogState::AttributePtr added(new CStateAttribute(key, value));
        added->SetId(key);
        state->AddStateAttribute(added);
    }
    DialogHome().Dialogs().SaveDialogStatesSoon();
}

void CWsBaseDialog::SetStateValue(const wchar_t* key, Data::CDataBox& value) {
    SetStateValue(m_dialogId, key, value);
}

int CWsBaseDialog::GetSavedComboState(CComboBox& combo, const wchar_t* key,
                                      int defaultSelection) const {
    const int count = combo.GetCount();
    const Data::CDataBox remembered = GetStateValue(key, Data::CDataBox(defaultSelection));
    if (count == 0) {
        return -1;
    }
    int selection = remembered;
    if (selection >= count) {
        selection = defaultSelection < count ? defaultSelection : 0;
    }
    combo.SetCurSel(selection);
    return selection;
}

void CWsBaseDialog::SetSavedComboState(CComboBox& combo, const wchar_t* key) {
    const int selection = combo.GetCurSel();
    if (selection != CB_ERR) {
        Data::CDataBox value(selection);
        SetStateValue(key, value);
    }
}

} // namespace Orvane::Workspace
