#include "workspacecore/core/DocumentReactorWorkspace.h"

#include "platform/xtp/XTPDockingPaneManager.h"
#include "siblings/giscore/data/DataConfiguration.h"
#include "siblings/giscore/notification/Publisher.h"
#include "siblings/giscore/systems/GisSystems.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/giscoreadds/NodeIndex.h"
#include "siblings/giscoreadds/PolygonIndex.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/trace/Trace.h"

namespace Orvane::Workspace {

AcApDocument* CWsDocumentReactor::s_pLastCurrentDocument = nullptr;

namespace {

/// Without a drawing, panels and dialogs have nothing to show.
void CloseAllWindows() {
    CWsManager& manager = *CWsManager::Instance();
    static_cast<CXTPDockingPaneManager*>(manager.PDlgMgr()->GetPanelManager())->CloseAll();
    manager.DlgMgr()->HideAll();
}

} // namespace

CWsDocumentReactor::CWsDocumentReactor()
    : m_pPolygonIndex(Selection::CPolygonIndex::Instance()),
      m_pNodeIndex(Selection::CNodeIndex::Instance()) {}

void CWsDocumentReactor::MarkIndexesChanged() {
    m_pPolygonIndex->Changed(1);
    m_pNodeIndex->Changed(1);
}

void CWsDocumentReactor::documentBecameCurrent(AcApDocument* pDoc) {
    WS_TRACE_SCOPE();
    if (pDoc) {
        // The workspace panel will be started here, once it exists.
        WS_TRACE_TEXT(pDoc->fileName());
    }
    AcDbDatabase* const currentDB = acdbHostApplicationServices()->workingDatabase();
    WS_TRACE_VALUE("currentDB", currentDB);
    if (!pDoc || !currentDB) {
        MarkIndexesChanged();
        CloseAllWindows();
        s_pLastCurrentDocument = nullptr;
    } else if (pDoc != s_pLastCurrentDocument) {
        SetUp(pDoc);
    }
}

void CWsDocumentReactor::SetUp(AcApDocument* pDoc) {
    CWsManager& manager = *CWsManager::Instance();
    manager.Raise_OnAcadDocumentBecomeCurrent(pDoc);
    // The log view will be cleared here, once it exists.
    s_pLastCurrentDocument = pDoc;
    MarkIndexesChanged();
    manager.GetRefreshAllPbl()->Notify(nullptr, nullptr);
    manager.CmdMgr()->SetAllowStopCommand(1);
    Data::CDataConfiguration::Instance()->RefreshTemporaryDataDefinitions();
    System::CSystemManager::Instance()->GetSystems()->UpgradeSystems();
    manager.Raise_OnSystemBecomeActive(System::CSystemManager::Instance()->GetActiveSystem());
}

void CWsDocumentReactor::documentToBeDeactivated(AcApDocument* pDoc) {
    WS_TRACE_SCOPE();
    CWsManager::Instance()->Raise_OnAcadDocumentToBeDeactivated(pDoc);
    CWsManager::Instance()->CmdMgr()->SetAllowStopCommand(0);
}

void CWsDocumentReactor::documentToBeDestroyed(AcApDocument* pDoc) {
    CWsManager::Instance()->Raise_OnAcadDocumentToBeDestroyed(pDoc);
}

void CWsDocumentReactor::documentDestroyed(const wchar_t* lpszFileName) {
    WS_TRACE_SCOPE();
    WS_TRACE_TEXT(lpszFileName);
    MarkIndexesChanged();
    // Even if a listener throws: another document may be created at the same address.
    const auto forget = [] {
        if (acDocManagerPtr()->documentCount() < 2) {
            CloseAllWindows();
        }
        s_pLastCurrentDocument = nullptr;
    };
    try {
        CWsManager::Instance()->Raise_OnAcadDocumentDestroyed(lpszFileName);
    } catch (...) {
        forget();
        throw;
    }
    forget();
}

} // namespace Orvane::Workspace
