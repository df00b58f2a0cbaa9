// The command line of the desktop: output and input.
#pragma once

#include <QColor>
#include <QStringList>
#include <QWidget>

#include "host/desktop/PromptWindow.h"

class QCompleter;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace Tessaly {

/// Shows text and reads lines. Knows nothing of commands: its listener decides whether a line is a
/// command or the answer to a prompt.
class CommandPane final : public QWidget {
    Q_OBJECT
public:
    explicit CommandPane(QWidget* pParent = nullptr);

    /// Appends to the output without adding a line end.
    void Append(const QString& text);
    /// The text before the input. Line ends in it are removed.
    void SetPrompt(const QString& prompt);
    /// Completions offered while a command is expected.
    void SetCompletions(const QStringList& words);
    void SetCompleting(bool isOn);
    /// Lines that the arrow keys recall, the oldest first.
    void SetHistory(const QStringList& lines);
    const QStringList& History() const { return m_history; }
    void Remember(const QString& line);
    void FocusInput();
    /// Like FocusInput, but also brings the pane's window to the front.
    void GoToInput();
    /// Forwards a key pressed elsewhere to the input.
    void TypeKey(QKeyEvent& event);
    QString Text() const;

    void SetColors(const CommandLineLook& messages, const CommandLineLook& prompt);

signals:
    void entered(const QString& line);
    void escaped();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    bool OnInputKey(const QKeyEvent& event);
    /// Handles a key in the completion list.
    bool OnListKey(const QKeyEvent& event);
    void GoThroughHistory(int step);

    QPlainTextEdit* m_pText;
    QLabel* m_pPrompt;
    QLineEdit* m_pInput;
    QCompleter* m_pCompleter = nullptr;
    QStringList m_history;
    qsizetype m_nHistoryPlace = 0; ///< past the last one: a new line
};

} // namespace Tessaly
