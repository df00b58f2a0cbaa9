// The toolkit's application object. For sources only.
#pragma once

#include <vector>

#include <QApplication>

#include "platform/mfc/Messages.h"

class WindowCore;

/// Passes keys and mouse buttons to PreTranslateMessage before the toolkit delivers them.
class Application final : public QApplication {
public:
    Application(int& argc, char** argv) : QApplication(argc, argv) {}
    bool notify(QObject* pReceiver, QEvent* pEvent) override;
    void DispatchInHand();
    /// Modifiers and screen position of the current event.
    Qt::KeyboardModifiers ModifiersInHand() const;
    CPoint PointInHand() const;

private:
    enum class enmOutcome { GoesOn, Eaten, DispatchedSoon };
    struct Input {
        QObject* pReceiver;
        QEvent* pEvent;
        Qt::KeyboardModifiers modifiers;
        CPoint point;
        bool dispatched = false;
        bool result = false;
    };
    /// Makes an input the current one during its lifetime.
    struct InHand {
        InHand(std::vector<Input*>& all, Input& input) : inputs(all) { inputs.push_back(&input); }
        ~InHand() { inputs.pop_back(); }
        InHand(const InHand&) = delete;
        InHand& operator=(const InHand&) = delete;
        std::vector<Input*>& inputs;
    };
    /// A key already translated as a shortcut; its key press follows.
    struct TranslatedKey {
        quint64 time;
        int key;
        Qt::KeyboardModifiers modifiers;
        enmOutcome outcome;
    };

    bool NotifyUnguarded(QObject* pReceiver, QEvent* pEvent);
    bool NotifyInput(QWidget* pWidget, WindowCore& core, QEvent* pEvent);
    bool TakeTranslated(const QEvent* pEvent, enmOutcome& outcome);

    std::vector<Input*> m_inputs;
    std::vector<TranslatedKey> m_keys;
};

/// The virtual key code of a toolkit key.
int VirtualKeyOf(int key);
