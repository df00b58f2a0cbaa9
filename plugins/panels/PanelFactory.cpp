#include "plugins/panels/PanelFactory.h"

#include "platform/xtp/XTPDockingPaneManager.h"
#include "plugins/panels/FindDialog.h"
#include "plugins/panels/LegendDialog.h"
#include "plugins/panels/PropertiesDialog.h"
#include "plugins/panels/StatisticsDialog.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Panels {

namespace {

template <class Dialog>
Workspace::CWsBaseDialog* Make() {
    return new Dialog(acedGetAcadFrame());
}

constexpr struct {
    const wchar_t* id;
    Workspace::CWsBaseDialog* (*make)();
} kDialogs[] = {
    {kFindDialogId, Make<CFindDialog>},
    {kPropertiesDialogId, Make<CPropertiesDialog>},
    {kStatisticsDialogId, Make<CStatisticsDialog>},
    {kLegendDialogId, Make<CLegendDialog>},
};

} // namespace

void CPanelFactory::Removal::operator()(Workspace::CWsBaseDialog* pDialog) const {
    pDialog->DestroyWindow();
    Workspace::CWsManager::Instance()->UnregisterWsListener(pDialog);
    delete pDialog;
}

Workspace::CWsBaseDialog* CPanelFactory::CreateWsDialog(const wchar_t* dialogId) {
    for (const auto& entry : kDialogs) {
        if (CString(dialogId) == entry.id) {
            DialogPtr& dialog = m_dialogs[CString(entry.id)];
            if (!dialog) {
                dialog.reset(entry.make());
            }
            return dialog.get();
        }
    }
    return nullptr;
}

int CPanelFactory::DeleteWsDialog(const wchar_t* dialogId) {
    return static_cast<int>(m_dialogs.erase(CString(dialogId)));
}

Workspace::CWsPanelDialog* CPanelFactory::CreateWsPanelDialog(CWnd* parent,
                                                              const wchar_t* dialogId) {
    for (const TreeKind kind : kTreeKinds) {
        if (CString(dialogId) == PanelIdOf(kind)) {
            std::unique_ptr<CTreePanel>& panel = m_panels[CString(dialogId)];
            if (!panel) {
                panel = std::make_unique<CTreePanel>(kind, parent);
            }
            return panel.get();
        }
    }
    return nullptr;
}

int CPanelFactory::DeleteWsPanelDialog(const wchar_t* dialogId) {
    return static_cast<int>(m_panels.erase(CString(dialogId)));
}

void CPanelFactory::GetAllDialogIds(std::vector<CString>& ids) {
    for (const auto& entry : kDialogs) {
        ids.emplace_back(entry.id);
    }
}

} // namespace Orvane::Panels
