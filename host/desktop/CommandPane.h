// The command line of the desktop: what was said, and what is asked.
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

/// Shows texts and takes lines. It knows nothing of commands: who listens decides whether a
/// line is one or the answer to a prompt.
class CommandPane final : public QWidget {
    Q_OBJECT
public:
    explicit CommandPane(QWidget* pParent = nullptr);

    /// At the end of the text, without a line end of its own.
    void Append(const QString& text);
    /// What stands in front of the input; line ends in it are left out.
    void SetPrompt(const QString& prompt);
    /// Words that the input completes, while commands are asked for.
    void SetCompletions(const QStringList& words);
    void SetCompleting(bool isOn);
    /// Lines that the arrow keys bring back, the oldest first.
    void SetHistory(const QStringList& lines);
    const QStringList& History() const { return m_history; }
    void Remember(const QString& line);
    void FocusInput();
    /// As FocusInput, and the window that the pane is in comes to the front.
    void GoToInput();
    /// Puts a key that was pressed elsewhere into the input.
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
    /// A key over the list of completions.
    bool OnListKey(const QKeyEvent& event);
    void GoThroughHistory(int step);

    QPlainTextEdit* m_pText;
    QLabel* m_pPrompt;
    QLineEdit* m_pInput;
    QCompleter* m_pCompleter = nullptr;
    QStringList m_history;
    qsizetype m_nHistoryPlace = 0; ///< behind the last one: a new line
};

} // namespace Tessaly
