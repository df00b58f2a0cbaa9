// How modules talk to the user of the desktop.
#pragma once

#include <QEventLoop>
#include <QObject>
#include <deque>

#include "host/LinePort.h"
#include "platform/win/File.h"

namespace Tessaly {

class Frame;

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
    explicit DesktopPort(Frame& frame);
    ~DesktopPort() override;

    void SetInput(IInputLines* pInput) override { m_pInput = pInput; }
    std::optional<CString> NextLine(std::wstring_view prompt) override;
    void DropEscapes() override;

    void Print(std::wstring_view text) override;
    /// A line of its own.
    void PrintLine(const CString& text);
    /// What is printed next begins a line.
    void EndLine();
    PromptEnd GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) override;
    void Alert(std::wstring_view text, std::wstring_view title) override;
    void PostCommand(std::wstring_view text) override;
    void ShowColors(const AcColorSettings& colors) override;
    bool ShowProgress(std::wstring_view what, int percent) override;
    void EndProgress() override;

    /// Everything printed goes to the file, too; null ends that.
    void SetTranscript(FileHandle file) { m_transcript = std::move(file); }
    /// Answers that the next prompts take, in their order.
    void QueueAnswer(const CString& answer) { m_answers.push_back(answer); }
    void DropAnswers() { m_answers.clear(); }
    /// A command that was posted, to be run now; nothing if none waits.
    std::optional<CString> TakePosted();

    bool IsScripted() const { return m_pInput || !m_answers.empty(); }
    /// Shows a question and waits until its loop ends.
    void Wait(Question& question, const QString& prompt);
    bool IsPrompting() const { return !m_questions.empty(); }
    /// An answer to the innermost question, if that is one that takes a text.
    void Answer(const CString& text);
    /// Cancels the innermost question.
    void Cancel();
    /// Cancels all that is open now.
    void CancelOpen();
    /// Cancels all questions, those to come included: the program is about to end.
    void CancelAll();

private:
    bool IsAttended() const;
    std::optional<CString> TakeLine();
    PromptEnd AskInBox(const CString& prompt, CString& answer);

    Frame& m_frame;
    IInputLines* m_pInput = nullptr;
    std::deque<CString> m_answers;
    std::deque<CString> m_posted;
    std::vector<Question*> m_questions; ///< the innermost last
    PromptsBehindEnd m_behindEnd;
    FileHandle m_transcript;
    bool m_bEnding = false;
    bool m_bAtLineStart = true;
};

} // namespace Tessaly
