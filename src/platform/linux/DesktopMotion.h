#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QSet>
#include <QString>
#include <QVariant>

#include <memory>

namespace guide {

/// Whether the desktop asks programs to reduce motion, according to its settings portal. Motion is on until
/// the portal has answered and on desktops without one. Main thread.
class DesktopMotion : public QObject {
    Q_OBJECT

  public:
    /// Asks asynchronously over the bus; `service` is empty when the portal itself is the peer.
    explicit DesktopMotion(QDBusConnection bus,
                           const QString& service = QStringLiteral("org.freedesktop.portal.Desktop"));
    /// Null when the session has no bus.
    static std::unique_ptr<DesktopMotion> ofSession();

    bool moves() const { return m_against.isEmpty(); }

  Q_SIGNALS:
    void changed();

  private Q_SLOTS:
    void settingChanged(const QDBusMessage& change);

  private:
    void take(const QString& space, const QString& key, const QVariant& value);

    QDBusConnection m_bus;
    /// Settings that ask for reduced motion.
    QSet<QString> m_against;
};

} // namespace guide
