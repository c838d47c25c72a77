#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QSet>
#include <QString>
#include <QVariant>

#include <memory>

namespace guide {

/// Whether the desktop asks its programs for less motion, as its settings portal tells. Until the portal has
/// answered, and on a desktop without one, things move. Main thread.
class DesktopMotion : public QObject {
    Q_OBJECT

  public:
    /// Asks over that bus, without waiting; `service` is empty where the portal itself is at the other end.
    explicit DesktopMotion(QDBusConnection bus,
                           const QString& service = QStringLiteral("org.freedesktop.portal.Desktop"));
    /// Nothing where the session has no bus.
    static std::unique_ptr<DesktopMotion> ofSession();

    bool moves() const { return m_against.isEmpty(); }

  Q_SIGNALS:
    void changed();

  private Q_SLOTS:
    void settingChanged(const QDBusMessage& change);

  private:
    void take(const QString& space, const QString& key, const QVariant& value);

    QDBusConnection m_bus;
    /// The settings that ask for less.
    QSet<QString> m_against;
};

} // namespace guide
