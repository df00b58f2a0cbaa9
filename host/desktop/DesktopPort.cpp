#include "host/desktop/DesktopPort.h"

#include <QApplication>

#include "host/desktop/CommandPane.h"
#include "host/desktop/Frame.h"
#include "host/desktop/QtTexts.h"
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
constexpr const wchar_t* kQuestion = L"[Yes/No";

/// Which button stands for the choice in angle brackets, where nothing else was said.
UINT DefaultOf(const CString& prompt) {
    return prompt.Find(L"<No>") >= 0    ? MB_DEFBUTTON2
           : prompt.Find(L"<Yes>") >= 0 ? MB_DEFBUTTON1
                                        : MB_DEFBUTTON3;
}

/// What a box stands on: whatever is in front, or else the frame.
CWnd* Over() {
    return QApplication::activeWindow() ? nullptr : acedGetAcadFrame();
}

} // namespace

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
    EndLine();
    Print(text.View());
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
    const bool canCancel = prompt.Find(L"/Cancel") >= 0;
    const CString question = prompt.Left(prompt.Find(L'[')).Trim();
    const int pressed = ShowMessageBox(Over(), question, kTitle,
                                       MB_ICONQUESTION | (canCancel ? MB_YESNOCANCEL : MB_YESNO) |
                                           DefaultOf(prompt));
    answer = pressed == IDYES ? L"Yes" : pressed == IDNO ? L"No" : L"";
    return answer.IsEmpty() ? PromptEnd::Cancelled : PromptEnd::Answered;
}

PromptEnd DesktopPort::GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) {
    answer.Empty();
    std::optional<CString> line = TakeLine();
    if (!line && !IsAttended()) {
        return m_behindEnd.Answer(answer);
    }
    if (!line && CString(prompt).Find(kQuestion) >= 0) {
        return AskInBox(CString(prompt), answer);
    }
    if (!line) {
        Question question;
        Wait(question, ToQt(prompt));
        line = question.answer;
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

bool DesktopPort::IsAttended() const {
    return AfxIsDesktopMode() && !m_bEnding;
}

void DesktopPort::Wait(Question& question, const QString& prompt) {
    m_questions.push_back(&question);
    m_frame.BeginPrompt(prompt);
    if (question.takesText) {
        m_frame.Pane().FocusInput();
    }
    question.loop.exec();
    std::erase(m_questions, &question);
    m_frame.EndPrompt();
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

void DesktopPort::CancelOpen() {
    for (Question* const pQuestion : m_questions) {
        pQuestion->loop.quit();
    }
}

void DesktopPort::CancelAll() {
    m_bEnding = true;
    CancelOpen();
}

void DesktopPort::Alert(std::wstring_view text, std::wstring_view title) {
    // A script has nobody to take note of it.
    if (!IsAttended() || m_pInput) {
        Print(FormatText(L"%s: %s\n", CString(title), CString(text)));
        return;
    }
    ShowMessageBox(Over(), CString(text), CString(title), MB_OK | MB_ICONINFORMATION);
}

void DesktopPort::PostCommand(std::wstring_view text) {
    if (text == kEscape && IsPrompting()) {
        Cancel();
        return;
    }
    m_posted.emplace_back(text);
    m_frame.RunPostedSoon();
}

void DesktopPort::ShowColors(const AcColorSettings& colors) {
    const auto shown = [&](std::size_t place) {
        const std::uint32_t color = colors.m_colors[place];
        return color == AcColorSettings::kHostColor ? QColor() : QColor(QRgb(color));
    };
    m_frame.Pane().SetColors(
        {shown(AcColorSettings::kCommandLineBackground), shown(AcColorSettings::kCommandLineText)},
        {shown(AcColorSettings::kPromptBackground), shown(AcColorSettings::kPromptText)});
}

bool DesktopPort::ShowProgress(std::wstring_view what, int percent) {
    return m_frame.ShowProgress(ToQt(what), percent);
}

void DesktopPort::EndProgress() {
    m_frame.EndProgress();
}

} // namespace Tessaly
