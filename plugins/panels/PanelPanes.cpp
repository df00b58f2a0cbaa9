#include "plugins/panels/PanelPanes.h"

#include "platform/xtp/XTPDockingPaneManager.h"
#include "plugins/panels/PanelTexts.h"
#include "plugins/panels/TreePanel.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Panels {

namespace {

constexpr CRect kPaneSize(0, 0, 260, 300);
constexpr CSize kSmallest(120, 80);

struct PaneOfTree {
    TreeKind kind;
    int pane;
    Msg title;
    const wchar_t* icon;
    int under; ///< the pane above it; 0 to dock at the side of the frame
    int with;  ///< the pane whose tabs it joins; 0 for none
};

constexpr PaneOfTree kPanes[] = {
    {TreeKind::Systems, kSystemsPane, Msg::Systems, L"ORV_SYSTEM_MANAGER", 0, 0},
    {TreeKind::Disk, kDiskPane, Msg::DiskRepository, L"IDI_DISKDATA", kSystemsPane, 0},
    {TreeKind::Net, kNetPane, Msg::NetRepository, L"IDI_NETDATA", 0, kDiskPane},
};

/// Asks all factories, because any of them may provide the panel.
Workspace::CWsPanelDialog* MakePanel(CWnd* pParent, const wchar_t* id) {
    for (const auto& factory : *Workspace::CWsManager::Instance()->DlgMgr()->GetDlgFactories()) {
        if (Workspace::CWsPanelDialog* const pPanel = factory->CreateWsPanelDialog(pParent, id)) {
            return pPanel;
        }
    }
    return nullptr;
}

void MakePane(CXTPDockingPaneManager& panes, const PaneOfTree& entry) {
    CXTPDockingPane* const pPane =
        panes.CreatePane(entry.pane, kPaneSize, entry.under ? xtpPaneDockBottom : xtpPaneDockLeft,
                         panes.FindPane(entry.under));
    if (!pPane) {
        return;
    }
    pPane->SetTitle(Text(entry.title));
    pPane->SetMinTrackSize(kSmallest);
    pPane->Attach(MakePanel(acedGetAcadFrame(), PanelIdOf(entry.kind)));
    if (CXTPDockingPane* const pOther = panes.FindPane(entry.with)) {
        panes.AttachPane(pPane, pOther);
    }
}

} // namespace

CXTPDockingPaneManager* DockingPanes() {
    return acedGetAcadFrame() ? static_cast<CXTPDockingPaneManager*>(
                                    Workspace::CWsManager::Instance()->PDlgMgr()->GetPanelManager())
                              : nullptr;
}

void CPanelPanes::RegisterPanels() {
    int position = 0;
    for (const PaneOfTree& entry : kPanes) {
        const boost::shared_ptr<Workspace::CWsPanelDialogMetadata> metadata(
            new Workspace::CWsPanelDialogMetadata);
        metadata->SetDialogId(PanelIdOf(entry.kind));
        metadata->SetPanelPosition(static_cast<Workspace::enmPanelDialogPosition>(position++));
        metadata->SetButtonIconId(entry.icon);
        metadata->SetButtonText(Text(entry.title));
        metadata->SetTooltipText(Text(entry.title));
        Workspace::CWsManager::Instance()->RegisterWsPanelDialog(metadata);
    }
}

void CPanelPanes::OnAcadDocumentBecomeCurrent(AcApDocument* pDoc) {
    CXTPDockingPaneManager* const pPanes = DockingPanes();
    if (m_isDone || !pDoc || !pPanes) {
        return;
    }
    m_isDone = true;
    if (!Workspace::CWsManager::Instance()->PDlgMgr()->GetMainWorkspaceDlg()) {
        MakePanes(*pPanes);
    }
}

void CPanelPanes::MakePanes(CXTPDockingPaneManager& panes) const {
    for (const PaneOfTree& entry : kPanes) {
        MakePane(panes, entry);
    }
    // Bring the first tab to the front.
    panes.ShowPane(kDiskPane, 0);
}

} // namespace Orvane::Panels
