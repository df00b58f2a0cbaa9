// What a host program has to provide so that modules can talk to the user.
#pragma once

#include <vector>

#include "platform/arx/PromptChoices.h"

struct AcColorSettings;

/// How a prompt ended.
enum class PromptEnd {
    Answered,
    Cancelled, ///< Escape, or no more input
};

/// Implemented by the host, once, on the main thread. Texts are shown as they are; line
/// ends are "\n".
class PLATFORM_API IHostPort {
public:
    virtual ~IHostPort() = default;

    /// Writes at the end of the command line's text, without a line end of its own.
    virtual void Print(std::wstring_view text) = 0;
    /// Shows a prompt and waits for an answer, while the host's own events go on.
    /// \param allowBlanks false: a blank ends the answer.
    virtual PromptEnd GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) = 0;
    /// Shows a question with its choices, if need be as buttons, and waits for an answer: one
    /// that FindChoice understands, or anything else that was typed.
    virtual PromptEnd GetChoice(const ChoicePrompt& prompt, CString& answer) {
        return GetString(true, PromptText(prompt).View(), answer);
    }
    /// Shows a text until the user has taken note of it.
    virtual void Alert(std::wstring_view text, std::wstring_view title) = 0;
    /// Writes a line of its own.
    virtual void PrintLine(std::wstring_view text) {
        Print(text);
        Print(L"\n");
    }
    /// As the Escape key: cancels the prompt that is open, or the next one of the running
    /// command.
    virtual void Escape() = 0;

    /// A prompt waits for the user, within a command or not.
    virtual bool IsPrompting() const { return false; }
    /// Cancels all prompts that wait, because another command is to run.
    virtual void CancelPrompts() {}
    /// What the next prompts are answered with, in this order. Replaces what is left of
    /// earlier ones.
    virtual void SetAnswers(const std::vector<CString>& /*answers*/) {}

    /// The colours of the host's surfaces changed (EdPrompt.h).
    virtual void ShowColors(const AcColorSettings& /*colors*/) {}

    /// Shows how far long work is, in percent. False once the user wants it to stop. The
    /// first call, with 0, comes as the work begins; texts may be printed in between.
    virtual bool ShowProgress(std::wstring_view /*what*/, int /*percent*/) { return true; }
    /// The work, and all that was begun during it, is over, done or not.
    virtual void EndProgress() {}
};

/// Makes a port the one in force and returns the one before. Not owned; null brings back
/// the port that is there before any host is: it prints to standard output, and every
/// prompt is cancelled.
PLATFORM_API IHostPort* SetHostPort(IHostPort* pPort);
PLATFORM_API IHostPort& HostPort();
