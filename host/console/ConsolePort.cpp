#include "host/console/ConsolePort.h"

#include <unistd.h>
#include <utility>

#include "platform/mfc/WinApp.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

constexpr std::wstring_view kEscape = L"\x1B";
constexpr std::wstring_view kBlanks = L" \t";
/// Terminal sequences: return to the start of the line, and clear from the cursor to its end.
constexpr const wchar_t* kLineBegin = L"\r";
constexpr const wchar_t* kClearRest = L"\x1B[K";
/// Step between progress lines when the output is not a terminal.
constexpr int kPercentPerLine = 10;

} // namespace

ConsolePort::ConsolePort(std::FILE* output)
    : m_output(output), m_bTerminal(isatty(fileno(output)) != 0) {}

void ConsolePort::Write(std::wstring_view text) {
    const std::string utf8 = WideToUtf8(text);
    std::fwrite(utf8.data(), 1, utf8.size(), m_output);
    std::fflush(m_output);
}

void ConsolePort::Print(std::wstring_view text) {
    if (text.empty()) {
        return;
    }
    ClearProgress();
    Write(text);
    m_atLineStart = text.back() == L'\n';
}

void ConsolePort::PrintLine(std::wstring_view text) {
    if (!m_atLineStart) {
        Print(L"\n");
    }
    Print(text);
    Print(L"\n");
}

void ConsolePort::Alert(std::wstring_view text, std::wstring_view title) {
    PrintLine(FormatText(L"%s: %s", title, text));
}

bool ConsolePort::ShowProgress(std::wstring_view what, int percent) {
    if (!m_work) {
        m_work.emplace(m_bTerminal ? 1 : kPercentPerLine);
    }
    const auto elapsed =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_work->begin);
    if (const std::optional<CString> text = m_work->text.Next(what, percent, elapsed)) {
        if (!m_atLineStart) {
            Print(L"\n");
        }
        if (m_bTerminal) {
            Write((kLineBegin + *text + kClearRest).View());
            m_bProgressShown = true;
        } else {
            Print((*text + L"\n").View());
        }
    }
    return !StopSignal::WasSent();
}

void ConsolePort::EndProgress() {
    ClearProgress();
    m_work.reset();
}

void ConsolePort::ClearProgress() {
    if (m_bProgressShown) {
        m_bProgressShown = false;
        Write((CString(kLineBegin) + kClearRest).View());
    }
}

std::optional<CString> ConsolePort::NextLine(std::wstring_view prompt) {
    m_bEscape = false; // a pending Escape does not apply to the command prompt
    return ReadLine(prompt);
}

std::optional<CString> ConsolePort::ReadLine(std::wstring_view prompt) {
    AfxPumpMessages(); // keeps timers and posted messages running
    std::optional<CString> line;
    // Reads from a script before printing the prompt, to print none after its end.
    const bool isScript = m_pInput && !m_pInput->Name().IsEmpty();
    if (isScript && !(line = m_pInput->Next())) {
        return line;
    }
    if (!m_atLineStart && !prompt.empty() && prompt.front() != L'\n') {
        Print(L"\n");
    }
    Print(prompt);
    if (!line && m_pInput) {
        line = m_pInput->Next();
    }
    if (!line || m_pInput->WantsEcho()) {
        Print(line ? line->View() : std::wstring_view());
        Print(L"\n");
    }
    m_atLineStart = true;
    return line;
}

PromptEnd ConsolePort::GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) {
    answer.Empty();
    if (std::exchange(m_bEscape, false)) {
        return PromptEnd::Cancelled;
    }
    const std::optional<CString> line = ReadLine(prompt);
    if (!line) {
        return m_behindEnd.Answer(answer);
    }
    if (line->View() == kEscape) {
        return PromptEnd::Cancelled;
    }
    answer = *line;
    if (!allowBlanks) {
        const std::size_t from =
            std::min(answer.View().find_first_not_of(kBlanks), answer.View().size());
        const std::size_t to = answer.View().find_first_of(kBlanks, from);
        answer = CString(line->View().substr(from, to - from));
    }
    return PromptEnd::Answered;
}

} // namespace Tessaly
