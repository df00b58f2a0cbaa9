#include "plugins/panels/PropertiesDialog.h"

#include "platform/arx/ApDocManager.h"
#include "platform/arx/CommandRunner.h"
#include "platform/arx/EdDisplay.h"
#include "platform/arx/EdPrompt.h"
#include "platform/mfc/DataExchange.h"
#include "plugins/panels/EntityTexts.h"
#include "plugins/panels/PanelTexts.h"
#include "workspacecore/commands/CommandScope.h"

namespace Orvane::Panels {

namespace {

constexpr const wchar_t* kPropertyKey = L"PROPERTY";
constexpr const wchar_t* kCommand = L"ENTITY_PROPERTIES";

} // namespace

CPropertiesDialog::CPropertiesDialog(CWnd* pParent)
    : CModuleDialog(kPropertiesDialogId, Workspace::enmDialogSizable, pParent) {
    Create(kPropertiesDialog, pParent);
}

const MessageMap* CPropertiesDialog::GetMessageMap() const {
    static constexpr MessageEntry kEntries[] = {
        MapCommand<&CPropertiesDialog::OnPick>(kPick),
        MapCommand<&CPropertiesDialog::OnSet>(kSet),
        MapNotify<&CPropertiesDialog::OnSelection>(LVN_ITEMCHANGED, kList),
        MapNotify<&CPropertiesDialog::OnActivate>(LVN_ITEMACTIVATE, kList),
    };
    static const MessageMap kMap{CModuleDialog::GetMessageMap(), kEntries};
    return &kMap;
}

void CPropertiesDialog::DoDataExchange(CDataExchange* pExchange) {
    CModuleDialog::DoDataExchange(pExchange);
    DDX_Control(pExchange, kValue, m_value);
}

bool CPropertiesDialog::OnInitDialog() {
    CModuleDialog::OnInitDialog();
    SetWindowText(Text(Msg::Properties));
    SetText(kPick, Text(Msg::Pick));
    SetText(kSet, Text(Msg::SetValue));
    MakeColumns({{Text(Msg::ColumnProperty), 90}, {Text(Msg::ColumnValue), 120}});
    m_resize.SetResize(kTitle, 0, 0, 1, 0);
    m_resize.SetResize(kPick, 1, 0, 1, 0);
    m_resize.SetResize(kList, 0, 0, 1, 1);
    m_resize.SetResize(kValue, 0, 1, 1, 1);
    m_resize.SetResize(kSet, 1, 1, 1, 1);
    m_strChosen = GetStateValue(kPropertyKey, Data::CDataBox());
    ShowEntity({});
    return true;
}

void CPropertiesDialog::Remember() {
    CModuleDialog::Remember();
    Data::CDataBox chosen(m_strChosen);
    SetStateValue(kPropertyKey, chosen);
}

void CPropertiesDialog::OnAcadDocumentToBeDestroyed(AcApDocument* pDoc) {
    if (pDoc == acDocManagerPtr()->curDocument()) {
        ShowEntity({});
    }
}

void CPropertiesDialog::ShowEntity(AcDbObjectId id) {
    m_id = id;
    FillList();
}

void CPropertiesDialog::RefreshContent() {
    // Keeps text that the user is typing.
    const CString typed = m_value.GetWindowText();
    const bool isTyping = GetFocus() == &m_value;
    FillList();
    if (isTyping && Chosen()) {
        m_value.SetWindowText(typed);
    }
}

void CPropertiesDialog::FillList() {
    const Topology::CEntity entity = FindEntity(m_id);
    m_properties = PropertiesOf(entity);
    SetText(kTitle, entity ? KindOf(entity) + L" " + entity.GetName() : Text(Msg::NothingPicked));
    const CString chosen = m_strChosen;
    m_list.DeleteAllItems();
    int row = 0;
    for (const EntityProperty& property : m_properties) {
        m_list.InsertItem(row, property.label);
        m_list.SetItemText(row, 1, property.value);
        ++row;
    }
    m_strChosen = chosen;
    SelectProperty();
    FollowSelection();
}

void CPropertiesDialog::SelectProperty() {
    if (const EntityProperty* const pProperty = FindProperty(m_properties, m_strChosen)) {
        const int row = static_cast<int>(pProperty - m_properties.data());
        m_list.SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        m_list.EnsureVisible(row);
    }
}

const EntityProperty* CPropertiesDialog::Chosen() const {
    const int row = m_list.GetNextItem(-1, LVNI_SELECTED);
    return row >= 0 ? &m_properties[static_cast<std::size_t>(row)] : nullptr;
}

void CPropertiesDialog::FollowSelection() {
    const EntityProperty* const pProperty = Chosen();
    const bool isEditable = pProperty && pProperty->IsEditable();
    m_value.SetWindowText(pProperty ? pProperty->value : CString());
    m_value.EnableWindow(isEditable);
    GetDlgItem(kSet)->EnableWindow(isEditable);
}

void CPropertiesDialog::OnSelection(NMHDR*, LRESULT*) {
    if (const EntityProperty* const pProperty = Chosen()) {
        m_strChosen = pProperty->label;
    }
    FollowSelection();
}

void CPropertiesDialog::OnActivate(NMHDR*, LRESULT*) {
    if (m_value.IsWindowEnabled()) {
        m_value.SetFocus();
        m_value.SetSel(0, -1);
    }
}

void CPropertiesDialog::OnPick() {
    // The command shows this dialog again with the picked entity.
    acedRunner().Post({kCommand, OrderOrigin::Dialog});
}

bool CPropertiesDialog::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_RETURN && GetFocus() == &m_value) {
        OnSet();
        return true;
    }
    return CModuleDialog::PreTranslateMessage(pMsg);
}

void CPropertiesDialog::OnSet() {
    const EntityProperty* const pProperty = Chosen();
    if (!pProperty) {
        return;
    }
    // Copied, because the list is refilled when the command ends.
    const EntityProperty property = *pProperty;
    const CString text = m_value.GetWindowText();
    CString reason;
    const auto set = [&] {
        Workspace::CommandScope::Run(
            kCommand, [&] { reason = SetProperty(FindEntity(m_id), property, text); });
        return reason.IsEmpty() ? CommandOutcome::Done : CommandOutcome::Failed;
    };
    acedRunner().Run({kCommand, OrderOrigin::Dialog, set});
    if (!reason.IsEmpty()) {
        acedAlert(reason);
    }
    acedUpdateDisplay();
    FillList();
    m_value.SetSel(0, -1);
}

void ShowProperties(AcDbObjectId id) {
    if (auto* const pDialog = dynamic_cast<CPropertiesDialog*>(ShowDialog(kPropertiesDialogId))) {
        pDialog->ShowEntity(id);
    }
}

} // namespace Orvane::Panels
