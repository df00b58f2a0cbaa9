#include "host/desktop/SystemTheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>

namespace Tessaly {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGroup = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");

/// Connecting without an address would try to start a bus.
bool HasSessionBus() {
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR") &&
            QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus")));
}

} // namespace

SystemTheme::SystemTheme() {
    if (!HasSessionBus()) {
        return;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(OnSettingChanged(QDBusMessage)));
    QDBusMessage question =
        QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    question << kGroup << kKey;
    auto* const pAnswer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(pAnswer, &QDBusPendingCallWatcher::finished, this, [this, pAnswer] {
        const QDBusPendingReply<QDBusVariant> reply = *pAnswer;
        if (reply.isValid()) {
            Take(reply.value().variant());
        }
        pAnswer->deleteLater();
    });
}

void SystemTheme::OnSettingChanged(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    if (arguments.value(0) == kGroup && arguments.value(1) == kKey) {
        Take(arguments.value(2));
    }
}

void SystemTheme::Take(const QVariant& value) {
    // The value is wrapped once, and twice by some services.
    QVariant inner = value;
    while (inner.canConvert<QDBusVariant>()) {
        inner = inner.value<QDBusVariant>().variant();
    }
    const uint number = inner.toUInt();
    const Scheme scheme = number == 1   ? Scheme::Dark
                          : number == 2 ? Scheme::Light
                                        : Scheme::Unknown;
    if (scheme != m_scheme) {
        m_scheme = scheme;
        emit changed();
    }
}

} // namespace Tessaly
