// Root object of the workspace.
#pragma once

#include <boost/shared_ptr.hpp>
#include <set>
#include <vector>

#include "workspacecore/Api.h"
#include "workspacecore/commands/WsCommandManager.h"
#include "workspacecore/dialogs/WsDialogManager.h"
#include "workspacecore/dialogs/WsPanelDialogManager.h"
#include "workspacecore/events/IWsListener.h"
#include "workspacecore/panel/WsTreeManager.h"
#include "workspacecore/plugins/WsPluginManager.h"

class ORVZWorkspaceCore_EditorReactor;

namespace Orvane {
class CRepositoryFactory;
class CRepositoryItemFactory;
namespace Notification {
class CPublisher;
}
namespace Utility {
class IInfoTooltip;
}
} // namespace Orvane

namespace Orvane::Workspace {

class CWsDocumentReactor;

/// Owns the sub-managers, holds the listeners and starts the workspace: the first call of
/// Instance creates the object, loads the plug-ins and builds the templates. Lives until the
/// process ends. Main thread only.
class WORKSPACE_API CWsManager {
public:
    /// The manager. Calls made while the first one is still starting the workspace, for instance
    /// from plug-in hooks, return the same, partly initialised object.
    static CWsManager* Instance();
    /// Non-zero once the object exists, which is before any plug-in is loaded.
    static int IsWSInitialized() { return m_pInstance != nullptr; }

    /// Memberwise; the registries are shared.
    CWsManager(const CWsManager&) = default;
    CWsManager& operator=(const CWsManager&) = default;
    /// Destroys the live manager with every plug-in. Not called in normal operation.
    ~CWsManager();

    // Sub-managers; never null.
    CWsPluginManager* PluginMgr() { return &m_PluginMgr; }
    CWsTreeManager* TreeMgr() { return &m_TreeMgr; }
    CWsCommandManager* CmdMgr() { return &m_CmdMgr; }
    CWsDialogManager* DlgMgr() { return &m_DlgMgr; }
    CWsPanelDialogManager* PDlgMgr() { return &m_PanelDlgMgr; }

    // Publishers, shared by all modules that use the same names.
    Notification::CPublisher* GetRefreshAllPbl() const { return m_pRefreshAllPbl; }
    Notification::CPublisher* GetRefreshTreePbl() const { return m_pRefreshTreePbl; }
    Notification::CPublisher* GetSelectionInProgressPbl() const {
        return m_pSelectionInProgressPbl;
    }
    Notification::CPublisher* GetSelectionCompletedPbl() const { return m_pSelectionCompletedPbl; }

    // Registration, for plug-ins in their hooks. Arguments are not checked.
    // Returns 0 if the id is already taken.
    int RegisterWsCommand(boost::shared_ptr<CWsCommand> command);
    void RegisterWsTreeItem(boost::shared_ptr<CWsTreeItemDefinition> definition);
    void RegisterWsDialogFactory(boost::shared_ptr<IWsDialogFactory> factory);
    void RegisterWsPanelDialog(boost::shared_ptr<CWsPanelDialogMetadata> metadata);
    /// The first executor wins; later ones are ignored. Not owned.
    void RegisterBaseExecutor(IWsCommandExecutor* pExecutor);
    void RegisterInfoTooltip(boost::shared_ptr<Utility::IInfoTooltip> tooltip);
    void RegisterRepositoryFactory(const wchar_t* tag, CRepositoryFactory* pFactory);
    void RegisterRepositoryItemFactory(const wchar_t* tag, CRepositoryItemFactory* pFactory);
    // The view of a tree; may be null. The last one registered wins. Not owned.
    void RegisterTreeControl(CTreeCtrl* pTree);
    void RegisterDiskTreeControl(CTreeCtrl* pTree);
    void RegisterNetTreeControl(CTreeCtrl* pTree);
    /// Not owned. Registering again has no effect.
    void RegisterWsListener(IWsListener* pListener);
    void UnregisterWsListener(IWsListener* pListener);

    /// Same as CWsDialogManager::GetDlgById.
    CWsBaseDialog* GetDlgById(const wchar_t* dialogId);
    /// Non-zero if the general setting "RUN_AFTER_DROP" is 1.
    int StartCommandAfterDragAndDrop() const;
    /// Runs the text console on the host's command line until the user leaves it.
    void StartHalvaneConsole();

