// The column of panels in the main panel, and the docking panes.
#pragma once

#include <boost/shared_ptr.hpp>
#include <map>

#include "workspacecore/dialogs/WsPanelDialogMetadata.h"

class CWnd;
class CXTPDockingPaneManager;

namespace Orvane::Workspace {

class CWsDialogManager;

/// Held by CWsManager, which alone makes one. Asking about a place makes an empty entry for
/// it, which counts as free. Main thread only.
class WORKSPACE_API CWsPanelDialogManager {
public:
    using MetadataPtr = boost::shared_ptr<CWsPanelDialogMetadata>;

    /// The first one of a place keeps it.
    /// \return non-zero if the description was taken
    int RegisterWsPanelDialog(MetadataPtr metadata);
    /// Closes the gaps of the column, upward; descriptions beyond its end are dropped. Once,
    /// when all plug-ins are loaded.
    void StackRegisteredPanelButtons();
    int IsButtonFree(enmPanelDialogPosition position);
    /// Null for a free place.
    MetadataPtr GetWsPanelMetadata(enmPanelDialogPosition position);
    /// The dialog of a place, made by a factory the first time; null if none can.
    CWsPanelDialog* GetWsPanelDialogByPosition(enmPanelDialogPosition position);
    /// By the place that the description asked for, which is not where it stands if the
    /// column closed up. Case does not count.
    CWsPanelDialog* GetWsPanelDialogById(const wchar_t* dialogId);

    /// The main panel, parent of all panel dialogs; null before it was made.
    CWnd* GetMainWorkspaceDlg() const { return m_mainWorkspaceDlg; }
    /// The CXTPDockingPaneManager of the host's frame.
    void* GetPanelManager() const { return m_paneManager.get(); }

private:
    friend class CWsManager;
    explicit CWsPanelDialogManager(CWsDialogManager& dialogs);

    CWsDialogManager* m_pDialogs; ///< whose factories make the panels
    CWnd* m_mainWorkspaceDlg = nullptr;
    boost::shared_ptr<CXTPDockingPaneManager> m_paneManager;
    std::map<enmPanelDialogPosition, MetadataPtr> m_panelDialogs;
};

} // namespace Orvane::Workspace
