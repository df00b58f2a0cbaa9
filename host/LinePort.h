// A host port that reads lines of input, such as a script.
#pragma once

#include <optional>
#include <stdexcept>

#include "host/Texts.h"
#include "host/console/InputLines.h"
#include "platform/arx/HostPort.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

/// Commands and answers to prompts are read from the same lines.
class ILinePort : public IHostPort {
public:
    /// Input may be replaced at run time, for example after a script. Not owned.
    virtual void SetInput(IInputLines* pInput) = 0;
    /// The next command line; nothing at the end of the input.
    virtual std::optional<CString> NextLine(std::wstring_view prompt) = 0;
};

/// Thrown when a command keeps prompting after the end of the input.
struct InputEnded final : std::runtime_error {
    InputEnded() : std::runtime_error(WideToUtf8(Text(Msg::KeepsPrompting).View())) {}
};

/// Answers prompts after the end of the input. The first prompt is cancelled. Later ones are
/// answered with "_quit", for commands such as the text console that keep prompting when cancelled;
/// a command that ignores even that must not keep the program from exiting, so InputEnded is
/// thrown.
class PromptsBehindEnd {
public:
    void Reset() { m_nPrompts = 0; }
    PromptEnd Answer(CString& answer) {
        constexpr int kMost = 1000;
        if (m_nPrompts++ == 0) {
            return PromptEnd::Cancelled;
        }
        if (m_nPrompts > kMost) {
            throw InputEnded();
        }
        answer = L"_quit";
        return PromptEnd::Answered;
    }

private:
    int m_nPrompts = 0;
};

} // namespace Tessaly
