#include "plugins/panels/FindDialog.h"

#include "platform/arx/ApDocManager.h"
#include "platform/mfc/DataExchange.h"
#include "platform/mfc/WaitCursor.h"
#include "plugins/common/Marks.h"
#include "plugins/panels/EntityTexts.h"
#include "plugins/panels/PanelTexts.h"
#include "plugins/panels/PropertiesDialog.h"
#include "siblings/cadwrapper/Edit.h"
#include "siblings/giscore/systems/SystemManager.h"

namespace Orvane::Panels {

namespace {

constexpr std::size_t kMostShown = 1000;
/// The found entity is centred, with some surroundings for orientation.
constexpr double kZoom = 3;

constexpr const wchar_t* kTextKey = L"TEXT";
constexpr const wchar_t* kSystemKey = L"SYSTEM";
constexpr const wchar_t* kWhereKey = L"WHERE";

constexpr Msg kPlaces[] = {Msg::Everywhere, Msg::Name, Msg::Kind, Msg::Attributes};

} // namespace

CFindDialog::CFindDialog(CWnd* pParent)
    : CModuleDialog(kFindDialogId, Workspace::enmDialogSizableCascaded, pParent) {
    Create(kFindDialog, pParent);
}

const MessageMap* CFindDialog::GetMessageMap() const {
    static constexpr MessageEntry kEntries[] = {
        MapCommand<&CFindDialog::OnFind>(kFind),
        MapCommand<&CFindDialog::OnShow>(kShow),
        MapCommand<&CFindDialog::OnProperties>(kProperties),
        MapNotify<&CFindDialog::OnActivate>(LVN_ITEMACTIVATE, kList),
        MapNotify<&CFindDialog::OnSelection>(LVN_ITEMCHANGED, kList),
    };
    static const MessageMap kMap{CModuleDialog::GetMessageMap(), kEntries};
    return &kMap;
}

void CFindDialog::DoDataExchange(CDataExchange* pExchange) {
    CModuleDialog::DoDataExchange(pExchange);
    DDX_Control(pExchange, kText, m_text);
    DDX_Control(pExchange, kSystem, m_systems);
    DDX_Control(pExchange, kWhere, m_where);
}

bool CFindDialog::OnInitDialog() {
    CModuleDialog::OnInitDialog();
    SetWindowText(Text(Msg::Find));
    for (const auto& [id, message] :
         {std::pair(kTextLabel, Msg::FindWhat), std::pair(kSystemLabel, Msg::FindIn),
          std::pair(kWhereLabel, Msg::FindWhere), std::pair(kFind, Msg::FindNow),
          std::pair(kShow, Msg::Show), std::pair(kProperties, Msg::ShowProperties)}) {
        SetText(id, Text(message));
    }
    MakeColumns({{Text(Msg::ColumnEntity), 84},
                 {Text(Msg::ColumnSystem), 64},
                 {Text(Msg::ColumnFoundIn), 76}});
    for (const UINT id : {kText, kSystem, kWhere}) {
        m_resize.SetResize(id, 0, 0, 1, 0);
    }
    m_resize.SetResize(kFind, 1, 0, 1, 0);
    m_resize.SetResize(kList, 0, 0, 1, 1);
    m_resize.SetResize(kSummary, 0, 1, 1, 1);
    m_resize.SetResize(kShow, 1, 1, 1, 1);
    m_resize.SetResize(kProperties, 1, 1, 1, 1);
    m_text.SetWindowText(GetStateValue(kTextKey, Data::CDataBox()).operator CString());
    FillPlaces();
    FillSystems(0);
    GetSavedComboState(m_systems, kSystemKey, 0);
    EnableButtons();
    return true;
}

void CFindDialog::FillPlaces() {
    for (const Msg place : kPlaces) {
        m_where.AddString(Text(place));
    }
    GetSavedComboState(m_where, kWhereKey, 0);
}

void CFindDialog::FillSystems(int chosen) {
    m_systems.ResetContent();
    m_systems.AddString(Text(Msg::AllSystems));
    m_systems.SetCurSel(0);
    System::CGisSystems* const pSystems = System::CSystemManager::Instance()->GetSystems();
    if (!pSystems) {
        return;
    }
    for (const System::CGisSystem* const pSystem : pSystems->GetSystemList()) {
        const int entry = m_systems.AddString(pSystem->GetSystemName());
        m_systems.SetItemData(entry, static_cast<DWORD_PTR>(pSystem->GetSystemId()));
        if (pSystem->GetSystemId() == chosen) {
            m_systems.SetCurSel(entry);
        }
    }
}

int CFindDialog::ChosenSystem() const {
    return static_cast<int>(m_systems.GetItemData(m_systems.GetCurSel()));
}

void CFindDialog::RefreshContent() {
    FillSystems(ChosenSystem());
}

void CFindDialog::OnAcadDocumentBecomeCurrent(AcApDocument*) {
    ForgetResult();
    FillSystems(0);
}

void CFindDialog::OnAcadDocumentToBeDestroyed(AcApDocument* pDoc) {
    if (pDoc == acDocManagerPtr()->curDocument()) {
        ForgetResult();
    }
}

void CFindDialog::Remember() {
    CModuleDialog::Remember();
    Data::CDataBox text(m_text.GetWindowText());
    SetStateValue(kTextKey, text);
    SetSavedComboState(m_systems, kSystemKey);
    SetSavedComboState(m_where, kWhereKey);
}

bool CFindDialog::PreTranslateMessage(MSG* pMsg) {
    const CWnd* const pFocus = GetFocus();
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_RETURN &&
        (pFocus == &m_text || pFocus == &m_systems || pFocus == &m_where)) {
        OnFind();
        return true;
    }
    return CModuleDialog::PreTranslateMessage(pMsg);
}

