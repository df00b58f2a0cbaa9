// Reads the desktop's dark or light setting from a settings service on a private bus.
#include "host/desktop/SystemTheme.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <gtest/gtest.h>

namespace Tessaly {

namespace {

const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGroup = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");

class Settings final : public QDBusVirtualObject {
public:
    uint scheme = 0;
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() != "Read" || message.arguments().value(0) != kGroup) {
            return false;
        }
        // The number is wrapped twice.
        const QVariant inner = QVariant::fromValue(QDBusVariant(scheme));
        return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(inner))));
    }
};

} // namespace

TEST(SystemTheme, NothingIsKnownWithoutABus) {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", "/nowhere");
    EXPECT_EQ(SystemTheme().Current(), SystemTheme::Scheme::Unknown);
}

TEST(SystemTheme, FollowsTheServiceOfTheDesktop) {
    if (QStandardPaths::findExecutable("dbus-daemon").isEmpty()) {
        GTEST_SKIP() << "no bus available";
    }
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    QProcess daemon;
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(daemon.waitForReadyRead());
    qputenv("DBUS_SESSION_BUS_ADDRESS", daemon.readLine().trimmed());
    Settings settings;
    settings.scheme = 1;
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "desktop");
    ASSERT_TRUE(bus.registerVirtualObject(kPath, &settings));
    ASSERT_TRUE(bus.registerService("org.freedesktop.portal.Desktop"));
    const SystemTheme theme;
    EXPECT_TRUE(QTest::qWaitFor([&] { return theme.Current() == SystemTheme::Scheme::Dark; }));
    QDBusMessage change = QDBusMessage::createSignal(kPath, kInterface, "SettingChanged");
    change << kGroup << kKey << QVariant::fromValue(QDBusVariant(2U));
    bus.send(change);
    EXPECT_TRUE(QTest::qWaitFor([&] { return theme.Current() == SystemTheme::Scheme::Light; }));
    QDBusConnection::disconnectFromBus("desktop");
    daemon.terminate();
    daemon.waitForFinished();
}

} // namespace Tessaly
