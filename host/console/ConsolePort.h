// Prompts on standard output, answered from lines of input.
#pragma once

#include <chrono>

#include "host/LinePort.h"
#include "host/console/InputLines.h"
#include "host/console/ProgressText.h"
#include "host/console/StopSignal.h"

namespace Tessaly {

/// Input may be replaced at run time, for example after a script.
class ConsolePort final : public ILinePort {
public:
    explicit ConsolePort(std::FILE* output);

    void SetInput(IInputLines* pInput) override {
        m_pInput = pInput;
        m_behindEnd.Reset();
    }
    IInputLines* Input() const { return m_pInput; }

    void Print(std::wstring_view text) override;
    PromptEnd GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) override;
    void Alert(std::wstring_view text, std::wstring_view title) override;
    void PrintLine(std::wstring_view text) override;
    void Escape() override { m_bEscape = true; }
    /// On a terminal, updates a single line that is cleared at the end; otherwise prints a line
    /// every ten per cent. Ctrl+C requests a stop.
    bool ShowProgress(std::wstring_view what, int percent) override;
    void EndProgress() override;

    std::optional<CString> NextLine(std::wstring_view prompt) override;

private:
    using Clock = std::chrono::steady_clock;
    struct Work {
        explicit Work(int percentStep) : text(percentStep) {}
        StopSignal stop;
        Clock::time_point begin = Clock::now();
        ProgressText text;
    };

    std::optional<CString> ReadLine(std::wstring_view prompt);
    void Write(std::wstring_view text);
    void ClearProgress();

    std::FILE* m_output;
    bool m_bTerminal;
    std::optional<Work> m_work;
    bool m_bProgressShown = false; ///< the progress line is on screen
    IInputLines* m_pInput = nullptr;
    bool m_bEscape = false; ///< cancels the next prompt
    bool m_atLineStart = true;
    PromptsBehindEnd m_behindEnd;
};

} // namespace Tessaly
