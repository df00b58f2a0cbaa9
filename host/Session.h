// One run of the host: its modules, its drawing, and its command line.
#pragma once

#include "host/Options.h"
#include "host/console/ConsolePort.h"

namespace Tessaly {

/// Exit statuses of the program.
inline constexpr int kExitDone = 0;
inline constexpr int kExitCommandFailed = 1;
inline constexpr int kExitBadUsage = 2;

class Session {
public:
    explicit Session(ConsolePort& port) : m_port(port) {}

    /// Registers the host's commands, opens a new drawing and loads the modules of the
    /// family. A module that cannot be loaded is reported, and the host goes on.
    void Start();

    /// Obeys a file of commands up to its end or its first failure.
    int RunScript(const wchar_t* path);
    /// Obeys the user until they leave or the input ends.
    int RunPrompt(IInputLines& input);
    /// Tells the modules that the host ends, unless the user's QUIT has done so. There is no
    /// input left to ask for, so nobody can veto any more.
    void End();

private:
    /// What a failing command does to the lines behind it.
    enum class Mode { StopAtFailure, GoOn };

    int RunLines(IInputLines& input, Mode mode);
    bool RunCommand(const CString& name);

    ConsolePort& m_port;
};

} // namespace Tessaly
