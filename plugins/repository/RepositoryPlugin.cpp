// ORVZRepository.arx: entry points called by the workspace.
#include "plugins/repository/RepositoryDefaults.h"
#include "plugins/repository/RepositoryExecutor.h"
#include "plugins/repository/RepositoryFamilies.h"
#include "plugins/repository/SystemExecutor.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/tree/WsRegistrationFactory.h"

namespace {

using namespace Orvane::Workspace;

class RepositoryPlugin final : public IPluginInfo {
public:
    /// Registers what other registrations need: the executor of standard commands, and the
    /// repositories, which are asked for default items.
    void PluginHook6() override {
        CWsManager::Instance()->RegisterBaseExecutor(&m_baseExecutor);
        Orvane::Repository::RegisterRepositories();
        CWsManager::Instance()->RegisterWsListener(&m_defaults);
    }
    void PluginHook1() override {}
    /// Registers the tree items.
    void PluginHook2() override {
        CWsRegistrationFactory::RegisterBasicItems();
        RegisterSystems();
        Orvane::Repository::RegisterFamilies();
    }
    void PluginHook3() override {}
    void PluginHook4() override {}
    void PluginHook5() override {}
    void PluginHook7() override {}

private:
    /// The standard registration refers to a rename command without providing it. Provide it here
    /// and allow renaming in the tree.
    void RegisterSystems() {
        CWsRegistrationFactory::RegisterSystemItem(&m_systemExecutor, nullptr, 1, 1)
            ->SetAllowRename(1);
        boost::shared_ptr<CWsCommand> command(new CWsCommand);
        command->SetId(L"SYSTEM_REN");
        command->SetName(Orvane::CModuleConfiguration::Instance()->GetMsg(1379));
        command->SetCmdGroup(CommandGroupHidden);
        command->SetTreeCmdBehavior(TreeBehaviorEdit);
        command->SetCmdExecutor(&m_systemExecutor);
        CWsManager::Instance()->RegisterWsCommand(command);
    }

    Orvane::Repository::CBaseExecutor m_baseExecutor;
    Orvane::Repository::DefaultsAtOpening m_defaults;
    Orvane::Repository::CSystemExecutor m_systemExecutor;
};

} // namespace

extern "C" {

__attribute__((visibility("default"))) IPluginInfo* ORVPluginInfoProvider() {
    static RepositoryPlugin plugin;
    return &plugin;
}

__attribute__((visibility("default"))) void ORVPluginInfoRelease() {}

} // extern "C"
