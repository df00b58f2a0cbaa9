// Whether the user's desktop is dark or light.
#pragma once

#include <QDBusVariant>
#include <QObject>

namespace Tessaly {

/// Asks the desktop's settings service, and hears from it when the user chooses otherwise.
/// Without one, and until it has answered, nothing is known.
class SystemTheme final : public QObject {
    Q_OBJECT
public:
    enum class Scheme { Unknown, Light, Dark };
    /// Asks without waiting for the answer.
    SystemTheme();
    Scheme Current() const { return m_scheme; }

signals:
    void changed();

private slots:
    void OnSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void Take(const QVariant& value);

    Scheme m_scheme = Scheme::Unknown;
};

} // namespace Tessaly
