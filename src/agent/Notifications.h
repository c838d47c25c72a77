#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <chrono>
#include <functional>
#include <optional>

namespace guide {

/// A notification as `org.freedesktop.Notifications` shows it.
struct Notification {
    QString title;
    /// Plain text.
    QString text;
    /// Keys and texts by turns.
    QStringList actions;
    QString icon;
    QVariantMap hints;
    /// How long it is shown; for good when unset.
    std::optional<std::chrono::milliseconds> time;
};

/// The notification server of the desktop. It may start later than this process, and start again. Main
/// thread.
class Notifications final : public QObject {
    Q_OBJECT

  public:
    explicit Notifications(const QDBusConnection& bus);

    /// Whether a server can show notifications now.
    bool isPresent() const { return !m_owner.isEmpty(); }
    /// Asks the bus to start one; `appeared` tells when it is there.
    void start();
    /// Only while a server is present. `shown` is called with the number of the notification, or with nothing
    /// when the server refused it or died before it answered.
    void show(const Notification& notification, std::function<void(std::optional<unsigned>)> shown);

    /// A server has appeared.
    std::function<void()> appeared;
    /// The user has chosen an action. `token` lets a window come to the front; it may be empty.
    std::function<void(unsigned number, const QString& action, const QString& token)> chosen;
    std::function<void(unsigned number)> closed;

  private Q_SLOTS:
    void actionInvoked(unsigned number, const QString& action);
    void activationToken(unsigned number, const QString& token);
    void notificationClosed(unsigned number, unsigned reason);

  private:
    void ownerChanged(const QString& owner);
    void askForOwner();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    /// The unique name of the server; empty while there is none.
    QString m_owner;
    /// Texts are markup.
    bool m_hasMarkup = false;
    QHash<unsigned, QString> m_tokens;
};

} // namespace guide
