#include "plugins/panels/ModuleDialog.h"

#include "platform/mfc/DataExchange.h"
#include "platform/xtp/XTPDockingPaneManager.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/dialogs/DialogPlaces.h"

namespace Orvane::Panels {

namespace {

constexpr unsigned int kSubscriberNumber = 1100;
constexpr const wchar_t* kColumnsKey = L"COLUMNS";
constexpr int kNarrowest = 16;

/// Centres the dialog on the host's window.
void MoveOverFrame(CWnd& dialog) {
    if (const CWnd* const pFrame = acedGetAcadFrame()) {
        const CRect frame = pFrame->GetWindowRect();
        const CRect own = dialog.GetWindowRect();
        const CPoint corner(frame.left + (frame.Width() - own.Width()) / 2,
                            frame.top + (frame.Height() - own.Height()) / 2);
        dialog.MoveWindow(CRect(corner, own.Size()));
    }
}

} // namespace

CModuleDialog::CModuleDialog(const wchar_t* dialogId, Workspace::enmDialogType type, CWnd* pParent)
    : CWsBaseDialog(0, dialogId, type, 0, 0, 0, pParent, nullptr, kSubscriberNumber) {
    AddPanelTemplates();
}

const MessageMap* CModuleDialog::GetMessageMap() const {
    static constexpr MessageEntry kEntries[] = {
        MapMessage<&CModuleDialog::OnSize>(WM_SIZE),
        MapMessage<&CModuleDialog::OnClose>(WM_CLOSE),
        MapMessage<&CModuleDialog::OnDestroy>(WM_DESTROY),
        MapMessage<&CModuleDialog::OnKeepFocus>(WM_ACAD_KEEPFOCUS),
    };
    static const MessageMap kMap{CWsBaseDialog::GetMessageMap(), kEntries};
    return &kMap;
}

void CModuleDialog::DoDataExchange(CDataExchange* pExchange) {
    CWsBaseDialog::DoDataExchange(pExchange);
    DDX_Control(pExchange, kList, m_list);
}

bool CModuleDialog::OnInitDialog() {
    CWsBaseDialog::OnInitDialog();
    m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    m_resize.Init();
    return true;
}

void CModuleDialog::SetText(UINT id, const CString& text) const {
    if (CWnd* const pControl = GetDlgItem(id)) {
        pControl->SetWindowText(text);
    }
}

void CModuleDialog::MakeColumns(std::initializer_list<ListColumn> columns) {
    const Data::CDataBox kept = GetStateValue(kColumnsKey, Data::CDataBox());
    const CStringArray& widths = kept.GetStringArray();
    int place = 0;
    for (const ListColumn& column : columns) {
        int width = MapDialogRect({0, 0, column.width, 1}).Width();
        if (place < widths.GetCount()) {
            width = std::max<int>(Data::CDataBox(widths[place]), kNarrowest);
        }
        m_list.InsertColumn(place++, column.heading, column.format, width);
    }
}

void CModuleDialog::Remember() {
    CStringArray widths;
    for (int place = 0; place < m_list.GetColumnCount(); ++place) {
        widths.Add(FormatText(L"%d", m_list.GetColumnWidth(place)));
    }
    Data::CDataBox value(widths);
    SetStateValue(kColumnsKey, value);
}

void CModuleDialog::OnSize(UINT type, int cx, int cy) {
    CWsBaseDialog::OnSize(type, cx, cy);
    m_resize.Size();
}

void CModuleDialog::OnClose() {
    Remember();
    CWsBaseDialog::OnClose();
}

void CModuleDialog::OnDestroy() {
    Remember();
    CWsBaseDialog::OnDestroy();
}

LRESULT CModuleDialog::OnKeepFocus(WPARAM, LPARAM) {
    return 1;
}

Workspace::CWsBaseDialog* ShowDialog(const wchar_t* dialogId) {
    Workspace::CWsDialogManager& dialogs = *Workspace::CWsManager::Instance()->DlgMgr();
    Workspace::CWsBaseDialog* const pDialog = dialogs.GetDlgById(dialogId);
    if (pDialog && !pDialog->IsWindowVisible()) {
        if (Workspace::IsCascaded(pDialog->GetDialogType())) {
            // The cascade offsets a dialog from its current position.
            const CRect place = pDialog->GetWindowRect();
            pDialog->MoveWindow(CRect(CPoint(), place.Size()));
            dialogs.SetNewWindowPosition(pDialog);
        } else if (!pDialog->LoadWindowPosition()) {
            MoveOverFrame(*pDialog);
        }
        pDialog->ShowWindow(SW_SHOW);
    }
    if (pDialog) {
        pDialog->PutOnTop();
    }
    return pDialog;
}

} // namespace Orvane::Panels
