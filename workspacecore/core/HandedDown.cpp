// Implements the interfaces through which lower folders reach the manager.
#include "workspacecore/core/WsManager.h"
#include "workspacecore/dialogs/DialogHome.h"
#include "workspacecore/tree/RegistrationTarget.h"

namespace Orvane::Workspace {

namespace {

// Instance is called each time, since the first call may start the workspace.

class ManagerAsRegistrationTarget final : public IRegistrationTarget {
public:
    void RegisterWsCommand(const boost::shared_ptr<CWsCommand>& command) override {
        CWsManager::Instance()->RegisterWsCommand(command);
    }
    void RegisterWsTreeItem(const boost::shared_ptr<CWsTreeItemDefinition>& definition) override {
        CWsManager::Instance()->RegisterWsTreeItem(definition);
    }
    IWsCommandExecutor* GetBaseExecutor() override {
        return CWsManager::Instance()->CmdMgr()->GetBaseExecutor();
    }
    TreeIcons& Icons() override { return CWsManager::Instance()->TreeMgr()->Icons(); }
    CString GetEntityTypeName(enmEntityType type) override {
        return CWsManager::Instance()->TreeMgr()->GetEntityTypeName(type);
    }
};

class ManagerAsDialogHome final : public IDialogHome {
public:
    CWsDialogManager& Dialogs() override { return *CWsManager::Instance()->DlgMgr(); }
    Notification::CPublisher* RefreshPublisher() override {
        return CWsManager::Instance()->GetRefreshAllPbl();
    }
    void RegisterWsListener(IWsListener* pListener) override {
        CWsManager::Instance()->RegisterWsListener(pListener);
    }
};

[[maybe_unused]] const bool kHandedDown = [] {
    static ManagerAsRegistrationTarget target;
    static ManagerAsDialogHome home;
    SetRegistrationTarget(&target);
    SetDialogHome(&home);
    return true;
}();

} // namespace

} // namespace Orvane::Workspace
