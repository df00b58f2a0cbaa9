#include "host/HostCommands.h"

#include "platform/arx/EdCommandStack.h"
#include "platform/arx/EdPrompt.h"
#include "platform/arx/HostReactor.h"
#include "platform/arx/RxDynamicLinker.h"
#include "platform/win/ErrorText.h"

namespace Tessaly {

namespace {

constexpr const wchar_t* kGroup = L"TESSALY";
bool s_bQuit = false;

void Quit() {
    if (acedAskToClose()) {
        s_bQuit = true;
    } else {
        acutPrintf(L"The program stays open: a module does not want to end now.\n");
    }
}

void LoadApplication() {
    CString file;
    if (acedGetString(kGetStringAllowBlanks, L"Module file: ", file) != RTNORM) {
        return;
    }
    if (acrxDynamicLinker()->loadModule(file.Trim())) {
        acutPrintf(L"%s loaded.\n", file);
    } else {
        acutPrintf(L"Not loaded: %s\n", LastErrorText());
    }
}

void Help();

struct HostCommand {
    const wchar_t* name;
    AcRxFunctionPtr function;
    const wchar_t* description;
};

constexpr HostCommand kHostCommands[] = {
    {L"HELP", Help, L"lists the commands"},
    {L"APPLOAD", LoadApplication, L"loads a host module"},
    {L"QUIT", Quit, L"leaves the program"},
};

const wchar_t* DescriptionOf(const AcEdCommand& command) {
    for (const HostCommand& own : kHostCommands) {
        if (command.globalName() == own.name) {
            return own.description;
        }
    }
    return command.group();
}

void Help() {
    for (const auto& command : acedRegCmds()->commands()) {
        acutPrintf(L"%-20s %s\n", command->globalName(), DescriptionOf(*command));
    }
    for (const IEdCommandSource* pSource : acedRegCmds()->sources()) {
        for (const auto& [name, description] : pSource->List()) {
            acutPrintf(L"%-20s %s\n", name, description);
        }
    }
}

} // namespace

void RegisterHostCommands() {
    for (const HostCommand& command : kHostCommands) {
        acedRegCmds()->addCommand(kGroup, command.name, command.name, 0, command.function);
    }
}

bool HasQuit() {
    return s_bQuit;
}

} // namespace Tessaly
