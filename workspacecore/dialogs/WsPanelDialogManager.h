// The dialogs in the main panel, and the docking panes.
#pragma once

#include <boost/shared_ptr.hpp>
#include <map>

#include "workspacecore/dialogs/WsPanelDialogMetadata.h"

class CWnd;
class CXTPDockingPaneManager;

namespace Orvane::Workspace {

class CWsDialogManager;

/// Owned by CWsManager, the only instance. Querying a position creates an empty entry for it,
/// which counts as free. Main thread only.
class WORKSPACE_API CWsPanelDialogManager {
public:
    using MetadataPtr = boost::shared_ptr<CWsPanelDialogMetadata>;

    /// The first dialog registered for a position keeps it.
    /// \return non-zero if the description was added
    int RegisterWsPanelDialog(MetadataPtr metadata);
    /// Closes gaps in the column by moving entries up; entries beyond its end are dropped. Called
    /// once, when all plug-ins are loaded.
    void StackRegisteredPanelButtons();
    int IsButtonFree(enmPanelDialogPosition position);
    /// Null for a free position.
    MetadataPtr GetWsPanelMetadata(enmPanelDialogPosition position);
    /// The dialog at a position, created by a factory on first use; null if no factory knows it.
    CWsPanelDialog* GetWsPanelDialogByPosition(enmPanelDialogPosition position);
    /// Uses the originally requested position, which differs from the actual one if gaps were
    /// closed. Case-insensitive.
    CWsPanelDialog* GetWsPanelDialogById(const wchar_t* dialogId);

    /// The main panel, parent of all panel dialogs; null before it is created.
    CWnd* GetMainWorkspaceDlg() const { return m_mainWorkspaceDlg; }
    /// The CXTPDockingPaneManager of the host's main window.
    void* GetPanelManager() const { return m_paneManager.get(); }

private:
    friend class CWsManager;
    explicit CWsPanelDialogManager(CWsDialogManager& dialogs);

    CWsDialogManager* m_pDialogs; ///< its factories create the panels
    CWnd* m_mainWorkspaceDlg = nullptr;
    boost::shared_ptr<CXTPDockingPaneManager> m_paneManager;
    std::map<enmPanelDialogPosition, MetadataPtr> m_panelDialogs;
};

} // namespace Orvane::Workspace
