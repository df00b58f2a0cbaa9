// Commands from lines of an input: those of a script, or those that a user types in a console.
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

    /// Obeys a file of commands up to its end or its first failure.
    /// \return an exit status of the program
    int RunScript(const wchar_t* path);
    /// Obeys the user until they leave or the input ends.
    void RunPrompt(IInputLines& input);

private:
    /// What a failing command does to the lines behind it.
    enum class Mode { StopAtFailure, GoOn };
    /// Where a command stands that failed.
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
    std::vector<int> m_lines;       ///< on which the running commands stand, the inner ones last
    std::optional<Place> m_failure; ///< of the innermost command
};

} // namespace Tessaly
