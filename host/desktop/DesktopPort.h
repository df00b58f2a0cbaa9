// Prompts and messages on the desktop.
#pragma once

#include <QEventLoop>
#include <QObject>
#include <deque>

#include "host/LinePort.h"
#include "platform/win/File.h"

namespace Tessaly {

class CommandPane;
class IPromptWindow;

/// A prompt or pick that waits for the user in a nested event loop.
struct Question {
    QEventLoop loop;
    std::optional<CString> answer; ///< of a prompt, once answered
    bool takesText = true;
};

/// Nested questions are answered from the innermost out. Input lines, such as those of a script,
/// take precedence over typing. Without a desktop (AfxIsDesktopMode) there is nobody to answer, so
/// prompts left open by the input are cancelled.
class DesktopPort final : public QObject, public ILinePort {
    Q_OBJECT
public:
    /// Reads the lines typed in the pane.
    DesktopPort(IPromptWindow& window, const CommandPane& pane);
    ~DesktopPort() override;

    void SetInput(IInputLines* pInput) override { m_pInput = pInput; }
    std::optional<CString> NextLine(std::wstring_view prompt) override;

    void Print(std::wstring_view text) override;
    void PrintLine(std::wstring_view text) override;
    /// Ends the current line, if any.
    void EndLine();
    PromptEnd GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) override;
    /// Shows a few choices as buttons, unless the input has an answer.
    PromptEnd GetChoice(const ChoicePrompt& prompt, CString& answer) override;
    void Alert(std::wstring_view text, std::wstring_view title) override;
    void Escape() override { Cancel(); }
    void ShowColors(const AcColorSettings& colors) override;
    bool ShowProgress(std::wstring_view what, int percent) override;
    void EndProgress() override;

    /// Also writes all output to this file; null stops that.
    void SetTranscript(FileHandle file) { m_transcript = std::move(file); }
    void SetAnswers(const std::vector<CString>& answers) override {
        m_answers = {answers.begin(), answers.end()};
    }
    bool IsScripted() const { return m_pInput || !m_answers.empty(); }
    /// Shows a question and waits until its loop ends.
    void Wait(Question& question, const QString& prompt);
    bool IsPrompting() const override { return !m_questions.empty(); }
    void CancelPrompts() override;
    /// Cancels all open and future questions, because the program is about to exit.
    void CancelAll();

private:
    /// Answers the innermost question or, if there is none, runs a command; an empty line repeats
    /// the last command.
    void OnEntered(const QString& line);
    /// Answers the innermost question if it accepts text.
    void Answer(const CString& text);
    /// Cancels the innermost question.
    void Cancel();
    bool IsAttended() const;
    std::optional<CString> TakeLine();

    IPromptWindow& m_window;
    IInputLines* m_pInput = nullptr;
    std::deque<CString> m_answers;
    std::vector<Question*> m_questions; ///< the innermost last
    PromptsBehindEnd m_behindEnd;
    FileHandle m_transcript;
    bool m_bEnding = false;
    bool m_bAtLineStart = true;
};

} // namespace Tessaly
