// A complete plug-in with a single command, which greets the active system.
#include "platform/arx/EdPrompt.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "workspacecore/commands/CommandScope.h"
#include "workspacecore/core/WsManager.h"

using namespace Orvane;
using namespace Orvane::Workspace;

namespace {

/// Runs the commands. Registered by pointer and not owned, so it must live until the process
/// ends.
class HelloExecutor final : public IWsCommandExecutor {
public:
    boost::shared_ptr<CExecutorReturnValue>
    Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition*, CWsTreeItemData*) override {
        auto result = NeutralReturnValue();
        // Raises the events before and after the command, even if it throws.
        CommandScope::Run(lpszCommandId, [&] {
            const System::CGisSystem* const pSystem =
                System::CSystemManager::Instance()->GetActiveSystem();
            acutPrintf(L"Hello, %s!\n",
                       pSystem ? pSystem->GetSystemName() : CString(L"empty drawing"));
            result->m_nStatus = 1; // command executed
        });
        return result;
    }
};

class HelloPlugin final : public IPluginInfo {
public:
    void PluginHook1() override {
        boost::shared_ptr<CWsCommand> command(new CWsCommand);
        command->SetId(L"HELLO");
        command->SetName(L"Say hello");
        command->SetDescription(L"Greets the active system");
        command->SetCmdExecutor(&m_executor);
        CWsManager::Instance()->RegisterWsCommand(command);
    }
    void PluginHook2() override {}
    void PluginHook3() override {}
    void PluginHook4() override {}
    void PluginHook5() override {}
    void PluginHook6() override {}
    void PluginHook7() override {}

private:
    HelloExecutor m_executor;
};

} // namespace

extern "C" {

__attribute__((visibility("default"))) IPluginInfo* ORVPluginInfoProvider() {
    static HelloPlugin plugin;
    return &plugin;
}

__attribute__((visibility("default"))) void ORVPluginInfoRelease() {}

} // extern "C"
