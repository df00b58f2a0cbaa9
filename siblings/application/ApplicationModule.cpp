// The module that brings the workspace to life: loaded last, it makes the first call of
// the manager, and from then on stands between the GIS core, the host and the workspace.
#include "platform/arx/ApDocManager.h"
#include "platform/arx/EdCommandStack.h"
#include "platform/arx/EdPrompt.h"
#include "platform/arx/HostReactor.h"
#include "platform/arx/RxArxApp.h"
#include "siblings/giscore/GisEvents.h"
#include "siblings/giscore/ModuleConfiguration.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Application {

namespace {

using Workspace::CWsManager;

/// Events of the GIS core become events of the workspace.
class EventForwarder final : public System::ISystemEvents {
public:
    void OnSystemChanged(System::CGisSystem* p) override {
        CWsManager::Instance()->Raise_OnSystemChanged(p);
    }
    void OnSystemBecomeActive(System::CGisSystem* p) override {
        CWsManager::Instance()->Raise_OnSystemBecomeActive(p);
    }
    void OnSystemBecomeInactive(System::CGisSystem* p) override {
        CWsManager::Instance()->Raise_OnSystemBecomeInactive(p);
    }
    void OnSystemBecomeHidden(System::CGisSystem* p) override {
        CWsManager::Instance()->Raise_OnSystemBecomeHidden(p);
    }
    void OnSystemBecomeShown(System::CGisSystem* p) override {
        CWsManager::Instance()->Raise_OnSystemBecomeShown(p);
    }
    void OnBeforeSystemDelete(System::CGisSystem* p) override {
        CWsManager::Instance()->Raise_OnBeforeSystemDelete(p);
    }
    void OnAfterSystemDelete() override { CWsManager::Instance()->Raise_OnAfterSystemDelete(); }
    void OnNewSystemCreated(System::CGisSystem* p) override {
        CWsManager::Instance()->Raise_OnNewSystemCreated(p);
    }
    void OnNewConfigDefinitionAdded(System::CGisSystem* p, const wchar_t* tag,
                                    const wchar_t* guid) override {
        CWsManager::Instance()->Raise_OnNewConfigDefinitionAdded(p, tag, guid);
    }
    void OnTemporaryDataRefreshed() override {
        CWsManager::Instance()->Raise_OnTemporaryDataRefreshed();
    }
    void OnBeforeConfigDefinitionDeleted(System::CGisSystem* p, const wchar_t* tag,
                                         const wchar_t* guid) override {
        CWsManager::Instance()->Raise_OnBeforeConfigDefinitionDeleted(p, tag, guid);
    }
    void OnConfigDefinitionChanged(System::CGisSystem* p, const wchar_t* tag,
                                   const wchar_t* guid) override {
        CWsManager::Instance()->Raise_OnConfigDefinitionChanged(p, tag, guid);
    }
    void OnConfigBecomeDefault(System::CGisSystem* p, const wchar_t* tag,
                               const wchar_t* guid) override {
        CWsManager::Instance()->Raise_OnConfigBecomeDefault(p, tag, guid);
    }
    void OnAfterGeneralSettingsChanged() override {
        CWsManager::Instance()->Raise_OnAfterGeneralSettingsChanged();
    }
};

/// The host's wish to end is the workspace's event.
class CloseForwarder final : public AcApHostReactor {
public:
    bool hostToClose() override { return CWsManager::Instance()->Raise_OnBeforeAcadWillClose(); }
};

/// Workspace commands can be typed at the host's command line, by their whole id.
class WorkspaceCommands final : public IEdCommandSource {
public:
    CommandOutcome Run(const wchar_t* name) override {
        const CString id = CString(name).MakeUpper();
        Workspace::CWsCommandManager& commands = *CWsManager::Instance()->CmdMgr();
        if (!commands.GetCommandRegistry()->GetWsCommandMapById()->contains(id)) {
            return CommandOutcome::Unknown;
        }
        const auto result = commands.Execute(id, nullptr, nullptr);
        return result && result->m_nStatus ? CommandOutcome::Done : CommandOutcome::Failed;
    }
    std::vector<EdSourceCommand> List() const override {
        const bool hasDrawing = acDocManagerPtr()->curDocument() != nullptr;
        std::vector<EdSourceCommand> list;
        for (const auto& command :
             *CWsManager::Instance()->CmdMgr()->GetCommandRegistry()->GetWsCommandVector()) {
            const wchar_t* const whyNot = !command->GetCmdExecutor() ? L"No module carries it out"
                                          : hasDrawing               ? L""
                                                                     : L"No drawing is open";
            list.push_back(
                {command->GetId(), command->GetName(), command->GetDescription(), whyNot});
        }
        return list;
    }
};

EventForwarder s_events;
CloseForwarder s_close;
WorkspaceCommands s_commands;

class CApplicationApp final : public AcRxArxApp {
public:
    AcRx::AppRetCode On_kInitAppMsg(void* pPacket) override {
        const AcRx::AppRetCode result = AcRxArxApp::On_kInitAppMsg(pPacket);
        System::CGisEvents::Instance()->Register(&s_events);
        acedAddHostReactor(&s_close);
        acedRegCmds()->addSource(&s_commands);
        for (const CString& problem : CModuleConfiguration::Instance()->GetProblems()) {
            acutPrintf(L"%s\n", problem);
        }
        const auto& plugins = *CWsManager::Instance()->PluginMgr();
        const CString& damage = plugins.GetModuleRegistry()->GetProblem();
        if (!damage.IsEmpty()) {
            acutPrintf(L"%s\n", damage);
        }
        if (!plugins.IsRegistryLoaded() && damage.IsEmpty()) {
            acutPrintf(L"%sModuleRegistry.xml: no list of modules; there are no plug-ins.\n",
                       CModuleConfiguration::Instance()->GetPath(L"support"));
        }
        return result;
    }
    AcRx::AppRetCode On_kUnloadAppMsg(void* pPacket) override {
        acedRegCmds()->removeSource(&s_commands);
        acedRemoveHostReactor(&s_close);
        System::CGisEvents::Instance()->Unregister(&s_events);
        return AcRxArxApp::On_kUnloadAppMsg(pPacket);
    }
};

CApplicationApp theApp;

} // namespace

} // namespace Orvane::Application

extern "C" {

__attribute__((visibility("default"))) int acrxEntryPoint(int message, void* packet) {
    return Orvane::Application::theApp.Dispatch(message, packet);
}

__attribute__((visibility("default"))) int acrxGetApiVersion() {
    return kRxApiVersion;
}

} // extern "C"
