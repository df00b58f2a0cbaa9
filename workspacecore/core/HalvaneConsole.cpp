// The text console on the host's command line.
#include <array>

#include "platform/arx/EdPrompt.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/core/WsOrder.h"

namespace Orvane::Workspace {

namespace {

constexpr const wchar_t* kStars = L"*****************************************************\n";
constexpr const wchar_t* kWelcome = L"Halvane Command processor.\n"
                                    L"type 'exit' to quit\n"
                                    L"type 'list' to show available commands\n"
                                    L"type 'config' to show plugin dialog\n";
constexpr const wchar_t* kEscape = L"\x1B";
constexpr std::size_t kAnswerSize = 133;

/// Command line colours while the console is active.
AcColorSettings ConsoleColors(AcColorSettings colors) {
    constexpr std::uint32_t kGround = 250;
    constexpr std::uint32_t kText = 0x19AFE1;
    colors.m_colors[AcColorSettings::kCommandLineBackground] = kGround;
    colors.m_colors[AcColorSettings::kPromptBackground] = kGround;
    colors.m_colors[AcColorSettings::kCommandLineText] = kText;
    colors.m_colors[AcColorSettings::kPromptText] = kText;
    return colors;
}

void PrintCommands(const CWsCommandRegistry& registry) {
    acutPrintf(L"cmdId (description)\n");
    acutPrintf(L"-------------------\n");
    for (const auto& command : *registry.GetWsCommandVector()) {
        acutPrintf(L"%s (%s)\n", command->GetId(), command->GetDescription());
    }
}

/// Lists the modules in text form.
void PrintModules(const CWsModuleRegistry& registry) {
    for (const auto& module : *registry.GetWsModuleVector()) {
        acutPrintf(L"%s (%s): %s, %s\n", module->GetFileName(), module->GetName(),
                   module->GetOn() ? L"on" : L"off",
                   module->GetLoaded() ? L"loaded" : L"not loaded");
    }
}

/// Exceptions of the command propagate and end the console.
void RunCommand(const CWsCommandManager& commands, CString id) {
    id.MakeUpper();
    if (commands.GetCommandRegistry()->GetWsCommandById(id)) {
        acedRunner().RunInside(MakeCommandOrder({id, OrderOrigin::Console}));
    } else {
        acutPrintf(L"Unknown command!\n");
    }
}

/// Returns false if the user wants to leave.
bool Obey(CWsManager& manager, const CString& answer) {
    if (answer.CompareNoCase(L"exit") == 0 || answer.CompareNoCase(L"_quit") == 0) {
        return false;
    }
    if (answer.CompareNoCase(L"list") == 0) {
        PrintCommands(*manager.CmdMgr()->GetCommandRegistry());
    } else if (answer.CompareNoCase(L"config") == 0) {
        PrintModules(*manager.PluginMgr()->GetModuleRegistry());
    } else {
        RunCommand(*manager.CmdMgr(), answer);
    }
    return true;
}

} // namespace

void CWsManager::StartHalvaneConsole() {
    acutPrintf(L"%s", kStars);
    acutPrintf(L"%s", kWelcome);
    acutPrintf(L"%s", kStars);

    AcColorSettings saved;
    AcColorSettings working;
    acedGetCurrentColors(&saved);
    acedGetCurrentColors(&working);
    working = ConsoleColors(working);
    acedSetCurrentColors(&working);

    // Escape does not leave the console but shows the prompt again.
    std::array<wchar_t, kAnswerSize> buffer{};
    bool stay = true;
    while (stay) {
        if (acedGetString(kGetStringAllowBlanks, L"Command: ", buffer.data(), buffer.size()) ==
            RTNORM) {
            stay = Obey(*this, buffer.data());
        }
    }

    acedSetCurrentColors(&saved);
    acedPostCommand(kEscape);
}

} // namespace Orvane::Workspace
