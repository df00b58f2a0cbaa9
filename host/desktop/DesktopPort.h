// How modules talk to the user of the desktop.
#pragma once

#include <QObject>
#include <deque>

#include "host/LinePort.h"
#include "platform/win/File.h"

class QEventLoop;

namespace Tessaly {

class Frame;

/// Prompts wait in an event loop of their own, so that the desktop goes on meanwhile; of
/// nested ones the inner one is answered first. Lines of an input, as those of a script, come
/// before what the user types.
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
    PromptEnd GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) override;
    void Alert(std::wstring_view text, std::wstring_view title) override;
    void PostCommand(std::wstring_view text) override;
    bool ShowProgress(std::wstring_view what, int percent) override;
    void EndProgress() override;

    /// Answers that the next prompts take, in their order.
    /// Everything printed goes to the file, too; null ends that.
    void SetTranscript(FileHandle file) { m_transcript = std::move(file); }
    void QueueAnswer(const CString& answer) { m_answers.push_back(answer); }
    void DropAnswers() { m_answers.clear(); }
    /// A command that was posted, to be run now; nothing if none waits.
    std::optional<CString> TakePosted();

    bool IsScripted() const { return m_pInput || !m_answers.empty(); }
    bool IsPrompting() const { return !m_prompts.empty(); }
    /// An answer to the open prompt; nothing happens without one.
    void Answer(const CString& text);
    void Cancel();
    /// Cancels all prompts, those to come included: the program is about to end.
    void CancelAll();

private:
    struct Prompt;
    std::optional<CString> TakeLine();
    PromptEnd AskInBox(const CString& prompt, CString& answer);

    Frame& m_frame;
    IInputLines* m_pInput = nullptr;
    std::deque<CString> m_answers;
    std::deque<CString> m_posted;
    std::vector<Prompt*> m_prompts; ///< the innermost last
    FileHandle m_transcript;
    bool m_bEnding = false;
    bool m_bAtLineStart = true;
};

} // namespace Tessaly