void CFindDialog::OnFind() {
    const CWaitCursor wait;
    ShowResult(SearchDrawing({m_text.GetWindowText().Trim(), ChosenSystem(),
                              static_cast<SearchIn>(std::max(0, m_where.GetCurSel()))},
                             kMostShown));
    if (!m_found.empty()) {
        m_list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        m_list.SetFocus();
    }
}

void CFindDialog::ShowResult(SearchResult result) {
    m_found = std::move(result.entities);
    m_list.DeleteAllItems();
    int row = 0;
    for (const FoundEntity& entity : m_found) {
        m_list.InsertItem(row, entity.kind + L" " + entity.name);
        m_list.SetItemText(row, 1, entity.system);
        m_list.SetItemText(row, 2, entity.foundIn);
        ++row;
    }
    SetText(kSummary, result.count == 0 ? Text(Msg::NothingFound)
                      : result.count > m_found.size()
                          ? Text(Msg::FoundMore, result.count, m_found.size())
                          : Text(Msg::Found, result.count));
    EnableButtons();
}

void CFindDialog::ForgetResult() {
    ShowResult({});
    SetText(kSummary, {});
}

std::vector<AcDbObjectId> CFindDialog::Selected() const {
    std::vector<AcDbObjectId> ids;
    for (int row = m_list.GetNextItem(-1, LVNI_SELECTED); row >= 0;
         row = m_list.GetNextItem(row, LVNI_SELECTED)) {
        ids.push_back(m_found[static_cast<std::size_t>(row)].id);
    }
    return ids;
}

void CFindDialog::EnableButtons() const {
    const int count = m_list.GetSelectedCount();
    GetDlgItem(kShow)->EnableWindow(count > 0);
    GetDlgItem(kProperties)->EnableWindow(count == 1);
}

void CFindDialog::OnSelection(NMHDR*, LRESULT*) {
    EnableButtons();
}

void CFindDialog::OnShow() {
    std::vector<AcDbObjectId> ids = Selected();
    std::erase_if(ids, [](AcDbObjectId id) { return !FindEntity(id); });
    if (ids.empty()) {
        SetText(kSummary, Text(Msg::NotThere));
        return;
    }
    CORVCEdit::zoom(ids, kZoom);
    Plugins::MarkEntities(ids);
}

void CFindDialog::OnActivate(NMHDR*, LRESULT*) {
    OnShow();
}

void CFindDialog::OnProperties() {
    const std::vector<AcDbObjectId> ids = Selected();
    if (!ids.empty()) {
        ShowProperties(ids.front());
    }
}

} // namespace Orvane::Panels
