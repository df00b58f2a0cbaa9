// Application module: loaded last, it starts the workspace and connects the GIS core, the host
// and the workspace from then on.
#include <chrono>

#include <set>
#include <utility>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/CommandRunner.h"
#include "platform/arx/EdCommandStack.h"
#include "platform/arx/EdPrompt.h"
#include "platform/arx/HostReactor.h"
#include "platform/arx/RxArxApp.h"
#include "platform/win/MessageCatalogue.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/notification/Subscriber.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/core/WsOrder.h"

namespace Orvane::Application {

namespace {

using Workspace::CWsManager;

/// Forwards events of the GIS core to the workspace manager.
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

/// Forwards the host's request to close to the workspace manager.
class CloseForwarder final : public AcApHostReactor {
public:
    bool hostToClose() override { return CWsManager::Instance()->Raise_OnBeforeAcadWillClose(); }
};

/// Message ids; the texts are in share/messages.
enum class AppMsg : int {
    NoModule = 910200, // reason why a command cannot run
    NeedsDrawing = 911158,
    NoModuleList = 910201, // file
};

/// Message id of the heading under which HELP lists a command.
int PurposeOf(const Workspace::CWsCommand& command) {
    if (command.GetCmdGroup() == Workspace::CommandGroupRun &&
        !command.GetRepositoryTag().IsEmpty()) {
        return 920015;
    }
    constexpr struct {
        Workspace::enmCommandGroup group;
        int message;
    } kPurposes[] = {
        {Workspace::CommandGroupAdd, 920010},
        {Workspace::CommandGroupEdit, 920011},
        {Workspace::CommandGroupDelete, 920012},
        {Workspace::CommandGroupRun, 920013},
    };
    for (const auto& purpose : kPurposes) {
        if (command.GetCmdGroup() == purpose.group) {
            return purpose.message;
        }
    }
    return 920014;
}

/// Hidden commands are run by trees and dialogs with a node at hand and do not ask first.
bool IsHidden(const Workspace::CWsCommand& command) {
    return command.GetCmdGroup() == Workspace::CommandGroupHidden;
}

/// Makes workspace commands available at the host's command line by their full id, except hidden
/// ones.
class WorkspaceCommands final : public IEdCommandSource {
public:
    CommandOutcome Run(const wchar_t* name) override {
        const CString id = CString(name).MakeUpper();
        const auto& commands =
            *CWsManager::Instance()->CmdMgr()->GetCommandRegistry()->GetWsCommandMapById();
        const auto hit = commands.find(id);
        return hit == commands.end() || IsHidden(*hit->second) ? CommandOutcome::Unknown
                                                               : Workspace::CarryOut({id});
    }
    std::vector<EdSourceCommand> List() const override {
        const bool hasDrawing = acDocManagerPtr()->curDocument() != nullptr;
        const CModuleConfiguration& messages = *CModuleConfiguration::Instance();
        std::vector<EdSourceCommand> list;
        for (const auto& command :
             *CWsManager::Instance()->CmdMgr()->GetCommandRegistry()->GetWsCommandVector()) {
            if (IsHidden(*command)) {
                continue;
            }
            const CString whyNot = !command->GetCmdExecutor() ? MessageText(AppMsg::NoModule)
                                   : hasDrawing               ? CString()
                                                              : MessageText(AppMsg::NeedsDrawing);
            list.push_back({command->GetId(), messages.GetMsg(PurposeOf(*command)),
                            command->GetName(), command->GetDescription(), whyNot});
        }
        return list;
    }
};

/// Prints problems in the user's files: at the start, and whenever new ones are found, for
/// instance after a setting selected another folder.
class ProblemPrinter final : public Notification::CSubscriber {
public:
    void Begin() {
        Publisher().RegisterSubscriber(this);
        // The line of the last module loaded is not terminated yet.
        PrintNew(L"\n");
    }
    void End() { Publisher().UnregisterSubscriber(this); }
    void Update(Notification::CPublisher*, void*, void*) override { PrintNew(L""); }

private:
    static Notification::CPublisher& Publisher() {
        return *Notification::CNotificationFramework::Instance()->GetPublisher(L"PROBLEMS_CHANGED");
    }
    void PrintNew(const wchar_t* before) {
        std::set<CString, CStringLess> now;
        for (const CString& problem : CModuleConfiguration::Instance()->GetProblems()) {
            // All families report the same problem if a folder is missing.
            if (now.insert(problem).second && !m_printed.contains(problem)) {
                acutPrintf(L"%s%s\n", std::exchange(before, L""), problem);
            }
        }
        m_printed = std::move(now);
    }
    std::set<CString, CStringLess> m_printed; ///< printed and not yet solved
};

/// What others have changed in shared folders is known before a command works with it.
class FolderWatch final : public ICommandWatcher {
public:
    void CommandBegins(const CommandOrder&) override {
        if (Clock::now() - m_last >= kPause) {
            CRepositoryManager::Instance()->LookForChanges();
            m_last = Clock::now();
        }
    }

private:
    using Clock = std::chrono::steady_clock;
    /// Scripts may run thousands of commands in a second.
    static constexpr std::chrono::milliseconds kPause{100};
    Clock::time_point m_last;
};

ProblemPrinter s_problems;
FolderWatch s_folders;
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
        // The manager's first call loads the modules, and with them what they keep.
        const auto& plugins = *CWsManager::Instance()->PluginMgr();
        s_problems.Begin();
        acedRunner().AddWatcher(&s_folders);
        const CString& damage = plugins.GetModuleRegistry()->GetProblem();
        if (!damage.IsEmpty()) {
            acutPrintf(L"%s\n", damage);
        } else if (!plugins.IsRegistryLoaded()) {
            acutPrintf(L"%s\n", MessageText(AppMsg::NoModuleList,
                                            CModuleConfiguration::Instance()->GetPath(L"support") +
                                                L"ModuleRegistry.xml"));
        }
        return result;
    }
    AcRx::AppRetCode On_kUnloadAppMsg(void* pPacket) override {
        acedRunner().RemoveWatcher(&s_folders);
        s_problems.End();
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
