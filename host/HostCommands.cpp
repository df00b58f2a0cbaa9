#include "host/HostCommands.h"

#include <algorithm>
#include <iterator>

#include "host/Dialog.h"
#include "host/DrawingCommands.h"
#include "host/ViewCommands.h"
#include "platform/arx/HostReactor.h"
#include "platform/arx/RxDynamicLinker.h"
#include "platform/win/ErrorText.h"

namespace Tessaly {

namespace {

constexpr const wchar_t* kGroup = L"TESSALY";
constexpr const wchar_t* kProgram = L"Program";
constexpr const wchar_t* kOfModules = L"Support";

bool Quit() {
    if (!AskAboutUnsavedDrawings()) {
        return Refuse(L"", L"The program stays open.");
    }
    if (!acedAskToClose()) {
        return Refuse(L"", L"The program stays open: a module does not want to end now.");
    }
    acedRunner().Stop();
    return true;
}

bool LoadApplication() {
    const std::optional<CString> file = AskText(L"Module file: ");
    if (!file) {
        return Refuse(L"", L"Nothing was loaded.");
    }
    if (!acrxDynamicLinker()->loadModule(*file)) {
        acutPrintf(L"Not loaded: %s\n", LastErrorText());
        return false;
    }
    acutPrintf(L"%s loaded.\n", *file);
    return true;
}

bool Help();

constexpr HostCommand kProgramCommands[] = {
    {L"HELP", RunHostCommand<Help>, L"lists the commands; HELP and a name explains one",
     ACRX_CMD_TAKES_TEXT, kProgram},
    {L"APPLOAD", RunHostCommand<LoadApplication>, L"loads a host module", 0, kProgram},
    {L"QUIT", RunHostCommand<Quit>, L"leaves the program", ACRX_CMD_NO_UNDO_GROUP, kProgram},
};

/// All of the host's own, in the order in which they are listed.
template <class Use>
void ForEachHostCommand(Use use) {
    std::for_each(std::begin(kProgramCommands), std::end(kProgramCommands), use);
    for (const std::span<const HostCommand> commands : {DrawingCommands(), ViewCommands()}) {
        std::for_each(commands.begin(), commands.end(), use);
    }
}

/// A command of the stack; those of modules stand under the name of their group.
ListedCommand Listed(const AcEdCommand& command, bool hasDrawing) {
    ListedCommand listed{command.globalName(), command.group(), CString(), kOfModules};
    ForEachHostCommand([&](const HostCommand& own) {
        if (command.globalName() == own.name) {
            listed.description = own.description;
            listed.purpose = own.purpose;
        }
    });
    if (!hasDrawing && (command.commandFlags() & ACRX_CMD_NEEDS_DRAWING)) {
        listed.whyNot = L"No drawing is open";
    }
    return listed;
}

/// Users look for a command by its title, too.
CString WithTitle(const EdSourceCommand& command) {
    const bool hasBoth = !command.title.IsEmpty() && !command.description.IsEmpty();
    return command.title + (hasBoth ? L": " : L"") + command.description;
}

bool Explain(const CString& name) {
    for (const ListedCommand& command : ListCommands()) {
        if (command.name.CompareNoCase(name) == 0) {
            acutPrintf(L"%s (%s)\n  %s\n", command.name, command.purpose, command.description);
            if (!command.whyNot.IsEmpty()) {
                acutPrintf(L"  It cannot run now: %s.\n", command.whyNot);
            }
            return true;
        }
    }
    acutPrintf(L"There is no command \"%s\". HELP lists the commands.\n", name);
    return false;
}

bool Help() {
    if (!acedCommandText().IsEmpty()) {
        return Explain(acedCommandText());
    }
    acutPrint(CommandsByPurpose(ListCommands()).View());
    return true;
}

} // namespace

void RegisterHostCommands() {
    ForEachHostCommand([](const HostCommand& command) {
        acedRegCmds()->addCommand(kGroup, command.name, command.name, command.flags,
                                  command.function);
    });
}

std::vector<ListedCommand> ListCommands() {
    const bool hasDrawing = acDocManagerPtr()->curDocument() != nullptr;
    std::vector<ListedCommand> list;
    for (const auto& command : acedRegCmds()->commands()) {
        list.push_back(Listed(*command, hasDrawing));
    }
    for (const IEdCommandSource* pSource : acedRegCmds()->sources()) {
        for (const EdSourceCommand& command : pSource->List()) {
            list.push_back({command.name, WithTitle(command), command.whyNot, command.purpose});
        }
    }
    return list;
}

CString CommandsByPurpose(const std::vector<ListedCommand>& commands) {
    std::vector<CString> purposes;
    for (const ListedCommand& command : commands) {
        if (std::find(purposes.begin(), purposes.end(), command.purpose) == purposes.end()) {
            purposes.push_back(command.purpose);
        }
    }
    CString text;
    for (const CString& purpose : purposes) {
        text += (text.IsEmpty() ? L"" : L"\n") + purpose + L"\n";
        for (const ListedCommand& command : commands) {
            if (command.purpose == purpose) {
                text.AppendFormat(L"  %-20s %s\n", command.name, command.description);
            }
        }
    }
    return text;
}

bool HasQuit() {
    return acedRunner().IsStopped();
}

} // namespace Tessaly
