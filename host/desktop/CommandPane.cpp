#include "host/desktop/CommandPane.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStringListModel>
#include <QVBoxLayout>

#include "host/desktop/LayoutFile.h"
#include "host/desktop/QtTexts.h"

namespace Tessaly {

namespace {

constexpr int kMostLines = 20'000;
constexpr int kVisibleLines = 6;

void Paint(QWidget& widget, const CommandLineLook& look) {
    QPalette palette; // follows the theme in what it does not set
    if (look.ground.isValid()) {
        palette.setColor(QPalette::Base, look.ground);
        palette.setColor(QPalette::Window, look.ground);
    }
    if (look.text.isValid()) {
        palette.setColor(QPalette::Text, look.text);
        palette.setColor(QPalette::WindowText, look.text);
        palette.setColor(QPalette::PlaceholderText, look.text);
    }
    widget.setPalette(palette);
    widget.setAutoFillBackground(look.ground.isValid());
}

} // namespace

CommandPane::CommandPane(QWidget* pParent)
    : QWidget(pParent), m_pText(new QPlainTextEdit), m_pPrompt(new QLabel),
      m_pInput(new QLineEdit) {
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_pText->setReadOnly(true);
    m_pText->setMaximumBlockCount(kMostLines);
    m_pText->setFont(font);
    m_pText->setFrameShape(QFrame::NoFrame);
    m_pText->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_pText->setAccessibleName(QtText(Msg::MessagesName));
    m_pInput->setFont(font);
    m_pInput->setFrame(false);
    m_pInput->setAccessibleName(QtText(Msg::CommandLine));
    m_pInput->setPlaceholderText(QtText(Msg::TypeACommand));
    m_pPrompt->setFont(font);
    m_pPrompt->setBuddy(m_pInput);
    m_pInput->installEventFilter(this);
    m_pText->installEventFilter(this);

    auto* const pLine = new QHBoxLayout;
    pLine->setContentsMargins(4, 2, 4, 2);
    pLine->addWidget(m_pPrompt);
    pLine->addWidget(m_pInput, 1);
    auto* const pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addWidget(m_pText, 1);
    pLayout->addLayout(pLine);
    const int lineHeight = QFontMetrics(font).lineSpacing();
    m_pText->setMinimumHeight(2 * lineHeight);
    resize(width(), (kVisibleLines + 2) * lineHeight);
    SetPrompt({});
}

void CommandPane::Append(const QString& text) {
    QTextCursor end(m_pText->document());
    end.movePosition(QTextCursor::End);
    end.insertText(text);
    m_pText->verticalScrollBar()->setValue(m_pText->verticalScrollBar()->maximum());
}

QString CommandPane::Text() const {
    return m_pText->toPlainText();
}

void CommandPane::SetColors(const CommandLineLook& messages, const CommandLineLook& prompt) {
    Paint(*m_pText, messages);
    Paint(*m_pPrompt, prompt);
    Paint(*m_pInput, prompt);
}

void CommandPane::SetPrompt(const QString& prompt) {
    const QString shown = QString(prompt).replace('\n', ' ').trimmed();
    m_pPrompt->setText(shown.isEmpty() ? QStringLiteral(">") : shown);
    m_pPrompt->setTextFormat(Qt::PlainText);
}

void CommandPane::SetCompletions(const QStringList& words) {
    auto* const pCompleter = new QCompleter(words, this);
    pCompleter->setCaseSensitivity(Qt::CaseInsensitive);
    pCompleter->setFilterMode(Qt::MatchStartsWith);
    pCompleter->setModelSorting(QCompleter::UnsortedModel);
    m_pInput->setCompleter(nullptr);
    delete m_pCompleter;
    m_pCompleter = pCompleter;
    m_pInput->setCompleter(m_pCompleter);
    m_pCompleter->popup()->installEventFilter(this);
}

void CommandPane::SetCompleting(bool isOn) {
    m_pInput->setCompleter(isOn ? m_pCompleter : nullptr);
}

void CommandPane::SetHistory(const QStringList& lines) {
    m_history = lines;
    m_nHistoryPlace = m_history.size();
}

void CommandPane::Remember(const QString& line) {
    if (!line.trimmed().isEmpty() && (m_history.isEmpty() || m_history.last() != line)) {
        m_history.append(line);
        if (m_history.size() > kMostHistory) {
            m_history.removeFirst();
        }
    }
    m_nHistoryPlace = m_history.size();
}

void CommandPane::FocusInput() {
    m_pInput->setFocus(Qt::ShortcutFocusReason);
}

void CommandPane::GoToInput() {
    activateWindow(); // a floating pane is a window of its own
    FocusInput();
}

void CommandPane::TypeKey(QKeyEvent& event) {
    m_pInput->setFocus(Qt::OtherFocusReason);
    QCoreApplication::sendEvent(m_pInput, &event);
}

void CommandPane::GoThroughHistory(int step) {
    const qsizetype place = std::clamp<qsizetype>(m_nHistoryPlace + step, 0, m_history.size());
    if (place != m_nHistoryPlace) {
        m_nHistoryPlace = place;
        m_pInput->setText(place < m_history.size() ? m_history[place] : QString());
    }
}

bool CommandPane::OnInputKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        const QString line = m_pInput->text();
        m_pInput->clear();
        m_nHistoryPlace = m_history.size();
        emit entered(line);
        return true;
    }
    case Qt::Key_Escape:
        m_pInput->clear();
        emit escaped();
        return true;
    case Qt::Key_Up:
        GoThroughHistory(-1);
        return true;
    case Qt::Key_Down:
        GoThroughHistory(1);
        return true;
    default:
        return false;
    }
}

bool CommandPane::OnListKey(const QKeyEvent& event) {
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!isEnter && event.key() != Qt::Key_Tab) {
        return false;
    }
    // By default Enter would only complete the word; run the command as well.
    QAbstractItemView& list = *m_pCompleter->popup();
    QModelIndex choice = list.currentIndex();
    if (!choice.isValid() && !isEnter) {
        choice = list.model()->index(0, 0);
    }
    if (choice.isValid()) {
        m_pInput->setText(choice.data().toString());
    }
    list.hide();
    return isEnter ? OnInputKey(event) : true;
}

bool CommandPane::eventFilter(QObject* pWatched, QEvent* pEvent) {
    if (pEvent->type() == QEvent::KeyPress) {
        auto& key = static_cast<QKeyEvent&>(*pEvent);
        if (m_pCompleter && pWatched == m_pCompleter->popup() && OnListKey(key)) {
            return true;
        }
        if (pWatched == m_pInput && OnInputKey(key)) {
            return true;
        }
        // Typing over the messages goes to the input.
        const bool isText = !key.text().isEmpty() && key.text()[0].isPrint() &&
                            !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
        if (pWatched == m_pText && isText) {
            TypeKey(key);
            return true;
        }
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

} // namespace Tessaly
