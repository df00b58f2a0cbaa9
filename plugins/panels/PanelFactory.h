// Creates the module's panels and dialogs on demand.
#pragma once

#include <map>
#include <memory>

#include "plugins/panels/TreePanel.h"
#include "workspacecore/dialogs/IWsDialogFactory.h"
#include "workspacecore/dialogs/WsBaseDialog.h"

namespace Orvane::Panels {

/// Windows are created hidden, one for each id.
class CPanelFactory final : public Workspace::IWsDialogFactory {
public:
    Workspace::CWsBaseDialog* CreateWsDialog(const wchar_t* dialogId) override;
    int DeleteWsDialog(const wchar_t* dialogId) override;
    Workspace::CWsPanelDialog* CreateWsPanelDialog(CWnd* parent, const wchar_t* dialogId) override;
    int DeleteWsPanelDialog(const wchar_t* dialogId) override;
    void GetAllDialogIds(std::vector<CString>& ids) override;

private:
    /// Destroys the window and unregisters the dialog from the workspace.
    struct Removal {
        void operator()(Workspace::CWsBaseDialog* pDialog) const;
    };
    using DialogPtr = std::unique_ptr<Workspace::CWsBaseDialog, Removal>;

    std::map<CString, DialogPtr, CStringLess> m_dialogs;
    std::map<CString, std::unique_ptr<CTreePanel>, CStringLess> m_panels;
};

} // namespace Orvane::Panels
