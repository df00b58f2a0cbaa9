// What a plug-in implements to bring dialogs.
#pragma once

#include <vector>

#include "platform/win/String.h"
#include "workspacecore/Api.h"

class CWnd;

namespace Orvane::Workspace {

class CWsBaseDialog;
class CWsPanelDialog;

/// Makes dialogs on demand and owns what it has made. Registered with
/// CWsManager::RegisterWsDialogFactory.
class WORKSPACE_API IWsDialogFactory {
public:
    IWsDialogFactory() = default;
    IWsDialogFactory(const IWsDialogFactory&) = default;
    IWsDialogFactory& operator=(const IWsDialogFactory&) = default;
    virtual ~IWsDialogFactory() = default;

    /// Null if the id is none of this factory's. It keeps one dialog for each id.
    virtual CWsBaseDialog* CreateWsDialog(const wchar_t* /*dialogId*/) { return nullptr; }
    /// Non-zero if this factory deleted the dialog.
    virtual int DeleteWsDialog(const wchar_t* /*dialogId*/) { return 0; }
    /// The same for dialogs in the main panel, as children of `parent`.
    virtual CWsPanelDialog* CreateWsPanelDialog(CWnd* /*parent*/, const wchar_t* /*dialogId*/) {
        return nullptr;
    }
    virtual int DeleteWsPanelDialog(const wchar_t* /*dialogId*/) { return 0; }
    /// Appends the ids of all dialogs that this factory can make.
    virtual void GetAllDialogIds(std::vector<CString>& ids) = 0;
};

} // namespace Orvane::Workspace
