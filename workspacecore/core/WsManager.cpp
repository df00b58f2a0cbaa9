#include "workspacecore/core/WsManager.h"

#include <algorithm>
#include <utility>

#include "siblings/conversion/Ansi2UnicodeUtility.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscoreadds/InfoTooltipRegistry.h"
#include "workspacecore/commands/CommandScope.h"
#include "workspacecore/core/CommandIdReport.h"
#include "workspacecore/core/DocumentReactorWorkspace.h"
#include "workspacecore/core/EditorReactor.h"
#include "workspacecore/core/HostWillClose.h"
#include "workspacecore/trace/Trace.h"

namespace Orvane::Workspace {

CWsManager* CWsManager::m_pInstance = nullptr;
int s_bHostWillClose = 0;

namespace {

/// Length of texts converted without an allocation while modules load.
constexpr int kConversionBuffer = 1024;

class CommandEvents final : public ICommandEvents {
public:
    void RaiseBefore(const wchar_t* commandId) override {
        CWsManager::Instance()->Raise_OnBeforeCommandActivated(commandId);
    }
    void RaiseAfter(const wchar_t* commandId) override {
        CWsManager::Instance()->Raise_OnAfterCommandCompleted(commandId);
    }
};
CommandEvents s_commandEvents;

Notification::CPublisher* Publisher(const wchar_t* name) {
    return Notification::CNotificationFramework::Instance()->GetPublisher(name);
}

} // namespace

CWsManager* CWsManager::Instance() {
    if (m_pInstance) {
        return m_pInstance;
    }
    // Set first: hooks call Instance during start-up.
    m_pInstance = new CWsManager;
    CommandScope::SetEvents(&s_commandEvents);
    if (s_bHostWillClose) {
        return m_pInstance;
    }
    WS_TRACE_TEXT("CWsManager - 1");
    m_pInstance->m_pDocumentReactor = new CWsDocumentReactor;
    acDocManagerPtr()->addReactor(m_pInstance->m_pDocumentReactor);
    WS_TRACE_TEXT("CWsManager - 2");
    CAnsi2UnicodeUtility::Instance()->ReserveBufferMemory(kConversionBuffer);
    m_pInstance->m_PluginMgr.LoadModules();
    CAnsi2UnicodeUtility::Instance()->ReleaseBufferMemory();
    WS_TRACE_TEXT("CWsManager - 3");
    // Build templates only now: they need every plug-in's definitions.
    CWsTreeItemDefinitionList& definitions = *m_pInstance->m_TreeMgr.GetTreeItemDefinitionList();
    definitions.InitializeSystemTreeTemplate();
    definitions.InitializeDiskTreeTemplate();
    definitions.InitializeNetTreeTemplate();
    WS_TRACE_TEXT("CWsManager - 4");
    // The log viewer and its docking pane will be created here, once there are panes.
    WS_TRACE_TEXT("CWsManager - 5");
    m_pInstance->m_pEditorReactor = new ORVZWorkspaceCore_EditorReactor(true);
    CModuleConfiguration::Instance()->SetApplicationIsLoaded(1);
    WS_TRACE_TEXT("CWsManager - 6");
    CRepositoryManager::Instance()->ReloadRepositories(0);
    WS_TRACE_TEXT("CWsManager - 7");
    return m_pInstance;
}

CWsManager::CWsManager()
    : m_PanelDlgMgr(m_DlgMgr), m_pRefreshAllPbl(Publisher(L"REFRESH_CHILDREN")),
      m_pRefreshTreePbl(Publisher(L"REFRESH_TREE")),
      m_pSelectionInProgressPbl(Publisher(L"SELECTION_IN_PROGRESS")),
      m_pSelectionCompletedPbl(Publisher(L"SELECTION_COMPLETED")) {
    m_PluginMgr.m_pPanels = &m_PanelDlgMgr;
    m_TreeMgr.m_pCommands = &m_CmdMgr;
}

CWsManager::~CWsManager() {
    // Cleared first, so the teardown runs only once and nothing below reaches a dying manager.
    CWsManager* const pLive = std::exchange(m_pInstance, nullptr);
    if (pLive) {
        acDocManagerPtr()->removeReactor(pLive->m_pDocumentReactor);
        delete std::exchange(pLive->m_pDocumentReactor, nullptr);
        delete std::exchange(pLive->m_pEditorReactor, nullptr);
    }
    if (pLive != this) {
        delete pLive;
    }
}

int CWsManager::RegisterWsCommand(boost::shared_ptr<CWsCommand> command) {
    const int bTaken = m_CmdMgr.GetCommandRegistry()->AddWsCommand(command);
    if (bTaken) {
        ReportConfusingId(*m_CmdMgr.GetCommandRegistry(), *command);
    }
    return bTaken;
}

void CWsManager::RegisterWsTreeItem(boost::shared_ptr<CWsTreeItemDefinition> definition) {
    m_TreeMgr.GetTreeItemDefinitionList()->AddWsTreeItemDefinition(definition);
}

void CWsManager::RegisterTreeControl(CTreeCtrl* pTree) {
    m_TreeMgr.m_views[CWsTreeManager::SystemTree] = pTree;
}

void CWsManager::RegisterDiskTreeControl(CTreeCtrl* pTree) {
    m_TreeMgr.m_views[CWsTreeManager::DiskTree] = pTree;
}

void CWsManager::RegisterNetTreeControl(CTreeCtrl* pTree) {
    m_TreeMgr.m_views[CWsTreeManager::NetTree] = pTree;
}

void CWsManager::RegisterWsDialogFactory(boost::shared_ptr<IWsDialogFactory> factory) {
    m_DlgMgr.GetDlgFactories()->push_back(factory);
}

void CWsManager::RegisterWsPanelDialog(boost::shared_ptr<CWsPanelDialogMetadata> metadata) {
    m_PanelDlgMgr.RegisterWsPanelDialog(metadata);
}

CWsBaseDialog* CWsManager::GetDlgById(const wchar_t* dialogId) {
    return m_DlgMgr.GetDlgById(dialogId);
}

void CWsManager::RegisterBaseExecutor(IWsCommandExecutor* pExecutor) {
    if (!m_CmdMgr.m_pBaseExecutor) {
        m_CmdMgr.m_pBaseExecutor = pExecutor;
    }
}

void CWsManager::RegisterInfoTooltip(boost::shared_ptr<Utility::IInfoTooltip> tooltip) {
    Utility::CInfoTooltipRegistry::Instance()->RegisterInfoTooltip(tooltip);
}

void CWsManager::RegisterRepositoryFactory(const wchar_t* tag, CRepositoryFactory* pFactory) {
    CRepositoryManager::Instance()->RegisterRepositoryFactory(tag, pFactory);
}

void CWsManager::RegisterRepositoryItemFactory(const wchar_t* tag,
                                               CRepositoryItemFactory* pFactory) {
    CRepositoryManager::Instance()->RegisterRepositoryItemFactory(tag, pFactory);
}

void CWsManager::RegisterWsListener(IWsListener* pListener) {
    if (m_ListenerSet.insert(pListener).second) {
        m_Listeners.push_back(pListener);
        ++m_nListenerChanges;
    }
}

void CWsManager::UnregisterWsListener(IWsListener* pListener) {
    m_ListenerSet.erase(pListener);
    const auto hit = std::find(m_Listeners.begin(), m_Listeners.end(), pListener);
    if (hit != m_Listeners.end()) {
        m_Listeners.erase(hit);
        ++m_nListenerChanges;
    }
}

int CWsManager::StartCommandAfterDragAndDrop() const {
    int value = 0;
    return CModuleConfiguration::Instance()->GetGSValueInt(L"RUN_AFTER_DROP", value) && value == 1;
}

} // namespace Orvane::Workspace
