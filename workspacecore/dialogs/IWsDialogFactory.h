// Interface through which plug-ins provide dialogs.
#pragma once

#include <vector>

#include "platform/win/String.h"
#include "workspacecore/Api.h"

class CWnd;

namespace Orvane::Workspace {

class CWsBaseDialog;
class CWsPanelDialog;

/// Creates dialogs on demand and owns them. Registered with CWsManager::RegisterWsDialogFactory.
class WORKSPACE_API IWsDialogFactory {
public:
    IWsDialogFactory() = default;
    IWsDialogFactory(const IWsDialogFactory&) = default;
    IWsDialogFactory& operator=(const IWsDialogFactory&) = default;
    virtual ~IWsDialogFactory() = default;

    /// Null if this factory does not know the id. Keeps one dialog per id.
    virtual CWsBaseDialog* CreateWsDialog(const wchar_t* /*dialogId*/) { return nullptr; }
    /// Non-zero if this factory deleted the dialog.
    virtual int DeleteWsDialog(const wchar_t* /*dialogId*/) { return 0; }
    /// Creates a dialog of the main panel as a child of `parent`.
    virtual CWsPanelDialog* CreateWsPanelDialog(CWnd* /*parent*/, const wchar_t* /*dialogId*/) {
        return nullptr;
    }
    virtual int DeleteWsPanelDialog(const wchar_t* /*dialogId*/) { return 0; }
    /// Appends the ids of all dialogs that this factory can create.
    virtual void GetAllDialogIds(std::vector<CString>& ids) = 0;
};

} // namespace Orvane::Workspace
