#include "host/HostCommands.h"

#include <algorithm>
#include <iterator>

#include "host/DrawingCommands.h"
#include "host/Prompts.h"
#include "host/ViewCommands.h"
#include "platform/arx/HostReactor.h"
#include "platform/arx/RxDynamicLinker.h"
#include "platform/win/ErrorText.h"

namespace Tessaly {

namespace {

constexpr const wchar_t* kGroup = L"TESSALY";

bool Quit() {
    if (!AskAboutUnsavedDrawings()) {
        return Refuse(Msg::ProgramStaysOpen);
    }
    if (!acedAskToClose()) {
        return Refuse(Msg::ModuleRefusedToEnd);
    }
    acedRunner().Stop();
    return true;
}

bool LoadApplication() {
    const std::optional<CString> file = AskText(Msg::ModuleFile);
    if (!file) {
        return Refuse(Msg::NothingLoaded);
    }
    if (!acrxDynamicLinker()->loadModule(*file)) {
        PrintText(Msg::NotLoaded, LastErrorText());
        return false;
    }
    PrintText(Msg::Loaded, *file);
    return true;
}

bool Help();

constexpr HostCommand kProgramCommands[] = {
    {L"HELP", RunHostCommand<Help>, Msg::HelpDoes, ACRX_CMD_TAKES_TEXT, Msg::OfProgram},
    {L"APPLOAD", RunHostCommand<LoadApplication>, Msg::ApploadDoes, 0, Msg::OfProgram},
    {L"QUIT", RunHostCommand<Quit>, Msg::QuitDoes, ACRX_CMD_NO_UNDO_GROUP, Msg::OfProgram},
};

/// Visits all host commands in listing order.
template <class Use>
void ForEachHostCommand(Use use) {
    std::for_each(std::begin(kProgramCommands), std::end(kProgramCommands), use);
    for (const std::span<const HostCommand> commands : {DrawingCommands(), ViewCommands()}) {
        std::for_each(commands.begin(), commands.end(), use);
    }
}

/// A command of the command stack; module commands get their group's name as description.
ListedCommand Listed(const AcEdCommand& command, bool hasDrawing) {
    ListedCommand listed{command.globalName(), command.group(), CString(), Text(Msg::OfModules)};
    ForEachHostCommand([&](const HostCommand& own) {
        if (command.globalName() == own.name) {
            listed.description = Text(own.description);
            listed.purpose = Text(own.purpose);
        }
    });
    if (!hasDrawing && (command.commandFlags() & ACRX_CMD_NEEDS_DRAWING)) {
        listed.whyNot = Text(Msg::NeedsDrawing);
    }
    return listed;
}

/// Includes the title, because users search for it, too.
CString WithTitle(const EdSourceCommand& command) {
    const bool hasBoth = !command.title.IsEmpty() && !command.description.IsEmpty();
    return command.title + (hasBoth ? L": " : L"") + command.description;
}

bool Explain(const CString& name) {
    for (const ListedCommand& command : ListCommands()) {
        if (command.name.CompareNoCase(name) == 0) {
            acutPrintf(L"%s (%s)\n  %s\n", command.name, command.purpose, command.description);
            if (!command.whyNot.IsEmpty()) {
                acutPrintf(L"  %s\n", Text(Msg::CannotRunNow, command.whyNot));
            }
            return true;
        }
    }
    PrintText(Msg::NoSuchCommand, name);
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
