// Where the trees are shown.
#pragma once

#include "workspacecore/dialogs/IWsDialogFactory.h"
#include "workspacecore/events/IWsListener.h"

class CXTPDockingPane;
class CXTPDockingPaneManager;

namespace Orvane::Panels {

/// Numbers of the module's docking panes. The host keeps where they stand under them.
inline constexpr int kSystemsPane = 6710;
inline constexpr int kDiskPane = 6711;
inline constexpr int kNetPane = 6712;
inline constexpr int kLegendPane = 6713;

/// The docking panes of the host; null without a desktop.
CXTPDockingPaneManager* DockingPanes();

/// Offers the tree panels to the main panel. Where no main panel has come up by the time the
/// first drawing is there, each of them stands in a pane of its own.
class CPanelPanes final : public Workspace::IWsListener {
public:
    static void RegisterPanels();

    void OnAcadDocumentBecomeCurrent(AcApDocument* pDoc) override;

private:
    void MakePanes(CXTPDockingPaneManager& panes) const;

    bool m_isDone = false;
};

} // namespace Orvane::Panels
