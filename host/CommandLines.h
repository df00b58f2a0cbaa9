// Runs commands from lines of input: a script, or a user typing in a console.
#pragma once

#include <optional>

#include "host/LinePort.h"
#include "platform/arx/CommandRunner.h"

namespace Tessaly {

class CommandLines final : private ICommandWatcher {
public:
    explicit CommandLines(ILinePort& port);
    ~CommandLines() override;
    CommandLines(const CommandLines&) = delete;
    CommandLines& operator=(const CommandLines&) = delete;

    /// Runs a script to its end or its first failure.
    /// \return an exit status of the program
    int RunScript(const wchar_t* path);
    /// Runs the user's commands until they quit or the input ends.
    void RunPrompt(IInputLines& input);

private:
    /// Whether lines after a failing command are run.
    enum class Mode { StopAtFailure, GoOn };
    /// The failed command and its line in the script.
    struct Place {
        int line;
        CString command;
    };

    void CommandBegins(const CommandOrder& order) override;
    void CommandEnded(const CommandOrder& order, bool hasThrown) override;
    int RunLines(IInputLines& input, Mode mode);
    bool RunLine(const CString& line);

    ILinePort& m_port;
    IInputLines* m_pInput = nullptr;
    std::vector<int> m_lines;       ///< line of each running command, the innermost last
    std::optional<Place> m_failure; ///< of the innermost command
};

} // namespace Tessaly
