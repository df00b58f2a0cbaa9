// How modules talk to the user of the desktop.
#pragma once

#include <QEventLoop>
#include <QObject>
#include <deque>

#include "host/LinePort.h"
#include "platform/win/File.h"

namespace Tessaly {

class CommandPane;
class IPromptWindow;

/// Something that waits for the user in an event loop of its own, while the desktop goes on:
/// a prompt, or pointing into the drawing.
struct Question {
    QEventLoop loop;
    std::optional<CString> answer; ///< of a prompt, once it was answered
    bool takesText = true;
};

/// Of nested questions the inner one is answered first. Lines of an input, as those of a
/// script, come before what the user types. Without a desktop (AfxIsDesktopMode) nobody is
/// there to answer what the input leaves open, and it is cancelled.
class DesktopPort final : public QObject, public ILinePort {
    Q_OBJECT
public:
    /// Takes what the user types in the pane.
    DesktopPort(IPromptWindow& window, const CommandPane& pane);
    ~DesktopPort() override;

    void SetInput(IInputLines* pInput) override { m_pInput = pInput; }
    std::optional<CString> NextLine(std::wstring_view prompt) override;

    void Print(std::wstring_view text) override;
    void PrintLine(std::wstring_view text) override;
    /// What is printed next begins a line.
    void EndLine();
    PromptEnd GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) override;
    /// Few choices are buttons of a box, unless an input answers.
    PromptEnd GetChoice(const ChoicePrompt& prompt, CString& answer) override;
    void Alert(std::wstring_view text, std::wstring_view title) override;
    void Escape() override { Cancel(); }
    void ShowColors(const AcColorSettings& colors) override;
    bool ShowProgress(std::wstring_view what, int percent) override;
    void EndProgress() override;

    /// Everything printed goes to the file, too; null ends that.
    void SetTranscript(FileHandle file) { m_transcript = std::move(file); }
    void SetAnswers(const std::vector<CString>& answers) override {
        m_answers = {answers.begin(), answers.end()};
    }
    bool IsScripted() const { return m_pInput || !m_answers.empty(); }
    /// Shows a question and waits until its loop ends.
    void Wait(Question& question, const QString& prompt);
    bool IsPrompting() const override { return !m_questions.empty(); }
    void CancelPrompts() override;
    /// Cancels all questions, those to come included: the program is about to end.
    void CancelAll();

private:
    /// A line is the answer to the innermost question or, if nothing is asked, a command; an
    /// empty one is the last command again, as draftsmen are used to.
    void OnEntered(const QString& line);
    /// An answer to the innermost question, if that is one that takes a text.
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
