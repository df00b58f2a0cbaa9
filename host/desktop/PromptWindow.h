// The window that DesktopPort uses for prompts and output.
#pragma once

#include <QColor>
#include <QString>

namespace Tessaly {

/// Colours of a part of the command line; an invalid one stands for the theme's.
struct CommandLineLook {
    QColor ground;
    QColor text;
};

class IPromptWindow {
public:
    virtual ~IPromptWindow() = default;

    /// Appends to the output of the command line.
    virtual void ShowText(const QString& text) = 0;
    /// Prompts nest; the innermost is shown.
    /// \param takesText the user types the answer
    virtual void BeginPrompt(const QString& prompt, bool takesText) = 0;
    virtual void EndPrompt() = 0;
    virtual void SetColors(const CommandLineLook& messages, const CommandLineLook& prompt) = 0;
    /// See IHostPort.
    virtual bool ShowProgress(const QString& what, int percent) = 0;
    virtual void EndProgress() = 0;
};

} // namespace Tessaly
