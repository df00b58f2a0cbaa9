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
bool s_bQuit = false;

bool Quit() {
    if (!AskAboutUnsavedDrawings()) {
        return Refuse(L"", L"The program stays open.");
    }
    s_bQuit = acedAskToClose();
    return s_bQuit || Refuse(L"", L"The program stays open: a module does not want to end now.");
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
    {L"HELP", RunHostCommand<Help>, L"lists the commands", 0},
    {L"APPLOAD", RunHostCommand<LoadApplication>, L"loads a host module", 0},
    {L"QUIT", RunHostCommand<Quit>, L"leaves the program", ACRX_CMD_NO_UNDO_GROUP},
};

/// All of the host's own, in the order in which they are listed.
template <class Use>
void ForEachHostCommand(Use use) {
    std::for_each(std::begin(kProgramCommands), std::end(kProgramCommands), use);
    for (const std::span<const HostCommand> commands : {DrawingCommands(), ViewCommands()}) {
        std::for_each(commands.begin(), commands.end(), use);
    }
}

CString DescriptionOf(const AcEdCommand& command) {
    CString description = command.group();
    ForEachHostCommand([&](const HostCommand& own) {
        if (command.globalName() == own.name) {
            description = own.description;
        }
    });
    return description;
}

/// Users look for a command by its title, too.
CString WithTitle(const EdSourceCommand& command) {
    const bool hasBoth = !command.title.IsEmpty() && !command.description.IsEmpty();
    return command.title + (hasBoth ? L": " : L"") + command.description;
}

bool Help() {
    for (const ListedCommand& command : ListCommands()) {
        acutPrintf(L"%-20s %s\n", command.name, command.description);
    }
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
        const bool isAble = hasDrawing || !(command->commandFlags() & ACRX_CMD_NEEDS_DRAWING);
        list.push_back({command->globalName(), DescriptionOf(*command),
                        isAble ? CString() : CString(L"No drawing is open")});
    }
    for (const IEdCommandSource* pSource : acedRegCmds()->sources()) {
        for (const EdSourceCommand& command : pSource->List()) {
            list.push_back({command.name, WithTitle(command), command.whyNot});
        }
    }
    return list;
}

bool HasQuit() {
    return s_bQuit;
}

} // namespace Tessaly
