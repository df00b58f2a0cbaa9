// A dialog's view of its workspace.
#pragma once

namespace Orvane::Notification {
class CPublisher;
}

namespace Orvane::Workspace {

class CWsDialogManager;
class IWsListener;

/// Plug-ins construct dialogs without passing them the workspace, so dialogs find it here.
/// Implemented in workspacecore/core.
class IDialogHome {
public:
    virtual CWsDialogManager& Dialogs() = 0;
    /// The publisher "REFRESH_CHILDREN"; may be null.
    virtual Notification::CPublisher* RefreshPublisher() = 0;
    virtual void RegisterWsListener(IWsListener* pListener) = 0;

protected:
    ~IDialogHome() = default;
};

/// Set once when the module is loaded; not owned, and lives as long as the module.
void SetDialogHome(IDialogHome* pHome);
IDialogHome& DialogHome();

} // namespace Orvane::Workspace
