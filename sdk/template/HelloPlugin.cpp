// A whole plug-in: one command that greets the active system.
#include "platform/arx/EdPrompt.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "workspacecore/core/WsManager.h"

using namespace Orvane;
using namespace Orvane::Workspace;

namespace {

/// Listeners, the panel among them, learn that a command runs, and that it has ended, however
/// it does.
class CommandEvents {
public:
    explicit CommandEvents(const wchar_t* id) : m_id(id) {
        CWsManager::Instance()->Raise_OnBeforeCommandActivated(m_id);
    }
    ~CommandEvents() { CWsManager::Instance()->Raise_OnAfterCommandCompleted(m_id); }
    CommandEvents(const CommandEvents&) = delete;
    CommandEvents& operator=(const CommandEvents&) = delete;

private:
    CString m_id;
};

/// Runs the commands. It is registered by pointer, so it has to live to the end.
class HelloExecutor final : public IWsCommandExecutor {
public:
    boost::shared_ptr<CExecutorReturnValue>
    Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition*, CWsTreeItemData*) override {
        const CommandEvents events(lpszCommandId);
        const System::CGisSystem* const pSystem =
            System::CSystemManager::Instance()->GetActiveSystem();
        acutPrintf(L"Hello, %s!\n", pSystem ? pSystem->GetSystemName() : CString(L"empty drawing"));
        auto result = NeutralReturnValue();
        result->m_nStatus = 1; // carried out
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
