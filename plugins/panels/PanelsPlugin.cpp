// ORVZPanels.arx: what the workspace meets of it.
#include "plugins/panels/PanelCommands.h"
#include "workspacecore/core/WsManager.h"

namespace {

using namespace Orvane::Workspace;

class PanelsPlugin final : public IPluginInfo {
public:
    void PluginHook1() override { Orvane::Panels::RegisterPanelCommands(m_executor); }
    void PluginHook2() override {}
    void PluginHook3() override {}
    void PluginHook4() override {}
    void PluginHook5() override {}
    void PluginHook6() override {}
    void PluginHook7() override {}

private:
    Orvane::Panels::CPanelExecutor m_executor;
};

} // namespace

extern "C" {

__attribute__((visibility("default"))) IPluginInfo* ORVPluginInfoProvider() {
    static PanelsPlugin plugin;
    return &plugin;
}

__attribute__((visibility("default"))) void ORVPluginInfoRelease() {}

} // extern "C"
