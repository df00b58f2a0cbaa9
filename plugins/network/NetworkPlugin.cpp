// ORVZNetwork.arx: entry points called by the workspace.
#include "plugins/network/NetworkExecutor.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "workspacecore/core/WsManager.h"

namespace {

using namespace Orvane::Workspace;

class NetworkPlugin final : public IPluginInfo {
public:
    void PluginHook6() override {}
    void PluginHook1() override {
        const Orvane::CModuleConfiguration& messages = *Orvane::CModuleConfiguration::Instance();
        for (const Orvane::Network::NetworkCommand& entry : Orvane::Network::NetworkCommands()) {
            boost::shared_ptr<CWsCommand> command(new CWsCommand);
            command->SetId(entry.id);
            command->SetName(messages.GetMsg(entry.msgName));
            command->SetDescription(messages.GetMsg(entry.msgDescription));
            command->SetCmdExecutor(&m_executor);
            CWsManager::Instance()->RegisterWsCommand(command);
        }
    }
    void PluginHook2() override {}
    void PluginHook3() override {}
    void PluginHook4() override {}
    void PluginHook5() override {}
    void PluginHook7() override {}

private:
    Orvane::Network::CNetworkExecutor m_executor;
};

} // namespace

extern "C" {

__attribute__((visibility("default"))) IPluginInfo* ORVPluginInfoProvider() {
    static NetworkPlugin plugin;
    return &plugin;
}

__attribute__((visibility("default"))) void ORVPluginInfoRelease() {}

} // extern "C"
