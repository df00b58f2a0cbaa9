#include "workspacecore/dialogs/WsPanelDialogManager.h"

#include "platform/arx/ApDocManager.h"
#include "platform/xtp/XTPDockingPaneManager.h"
#include "workspacecore/dialogs/WsDialogManager.h"
#include "workspacecore/dialogs/WsPanelDialog.h"

namespace Orvane::Workspace {

namespace {
constexpr unsigned int kSubscriberNumber = 500;
constexpr int kPaneTheme = 2;
} // namespace

CWsPanelDialog::CWsPanelDialog(unsigned int dialogResourceId, const wchar_t* dialogId, CWnd* parent,
                               HINSTANCE resourceInstance)
    : CAdUiBaseDialog(dialogResourceId, parent, resourceInstance), CSubscriber(kSubscriberNumber),
      m_dialogId(dialogId) {}

CWsPanelDialog::~CWsPanelDialog() = default;

CWsPanelDialogManager::CWsPanelDialogManager(CWsDialogManager& dialogs)
    : m_pDialogs(&dialogs), m_paneManager(new CXTPDockingPaneManager) {
    m_paneManager->InstallDockingPanes(acedGetAcadFrame(), 1);
    m_paneManager->SetStickyFloatingFrames(1);
    m_paneManager->SetTheme(kPaneTheme);
    m_paneManager->SetThemedFloatingFrames(1);
    m_paneManager->SetAlphaDockingContext(1);
    m_paneManager->SetShowDockingContextStickers(1);
    m_paneManager->SetAnimationDelay(-1.0, 128, 16);
}

int CWsPanelDialogManager::RegisterWsPanelDialog(MetadataPtr metadata) {
    if (!metadata) {
        return 0;
    }
    MetadataPtr& place = m_panelDialogs[metadata->GetPanelPosition()];
    if (place) {
        return 0;
    }
    place = metadata;
    return 1;
}

void CWsPanelDialogManager::StackRegisteredPanelButtons() {
    std::map<enmPanelDialogPosition, MetadataPtr> stacked;
    for (int position = 0; position < kPanelDialogPositions; ++position) {
        if (const MetadataPtr& metadata =
                m_panelDialogs[static_cast<enmPanelDialogPosition>(position)]) {
            stacked[static_cast<enmPanelDialogPosition>(stacked.size())] = metadata;
        }
    }
    m_panelDialogs.swap(stacked);
}

int CWsPanelDialogManager::IsButtonFree(enmPanelDialogPosition position) {
    return m_panelDialogs[position] ? 0 : 1;
}

CWsPanelDialogManager::MetadataPtr
CWsPanelDialogManager::GetWsPanelMetadata(enmPanelDialogPosition position) {
    return m_panelDialogs[position];
}

CWsPanelDialog* CWsPanelDialogManager::GetWsPanelDialogByPosition(enmPanelDialogPosition position) {
    const MetadataPtr metadata = m_panelDialogs[position];
    if (!metadata || metadata->m_panelDialog) {
        return metadata ? metadata->m_panelDialog : nullptr;
    }
    // Copy: creating a dialog may register another factory.
    const CWsDialogManager::FactoryVector factories = *m_pDialogs->GetDlgFactories();
    for (const auto& factory : factories) {
        CWsPanelDialog* const pDialog =
            factory ? factory->CreateWsPanelDialog(m_mainWorkspaceDlg, metadata->GetDialogId())
                    : nullptr;
        if (pDialog) {
            return metadata->m_panelDialog = pDialog;
        }
    }
    return nullptr;
}

CWsPanelDialog* CWsPanelDialogManager::GetWsPanelDialogById(const wchar_t* dialogId) {
    for (const auto& [position, metadata] : m_panelDialogs) {
        if (metadata && metadata->GetDialogId().CompareNoCase(dialogId) == 0) {
            return GetWsPanelDialogByPosition(metadata->GetPanelPosition());
        }
    }
    return nullptr;
}

} // namespace Orvane::Workspace
