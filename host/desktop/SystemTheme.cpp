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
                SLOT(OnSettingChanged(QString, QString, QDBusVariant)));
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

void SystemTheme::OnSettingChanged(const QString& group, const QString& key,
                                   const QDBusVariant& value) {
    if (group == kGroup && key == kKey) {
        Take(value.variant());
    }
}

void SystemTheme::Take(const QVariant& value) {
    // Some services wrap the number once more.
    const QVariant inner =
        value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
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