    // Events (IWsListener.h). Each does its own housekeeping and then notifies every listener in
    // the order of registration. Once the host is certain to close, the events of documents
    // becoming current or being destroyed, of activation, of temporary data and of commands are
    // no longer raised. Exceptions of listeners propagate.
    int Raise_OnBeforeAcadWillClose();
    void Raise_OnBeginSaveAcadDocument(AcDbDatabase* pDb, const wchar_t* lpszFileName);
    void Raise_OnSaveCompletedAcadDocument(AcDbDatabase* pDb, const wchar_t* lpszFileName);
    void Raise_OnAcadDocumentBecomeCurrent(AcApDocument* pActivatedDoc);
    void Raise_OnAcadDocumentToBeDeactivated(AcApDocument* pDoc);
    void Raise_OnAcadDocumentToBeDestroyed(AcApDocument* pDocToDestroy);
    void Raise_OnAcadDocumentDestroyed(const wchar_t* lpszFileName);
    void Raise_OnSystemChanged(System::CGisSystem* pSystem);
    /// First reloads linear data and name rules and loads the system's counters. The system may
    /// be null.
    void Raise_OnSystemBecomeActive(System::CGisSystem* pSysToBecomeActive);
    /// First saves the topology's counters to the system.
    void Raise_OnSystemBecomeInactive(System::CGisSystem* pSystem);
    void Raise_OnSystemBecomeHidden(System::CGisSystem* pSystem);
    void Raise_OnSystemBecomeShown(System::CGisSystem* pSystem);
    void Raise_OnBeforeSystemDelete(System::CGisSystem* pSystem);
    void Raise_OnAfterSystemDelete();
    void Raise_OnNewSystemCreated(System::CGisSystem* pNewSystem);
    void Raise_OnNewConfigDefinitionAdded(System::CGisSystem* pSystem,
                                          const wchar_t* lpszRepositoryTag,
                                          const wchar_t* lpszNewDefinitionGuid);
    void Raise_OnTemporaryDataRefreshed();
    void Raise_OnBeforeConfigDefinitionDeleted(System::CGisSystem* pSystem,
                                               const wchar_t* lpszRepositoryTag,
                                               const wchar_t* lpszDefinitionGuidToBeDeleted);
    void Raise_OnConfigDefinitionChanged(System::CGisSystem* pSystem,
                                         const wchar_t* lpszRepositoryTag,
                                         const wchar_t* lpsChangedDefinitionGuid);
    void Raise_OnConfigBecomeDefault(System::CGisSystem* pSystem, const wchar_t* lpszRepositoryTag,
                                     const wchar_t* lpszDefaultDefinitionGuid);
    void Raise_OnBeforeCommandActivated(const wchar_t* lpszCommandId);
    void Raise_OnAfterCommandCompleted(const wchar_t* lpszCommandId);
    void Raise_OnAfterGeneralSettingsChanged();

    static CWsManager* m_pInstance;

private:
    CWsManager();
    template <auto Event, class... Args>
    void Deliver(const wchar_t* event, Args... args) const;

    // In the order of construction: the plug-in manager reads its file first.
    CWsDocumentReactor* m_pDocumentReactor = nullptr;            ///< owned
    ORVZWorkspaceCore_EditorReactor* m_pEditorReactor = nullptr; ///< owned
    CWsPluginManager m_PluginMgr;
    CWsTreeManager m_TreeMgr;
    CWsCommandManager m_CmdMgr;
    CWsDialogManager m_DlgMgr;
    CWsPanelDialogManager m_PanelDlgMgr;
    std::set<IWsListener*> m_ListenerSet;
    std::vector<IWsListener*> m_Listeners;
    unsigned int m_nListenerChanges = 0;
    Notification::CPublisher* m_pRefreshAllPbl;
    Notification::CPublisher* m_pRefreshTreePbl;
    Notification::CPublisher* m_pSelectionInProgressPbl;
    Notification::CPublisher* m_pSelectionCompletedPbl;
};

} // namespace Orvane::Workspace
