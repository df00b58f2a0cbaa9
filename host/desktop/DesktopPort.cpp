#include "host/desktop/DesktopPort.h"

#include <QApplication>

#include "host/Texts.h"
#include "host/desktop/CommandPane.h"
#include "host/desktop/PromptWindow.h"
#include "host/desktop/QtTexts.h"
#include "platform/arx/CommandRunner.h"
#include "platform/arx/EdPrompt.h"
#include "platform/mfc/MessageBox.h"
#include "platform/mfc/Messages.h"
#include "platform/mfc/WinApp.h"
#include "platform/win/CodePage.h"
#include "platform/xtp/XTPDockingPaneManager.h"

namespace Tessaly {

namespace {

constexpr const wchar_t* kEscape = L"\x1B";
constexpr const wchar_t* kTitle = L"Tessaly";
constexpr std::wstring_view kBlanks = L" \t";
/// With more choices, the prompt is shown on the command line.
constexpr std::size_t kMostButtons = 5;

/// The parent of a message box: null if a window is active, which is used then, else the frame.
CWnd* Over() {
    return QApplication::activeWindow() ? nullptr : acedGetAcadFrame();
}

} // namespace

DesktopPort::DesktopPort(IPromptWindow& window, const CommandPane& pane) : m_window(window) {
    connect(&pane, &CommandPane::entered, this, &DesktopPort::OnEntered);
    connect(&pane, &CommandPane::escaped, this, &DesktopPort::Cancel);
}

DesktopPort::~DesktopPort() = default;

void DesktopPort::Print(std::wstring_view text) {
    if (!text.empty()) {
        m_bAtLineStart = text.back() == L'\n';
        m_window.ShowText(ToQt(text));
        if (m_transcript) {
            const std::string utf8 = WideToUtf8(text);
            std::fwrite(utf8.data(), 1, utf8.size(), m_transcript.get());
            std::fflush(m_transcript.get());
        }
    }
}

void DesktopPort::PrintLine(std::wstring_view text) {
    EndLine();
    Print(text);
    Print(L"\n");
}

void DesktopPort::EndLine() {
    if (!m_bAtLineStart) {
        Print(L"\n");
    }
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
        PrintLine((CString(prompt) + *line).View());
    }
    return line;
}

PromptEnd DesktopPort::GetChoice(const ChoicePrompt& prompt, CString& answer) {
    const bool fitsBox = !prompt.takesOther && prompt.choices.size() <= kMostButtons;
    const std::optional<CString> line = TakeLine();
    if (line) {
        m_answers.push_front(*line);
    }
    if (line || !fitsBox || !IsAttended()) {
        return GetString(true, PromptText(prompt).View(), answer);
    }
    const std::optional<std::size_t> choice = ShowChoiceBox(Over(), prompt, kTitle);
    answer = choice ? KeywordAnswer(prompt.choices[*choice]) : CString();
    return choice ? PromptEnd::Answered : PromptEnd::Cancelled;
}

PromptEnd DesktopPort::GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) {
    answer.Empty();
    std::optional<CString> line = TakeLine();
    if (!line && !IsAttended()) {
        return m_behindEnd.Answer(answer);
    }
    if (!line) {
        Question question;
        Wait(question, ToQt(prompt));
        line = question.answer;
    }
    PrintLine((CString(prompt) + (line ? *line : Text(Msg::CancelledAnswer))).View());
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

bool DesktopPort::IsAttended() const {
    return AfxIsDesktopMode() && !m_bEnding;
}

void DesktopPort::Wait(Question& question, const QString& prompt) {
    m_questions.push_back(&question);
    m_window.BeginPrompt(prompt, question.takesText);
    question.loop.exec();
    std::erase(m_questions, &question);
    m_window.EndPrompt();
    acedRunner().WakeSoon(); // resumes orders that waited for this prompt
}

void DesktopPort::OnEntered(const QString& line) {
    if (IsPrompting()) {
        Answer(FromQt(line));
        return;
    }
    CommandRunner& runner = acedRunner();
    CString name = FromQt(line).Trim();
    if (name.IsEmpty() && !runner.Recent().empty()) {
        name = runner.Recent().front();
    }
    if (!name.IsEmpty() && !runner.IsBusy()) {
        runner.Give({name, OrderOrigin::Typed});
    }
}

void DesktopPort::Answer(const CString& text) {
    if (!m_questions.empty() && m_questions.back()->takesText) {
        m_questions.back()->answer = text;
        m_questions.back()->loop.quit();
    }
}

void DesktopPort::Cancel() {
    if (!m_questions.empty()) {
        m_questions.back()->loop.quit();
    }
}

void DesktopPort::CancelPrompts() {
    for (Question* const pQuestion : m_questions) {
        pQuestion->loop.quit();
    }
}

void DesktopPort::CancelAll() {
    m_bEnding = true;
    CancelPrompts();
}

void DesktopPort::Alert(std::wstring_view text, std::wstring_view title) {
    // A script must not wait for someone to close a box.
    if (!IsAttended() || m_pInput) {
        Print(FormatText(L"%s: %s\n", CString(title), CString(text)));
        return;
    }
    ShowMessageBox(Over(), CString(text), CString(title), MB_OK | MB_ICONINFORMATION);
}

void DesktopPort::ShowColors(const AcColorSettings& colors) {
    const auto shown = [&](std::size_t place) {
        const std::uint32_t color = colors.m_colors[place];
        return color == AcColorSettings::kHostColor ? QColor() : QColor(QRgb(color));
    };
    m_window.SetColors(
        {shown(AcColorSettings::kCommandLineBackground), shown(AcColorSettings::kCommandLineText)},
        {shown(AcColorSettings::kPromptBackground), shown(AcColorSettings::kPromptText)});
}

bool DesktopPort::ShowProgress(std::wstring_view what, int percent) {
    return m_window.ShowProgress(ToQt(what), percent);
}

void DesktopPort::EndProgress() {
    m_window.EndProgress();
}

} // namespace Tessaly
