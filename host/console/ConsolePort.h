// The host's prompts on standard output, answered from lines of input.
#pragma once

#include <deque>

#include "host/console/InputLines.h"
#include "platform/arx/HostPort.h"

namespace Tessaly {

/// Input may change while the program runs: from a script to the user, say. Texts that
/// were posted come before any other input.
class ConsolePort final : public IHostPort {
public:
    explicit ConsolePort(std::FILE* output) : m_output(output) {}

    void SetInput(IInputLines* pInput) {
        m_pInput = pInput;
        m_nPromptsBehindEnd = 0;
    }
    IInputLines* Input() const { return m_pInput; }

    void Print(std::wstring_view text) override;
    PromptEnd GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) override;
    void Alert(std::wstring_view text, std::wstring_view title) override;
    void PostCommand(std::wstring_view text) override { m_posted.emplace_back(text); }

    /// One line for the command prompt; nothing at the end of the input.
    std::optional<CString> NextLine(std::wstring_view prompt);
    /// Forgets the posted texts that only cancel what is open; at the command prompt
    /// nothing is.
    void DropEscapes();

private:
    std::optional<CString> TakePosted();

    std::FILE* m_output;
    IInputLines* m_pInput = nullptr;
    std::deque<CString> m_posted;
    bool m_atLineStart = true;
    int m_nPromptsBehindEnd = 0;
};

/// Thrown when a command goes on prompting although the input has long ended.
struct InputEnded {};

} // namespace Tessaly
