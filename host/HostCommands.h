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
    Msg purpose; ///< heading in lists of commands
};

/// Adapts a function that returns success to the signature the command stack expects.
template <bool (*Command)()>
void RunHostCommand() {
    if (!Command()) {
        acedSetCommandFailed();
    }
}

/// Adds the host's commands to the command stack.
void RegisterHostCommands();

/// A command that can be typed, from the host, a module or the workspace.
struct ListedCommand {
    CString name;
    CString description;
    CString whyNot;       ///< why it cannot run now; empty if it can run
    CString purpose = {}; ///< heading in lists of commands
};
std::vector<ListedCommand> ListCommands();
/// The output of HELP: commands grouped by purpose, in order of first appearance.
CString CommandsByPurpose(const std::vector<ListedCommand>& commands);

/// Whether the user has asked to quit and no module vetoed.
bool HasQuit();

} // namespace Tessaly
