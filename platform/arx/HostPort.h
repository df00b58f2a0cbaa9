// User interaction that a host program provides for modules.
#pragma once

#include <vector>

#include "platform/arx/PromptChoices.h"

struct AcColorSettings;

/// Result of a prompt.
enum class PromptEnd {
    Answered,
    Cancelled, ///< Escape or end of input
};

/// Implemented once, by the host. Called on the main thread. Texts are shown unchanged; line ends
/// are "\n".
class PLATFORM_API IHostPort {
public:
    virtual ~IHostPort() = default;

    /// Appends to the command line's text without adding a line end.
    virtual void Print(std::wstring_view text) = 0;
    /// Shows a prompt and waits for an answer, while the host keeps processing events.
    /// \param allowBlanks false: a space ends the answer
    virtual PromptEnd GetString(bool allowBlanks, std::wstring_view prompt, CString& answer) = 0;
    /// Shows a question with its choices, as buttons where possible, and waits for an answer: one
    /// that FindChoice recognises, or any other text.
    virtual PromptEnd GetChoice(const ChoicePrompt& prompt, CString& answer) {
        return GetString(true, PromptText(prompt).View(), answer);
    }
    /// Shows a text until the user acknowledges it.
    virtual void Alert(std::wstring_view text, std::wstring_view title) = 0;
    /// Prints a text on a line of its own.
    virtual void PrintLine(std::wstring_view text) {
        Print(text);
        Print(L"\n");
    }
    /// Acts like the Escape key: cancels the open prompt, or the next one of the running command.
    virtual void Escape() = 0;

    /// True while a prompt is waiting, in a command or not.
    virtual bool IsPrompting() const { return false; }
    /// Cancels all waiting prompts because another command is about to run.
    virtual void CancelPrompts() {}
    /// Presets the answers of the next prompts, in this order. Replaces any unused earlier ones.
    virtual void SetAnswers(const std::vector<CString>& /*answers*/) {}

    /// Called when the colours of the host's surfaces have changed (EdPrompt.h).
    virtual void ShowColors(const AcColorSettings& /*colors*/) {}

    /// Shows the progress of a long operation, in percent. Returns false once the user wants to
    /// stop it. The first call, with 0, marks its start; texts may be printed between calls.
    virtual bool ShowProgress(std::wstring_view /*what*/, int /*percent*/) { return true; }
    /// The operation, including nested ones, has ended, completed or not.
    virtual void EndProgress() {}
};

/// Sets the port in use and returns the previous one. Not owned. Null restores the initial port,
/// which prints to standard output and cancels every prompt.
PLATFORM_API IHostPort* SetHostPort(IHostPort* pPort);
PLATFORM_API IHostPort& HostPort();
