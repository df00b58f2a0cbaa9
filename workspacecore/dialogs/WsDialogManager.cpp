#include "workspacecore/dialogs/WsDialogManager.h"

#include <boost/make_shared.hpp>
#include <set>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/DbDatabase.h"
#include "platform/win/Screens.h"
#include "siblings/cadwrapper/DictionaryPtr.h"
#include "siblings/cadwrapper/DocLock.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "workspacecore/dialogs/WsBaseDialog.h"

namespace Orvane::Workspace {

namespace {

/// Dialogs that DeleteAllModelessDialogs keeps.
constexpr const wchar_t* kKept[] = {
    L"DLG_ORV_TOOLBAR",    L"WS_SYSMAN_PANELPLUGIN", L"DLG_ORV_UNDO",      L"DLG_PANELSEARCH",
    L"DLG_SINGLE_PREVIEW", L"DLG_LOGVIEWER",         L"DLG_PREVIEW_PANEL", L"SINGLE_INPUT",
    L"DLG_ORVUTIL",        L"DLG_SMALLDATAWRITER"};

/// Dictionaries in which other modules store positions in a drawing.
constexpr const wchar_t* kPlacesInDrawing[] = {L"ORVZ_AG_SETTINGS", L"ORVZ_LSD_IA"};

void ForgetPlacesInDrawing() {
    AcDbDatabase* const pDatabase = acdbHostApplicationServices()->workingDatabase();
    if (!pDatabase) {
        return;
    }
    pDatabase->disableUndoRecording(true);
    CORVCDictionaryPtr dictionary(AcDb::kForWrite);
    for (const wchar_t* name : kPlacesInDrawing) {
        dictionary.dctErase(name);
    }
    pDatabase->disableUndoRecording(false);
    dictionary.close();
}

} // namespace

CWsDialogManager::~CWsDialogManager() {
    SaveDialogStates();
}

int CWsDialogManager::RegisterWsDialog(CWsBaseDialog* pDialog) {
    return m_dialogRegistry.emplace(pDialog->GetDialogId(), pDialog).second ? 1 : 0;
}

void CWsDialogManager::UnregisterWsDialog(CWsBaseDialog* pDialog) {
    m_dialogRegistry.erase(pDialog->GetDialogId());
}

CWsBaseDialog* CWsDialogManager::GetDlgById(const wchar_t* dialogId) {
    const auto known = m_dialogRegistry.find(CString(dialogId));
    if (known != m_dialogRegistry.end() && known->second) {
        return known->second;
    }
    // Copy: creating a dialog may register another factory.
    const FactoryVector factories = m_dlgFactories;
    for (const auto& factory : factories) {
        CWsBaseDialog* const pDialog = factory ? factory->CreateWsDialog(dialogId) : nullptr;
        if (pDialog) {
            pDialog->m_factory = factory.get();
            return pDialog;
        }
    }
    return nullptr;
}

int CWsDialogManager::IsDialogCreated(const wchar_t* dialogId) const {
    return m_dialogRegistry.contains(CString(dialogId)) ? 1 : 0;
}

int CWsDialogManager::DeleteDlgById(const wchar_t* dialogId) {
    // Copies: the id may belong to the dialog, and dialogs may register or unregister factories.
    const CString id(dialogId);
    const FactoryVector factories = m_dlgFactories;
    int deleted = 0;
    for (const auto& factory : factories) {
        deleted = factory ? factory->DeleteWsDialog(id) : 0;
        if (deleted) {
            m_dialogRegistry.erase(id);
        }
    }
    return deleted;
}

void CWsDialogManager::DeleteAllModelessDialogs() {
    const std::set<CString, CStringLess> kept(std::begin(kKept), std::end(kKept));
    Notification::CNotificationFramework::BlockAllResponders();
    std::vector<CString> ids;
    for (const auto& [id, pDialog] : m_dialogRegistry) {
        if (!kept.contains(id)) {
            ids.push_back(id);
        }
    }
    for (const CString& id : ids) {
        DeleteDlgById(id);
    }
}

template <class Action>
void CWsDialogManager::ForEachDialog(Action action) {
    for (auto next = m_dialogRegistry.begin(); next != m_dialogRegistry.end();) {
        const CString id = next->first;
        if (next->second) {
            action(*next->second);
        }
        // Handlers of the dialog may have deleted it or others.
        next = m_dialogRegistry.upper_bound(id);
    }
}

void CWsDialogManager::HideAll() {
    ForEachDialog([](CWsBaseDialog& dialog) { dialog.ShowWindow(SW_HIDE); });
}

void CWsDialogManager::CloseAll() {
    ForEachDialog([](CWsBaseDialog& dialog) { dialog.CloseWindow(); });
}

void CWsDialogManager::ResetDialogPositions() {
    const CORVCDocLock lock;
    ForEachDialog([](CWsBaseDialog& dialog) {
        const HWND window = dialog.GetSafeHwnd();
        dialog.MoveWindow(CRect(CPoint(), dialog.GetWindowRect().Size()));
        WINDOWPLACEMENT placement;
        if (IsWindow(window) && dialog.GetWindowPlacement(&placement)) {
            ForgetPlacesInDrawing();
        }
    });
}

void CWsDialogManager::SetNewWindowPosition(CWsBaseDialog* pDialog) {
    const std::vector<Monitor> monitors = Screens().Monitors();
    const CRect monitor = NearestMonitor(monitors, Screens().Cursor()).full;
    const CSize screen = monitors.front().full.Size();
    if (monitor != monitors.front().full || !IsCascaded(pDialog->GetDialogType()) ||
        pDialog->LoadWindowPosition()) {
        return;
    }
    if (!m_cascade) {
        m_cascade = DialogCascade{0, screen.cx};
    }
    const CRect place = pDialog->GetWindowRect();
    const CPoint way = m_cascade->Next(place.Size(), screen, monitor.Width());
    pDialog->SetWindowPos(nullptr, place.left + way.x, place.top + way.y, 0, 0,
                          SWP_NOSIZE | SWP_NOZORDER);
}

void CWsDialogManager::GetAllDialogs(std::vector<CString>& ids) const {
    for (const auto& factory : m_dlgFactories) {
        if (factory) {
            factory->GetAllDialogIds(ids);
        }
    }
}

boost::shared_ptr<CUiStates> CWsDialogManager::GetDialogStates() {
    if (!m_uiStatesFile) {
        CString path;
        path.Format(L"%suiStates.xml", CModuleConfiguration::Instance()->GetPath(L"support"));
        m_uiStatesFile = boost::make_shared<UiStatesFile>(path);
    }
    return m_uiStatesFile->States();
}

void CWsDialogManager::SaveDialogStates() {
    if (m_uiStatesFile) {
        m_uiStatesFile->Save();
    }
}

void CWsDialogManager::SaveDialogStatesSoon() {
    if (m_uiStatesFile) {
        m_uiStatesFile->SaveSoon();
    }
}

} // namespace Orvane::Workspace
