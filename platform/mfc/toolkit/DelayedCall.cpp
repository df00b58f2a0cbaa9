#include "platform/mfc/DelayedCall.h"

#include <QCoreApplication>
#include <QTimer>

struct DelayedCall::Timer {
    QTimer timer;
};

DelayedCall::DelayedCall(int milliseconds, std::function<void()> call)
    : m_nMilliseconds(milliseconds), m_call(std::move(call)) {}

DelayedCall::~DelayedCall() = default;

void DelayedCall::Ask() {
    if (!QCoreApplication::instance()) {
        return;
    }
    if (!m_pTimer) {
        m_pTimer = std::make_unique<Timer>();
        m_pTimer->timer.setSingleShot(true);
        QObject::connect(&m_pTimer->timer, &QTimer::timeout, [this] { m_call(); });
    }
    if (!m_pTimer->timer.isActive()) {
        m_pTimer->timer.start(m_nMilliseconds);
    }
}

void DelayedCall::Cancel() {
    if (m_pTimer) {
        m_pTimer->timer.stop();
    }
}
