// What the way to the user needs of a window.
#pragma once

#include <QString>

namespace Tessaly {

class IPromptWindow {
public:
    virtual ~IPromptWindow() = default;

    /// At the end of the command line's text.
    virtual void ShowText(const QString& text) = 0;
    /// Prompts nest; the innermost is shown.
    /// \param takesText the user is to type the answer
    virtual void BeginPrompt(const QString& prompt, bool takesText) = 0;
    virtual void EndPrompt() = 0;
    /// See IHostPort.
    virtual bool ShowProgress(const QString& what, int percent) = 0;
    virtual void EndProgress() = 0;
};

} // namespace Tessaly
