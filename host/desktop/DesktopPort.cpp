#include "host/desktop/DesktopPort.h"

#include <QApplication>
#include <QEventLoop>
#include <QMessageBox>
#include <QPushButton>

#include "host/desktop/Frame.h"
#include "host/desktop/QtTexts.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

constexpr const wchar_t* kEscape = L"\x1B";
constexpr std::wstring_view kBlanks = L" \t";
constexpr const wchar_t* kQuestion = L"[Yes/No";

/// The choice in angle brackets, which stands where nothing else was said.
QMessageBox::StandardButton DefaultOf(const CString& prompt) {
    return prompt.Find(L"<No>") >= 0    ? QMessageBox::No
           : prompt.Find(L"<Yes>") >= 0 ? QMessageBox::Yes
                                        : QMessageBox::Cancel;
}

} // namespace

struct DesktopPort::Prompt {
    QEventLoop loop;
    std::optional<CString> answer;
};

DesktopPort::DesktopPort(Frame& frame) : m_frame(frame) {}

DesktopPort::~DesktopPort() = default;

void DesktopPort::Print(std::wstring_view text) {
    if (!text.empty()) {
        m_bAtLineStart = text.back() == L'\n';
        m_frame.ShowText(ToQt(text));
        if (m_transcript) {
            const std::string utf8 = WideToUtf8(text);
            std::fwrite(utf8.data(), 1, utf8.size(), m_transcript.get());
            std::fflush(m_transcript.get());
        }
    }
}

void DesktopPort::PrintLine(const CString& text) {
    Print(FormatText(L"%s%s\n", CString(m_bAtLineStart ? L"" : L"\n"), text));
}

std::optional<CString> DesktopPort::TakeLine() {
    if (!m_answers.empty()) {
        CString answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }
    return m_pInput ? m_pInput->Next() : std::nullopt;
}

std::optional<CString> DesktopPort::NextLine(std::wstring_view prompt) {
    std::optional<CString> line = TakeLine();
    if (line) {
        PrintLine(CString(prompt) + *line);
    }
    return line;
}

void DesktopPort::DropEscapes() {
    std::erase(m_posted, CString(kEscape));
}

std::optional<CString> DesktopPort::TakePosted() {
    DropEscapes();
    if (m_posted.empty()) {
        return std::nullopt;
    }
    CString text = m_posted.front();
    m_posted.pop_front();
    return text;
}

PromptEnd DesktopPort::AskInBox(const CString& prompt, CString& answer) {
    QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No;
    if (prompt.Find(L"/Cancel") >= 0) {
        buttons |= QMessageBox::Cancel;
    }
    const CString question = prompt.Left(prompt.Find(L'[')).Trim();
    const auto pressed = QMessageBox::question(&m_frame, QStringLiteral("Tessaly"),
                                               ToQt(question.View()), buttons, DefaultOf(prompt));
    answer = pressed == QMessageBox::Yes ? L"Yes" : pressed == QMessageBox::No ? L"No" : L"";
    return answer.IsEmpty() ? PromptEnd::Cancelled : PromptEnd::Answered;
}

PromptEnd DesktopPort::GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) {
    answer.Empty();
    if (m_bEnding) {
        return PromptEnd::Cancelled;
    }
    std::optional<CString> line = TakeLine();
    if (!line && CString(prompt).Find(kQuestion) >= 0) {
        return AskInBox(CString(prompt), answer);
    }
    if (!line) {
        Prompt open;
        m_prompts.push_back(&open);
        m_frame.BeginPrompt(ToQt(prompt));
        open.loop.exec();
        std::erase(m_prompts, &open);
        m_frame.EndPrompt();
        line = open.answer;
    }
    PrintLine(CString(prompt) + (line ? *line : CString(L"*Cancel*")));
    if (!line || *line == kEscape) {
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

void DesktopPort::Answer(const CString& text) {
    if (!m_prompts.empty()) {
        m_prompts.back()->answer = text;
        m_prompts.back()->loop.quit();
    }
}

void DesktopPort::Cancel() {
    if (!m_prompts.empty()) {
        m_prompts.back()->loop.quit();
    }
}

void DesktopPort::CancelAll() {
    m_bEnding = true;
    for (Prompt* const pPrompt : m_prompts) {
        pPrompt->loop.quit();
    }
}

void DesktopPort::Alert(std::wstring_view text, std::wstring_view title) {
    // A script has nobody to take note of it.
    if (m_bEnding || m_pInput) {
        Print(FormatText(L"%s: %s\n", CString(title), CString(text)));
        return;
    }
    QMessageBox::information(&m_frame, ToQt(title), ToQt(text));
}

void DesktopPort::PostCommand(std::wstring_view text) {
    if (text == kEscape && IsPrompting()) {
        Cancel();
        return;
    }
    m_posted.emplace_back(text);
    m_frame.RunPostedSoon();
}

bool DesktopPort::ShowProgress(std::wstring_view what, int percent) {
    return m_frame.ShowProgress(ToQt(what), percent);
}

void DesktopPort::EndProgress() {
    m_frame.EndProgress();
}

} // namespace Tessaly
