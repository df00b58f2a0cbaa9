#include "platform/mfc/toolkit/Stacking.h"

#include <algorithm>

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>

namespace {

std::vector<QWidget*>& Order() {
    static auto& order = *new std::vector<QWidget*>;
    return order;
}

void MoveToFront(QWidget* pWidget) {
    std::erase(Order(), pWidget);
    Order().insert(Order().begin(), pWidget);
}

} // namespace

const std::vector<QWidget*>& WindowsByUse() {
    return Order();
}

void NoteStacking(QWidget* pWidget, const QEvent* pEvent) {
    switch (pEvent->type()) {
    case QEvent::Show:
    case QEvent::WindowActivate:
    case QEvent::ZOrderChange:
        if (pWidget->isWindow()) {
            MoveToFront(pWidget);
        }
        break;
    default:
        break;
    }
}

void RaiseWidget(QWidget* pWidget) {
    if (!pWidget->isWindow()) {
        pWidget->raise();
        return;
    }
    if (pWidget->isVisible()) {
        MoveToFront(pWidget);
    }
    // Windows in memory cannot be raised, and the toolkit warns each time.
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
        pWidget->raise();
    }
}

void ForgetStacking(const QWidget* pWidget) {
    std::erase(Order(), pWidget);
}
