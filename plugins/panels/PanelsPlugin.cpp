// ORVZPanels.arx: entry points called by the workspace.
#include <boost/make_shared.hpp>

#include "plugins/panels/PanelCommands.h"
#include "plugins/panels/PanelFactory.h"
#include "plugins/panels/PanelPanes.h"
#include "workspacecore/core/WsManager.h"

namespace {

using namespace Orvane::Workspace;

class PanelsPlugin final : public IPluginInfo {
public:
    void PluginHook1() override {
        CWsManager& workspace = *CWsManager::Instance();
        Orvane::Panels::RegisterPanelCommands(m_executor);
        workspace.RegisterWsDialogFactory(boost::make_shared<Orvane::Panels::CPanelFactory>());
        workspace.RegisterWsListener(&m_panes);
    }
    void PluginHook2() override {}
    void PluginHook3() override {}
    void PluginHook4() override {}
    void PluginHook5() override {}
    void PluginHook6() override {}
    void PluginHook7() override {}
    void RegisterWsPanelDialog() override { Orvane::Panels::CPanelPanes::RegisterPanels(); }

private:
    Orvane::Panels::CPanelExecutor m_executor;
    Orvane::Panels::CPanelPanes m_panes;
};

} // namespace

extern "C" {

__attribute__((visibility("default"))) IPluginInfo* ORVPluginInfoProvider() {
    static PanelsPlugin plugin;
    return &plugin;
}

__attribute__((visibility("default"))) void ORVPluginInfoRelease() {}

} // extern "C"
