// Detects whether the user's desktop is dark or light.
#pragma once

#include <QDBusMessage>
#include <QObject>

namespace Tessaly {

/// Queries the desktop's settings service and follows changes. Unknown without such a service, and
/// until it has answered.
class SystemTheme final : public QObject {
    Q_OBJECT
public:
    enum class Scheme { Unknown, Light, Dark };
    /// Sends the query without waiting for the answer.
    SystemTheme();
    Scheme Current() const { return m_scheme; }

signals:
    void changed();

private slots:
    void OnSettingChanged(const QDBusMessage& message);

private:
    void Take(const QVariant& value);

    Scheme m_scheme = Scheme::Unknown;
};

} // namespace Tessaly
