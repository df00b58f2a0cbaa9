// A host port that obeys lines of input, such as those of a script.
#pragma once

#include <optional>
#include <stdexcept>

#include "host/Texts.h"
#include "host/console/InputLines.h"
#include "platform/arx/HostPort.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

/// Prompts take their answers from the same lines as the command line its commands.
class ILinePort : public IHostPort {
public:
    /// Input may change while the program runs: from a script to the user, say. Not owned.
    virtual void SetInput(IInputLines* pInput) = 0;
    /// One line for the command prompt; nothing at the end of the input.
    virtual std::optional<CString> NextLine(std::wstring_view prompt) = 0;
};

/// Thrown when a command goes on prompting although the input has long ended.
struct InputEnded final : std::runtime_error {
    InputEnded() : std::runtime_error(WideToUtf8(Text(Msg::KeepsPrompting).View())) {}
};

/// What prompts get when nobody is left to answer them. A command that asks once hears that it
/// was cancelled. One that asks on and on, as a text console does on Escape, is told to quit;
/// one that does not listen to that either must not keep the program from ending, and gets
/// InputEnded thrown.
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
