// The docking panes of the trees.
#pragma once

#include "workspacecore/dialogs/IWsDialogFactory.h"
#include "workspacecore/events/IWsListener.h"

class CXTPDockingPane;
class CXTPDockingPaneManager;

namespace Orvane::Panels {

/// Ids of the module's docking panes, under which the host saves their positions.
inline constexpr int kSystemsPane = 6710;
inline constexpr int kDiskPane = 6711;
inline constexpr int kNetPane = 6712;
inline constexpr int kLegendPane = 6713;

/// The host's docking panes; null without a desktop.
CXTPDockingPaneManager* DockingPanes();

/// Offers the tree panels to the main panel. If no main panel has been created when the first
/// drawing becomes current, creates a docking pane for each tree.
class CPanelPanes final : public Workspace::IWsListener {
public:
    static void RegisterPanels();

    void OnAcadDocumentBecomeCurrent(AcApDocument* pDoc) override;

private:
    void MakePanes(CXTPDockingPaneManager& panes) const;

    bool m_isDone = false;
};

} // namespace Orvane::Panels
