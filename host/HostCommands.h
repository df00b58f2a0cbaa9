// The commands of the host itself.
#pragma once

#include <vector>

#include "host/Texts.h"
#include "platform/arx/CommandRunner.h"

namespace Tessaly {

struct HostCommand {
    const wchar_t* name;
    AcRxFunctionPtr function;
    Msg description;
    int flags;
    Msg purpose; ///< heading under which it is listed
};

/// A command that answers whether it was carried out, as the command stack wants one.
template <bool (*Command)()>
void RunHostCommand() {
    if (!Command()) {
        acedSetCommandFailed();
    }
}

/// Adds them to the command stack.
void RegisterHostCommands();

/// A command that can be typed: the host's own, those of modules, and those of the workspace.
struct ListedCommand {
    CString name;
    CString description;
    CString whyNot;       ///< why it cannot run now; empty if it can
    CString purpose = {}; ///< heading under which it is listed
};
std::vector<ListedCommand> ListCommands();
/// What HELP prints of them: by purpose, in the order in which the purposes come first.
CString CommandsByPurpose(const std::vector<ListedCommand>& commands);

/// The user has asked to leave, and nobody vetoed.
bool HasQuit();

} // namespace Tessaly
