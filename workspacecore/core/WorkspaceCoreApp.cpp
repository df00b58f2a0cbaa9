// Entry points that the host calls on loading the module.
#include "platform/arx/RxArxApp.h"
#include "workspacecore/Api.h"
#include "workspacecore/core/EditorReactor.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Workspace {

namespace {

void StartConsole() {
    CWsManager::Instance()->StartHalvaneConsole();
}

constexpr AcRxCommandEntry kCommands[] = {
    {L"ORVZWorkspaceCore", L"test", L"test", ACRX_CMD_TRANSPARENT, StartConsole},
};

constexpr AcRxClassEntry kClasses[] = {
    {ORVZWorkspaceCore_EditorReactor::rxInit, ORVZWorkspaceCore_EditorReactor::desc},
};

/// Loading the module only registers its command and its class; the workspace starts with the
/// first call of CWsManager::Instance.
class CWorkspaceCoreApp final : public AcRxArxApp {
protected:
    std::span<const AcRxCommandEntry> CommandTable() const override { return kCommands; }
    std::span<const AcRxClassEntry> ClassTable() const override { return kClasses; }
};

CWorkspaceCoreApp theApp;

/// The workspace is never torn down; dialog states are saved when the module is unloaded at
/// process exit.
__attribute__((destructor)) void SaveAtUnload() {
    if (CWsManager::IsWSInitialized()) {
        CWsManager::m_pInstance->DlgMgr()->ReleaseDialogs();
        CWsManager::m_pInstance->DlgMgr()->SaveDialogStates();
    }
}

} // namespace

} // namespace Orvane::Workspace

extern "C" {

WORKSPACE_API int acrxEntryPoint(int message, void* packet) {
    return Orvane::Workspace::theApp.Dispatch(message, packet);
}

WORKSPACE_API int acrxGetApiVersion() {
    return kRxApiVersion;
}

} // extern "C"
