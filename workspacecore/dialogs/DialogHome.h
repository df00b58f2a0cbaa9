// What a dialog needs of the workspace it lives in.
#pragma once

namespace Orvane::Notification {
class CPublisher;
}

namespace Orvane::Workspace {

class CWsDialogManager;
class IWsListener;

/// Dialogs are made by plug-ins, which hand them nothing of the workspace; so they find it
/// here. The folder above implements it.
class IDialogHome {
public:
    virtual CWsDialogManager& Dialogs() = 0;
    /// "REFRESH_CHILDREN"; may be null.
    virtual Notification::CPublisher* RefreshPublisher() = 0;
    virtual void RegisterWsListener(IWsListener* pListener) = 0;

protected:
    ~IDialogHome() = default;
};

/// Handed in once, when the module is loaded; not owned, and lives as long as the module.
void SetDialogHome(IDialogHome* pHome);
IDialogHome& DialogHome();

} // namespace Orvane::Workspace
