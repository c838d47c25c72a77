#include "agent/Notifications.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <algorithm>
#include <limits>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

const QString kService = u"org.freedesktop.Notifications"_s;
const QString kPath = u"/org/freedesktop/Notifications"_s;
constexpr int kForAsLongAsItTakes = std::numeric_limits<int>::max();

QDBusMessage busCall(const QString& member, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, member);
    message.setArguments(arguments);
    return message;
}

} // namespace

Notifications::Notifications(const QDBusConnection& bus)
    : m_bus(bus)
    , m_watcher(kService, bus, QDBusServiceWatcher::WatchForOwnerChange) {
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { ownerChanged(owner); });
    const auto listen = [this](const QString& signal, const char* slot) {
        m_bus.connect(kService, kPath, kService, signal, this, slot);
    };
    listen(u"ActionInvoked"_s, SLOT(actionInvoked(unsigned, QString)));
    listen(u"ActivationToken"_s, SLOT(activationToken(unsigned, QString)));
    listen(u"NotificationClosed"_s, SLOT(notificationClosed(unsigned, unsigned)));
    askForOwner();
}

void Notifications::askForOwner() {
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(busCall(u"GetNameOwner"_s, {kService})), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QString> owner = *answer;
        if (owner.isValid() && m_owner.isEmpty()) {
            ownerChanged(owner.value());
        }
    });
}

void Notifications::ownerChanged(const QString& owner) {
    m_owner.clear();
    m_tokens.clear();
    if (owner.isEmpty()) {
        return;
    }
    QDBusMessage ask = QDBusMessage::createMethodCall(owner, kPath, kService, u"GetCapabilities"_s);
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(ask), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, owner] {
        answer->deleteLater();
        const QDBusPendingReply<QStringList> capabilities = *answer;
        // One that has died meanwhile does not answer.
        if (capabilities.isError() && capabilities.error().type() != QDBusError::UnknownMethod) {
            return;
        }
        m_hasMarkup = capabilities.isValid() && capabilities.value().contains(u"body-markup"_s);
        m_owner = owner;
        if (appeared) {
            appeared();
        }
    });
}

void Notifications::start() {
    m_bus.asyncCall(busCall(u"StartServiceByName"_s, {kService, 0U}));
}

void Notifications::show(const Notification& notification,
                         std::function<void(std::optional<unsigned>)> shown) {
    const auto time = notification.time ? std::clamp<std::int64_t>(notification.time->count(), 1'000,
                                                                   std::numeric_limits<int>::max())
                                        : 0;
    // To its unique name: a server that dies before it has answered makes this an error.
    QDBusMessage notify = QDBusMessage::createMethodCall(m_owner, kPath, kService, u"Notify"_s);
    notify << u"Quellin Guide"_s << 0U << notification.icon << notification.title
           << (m_hasMarkup ? notification.text.toHtmlEscaped() : notification.text) << notification.actions
           << notification.hints << static_cast<int>(time);
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(notify, kForAsLongAsItTakes), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, shown = std::move(shown)] {
        answer->deleteLater();
        const QDBusPendingReply<unsigned> number = *answer;
        shown(number.isValid() ? std::optional(number.value()) : std::nullopt);
    });
}

void Notifications::actionInvoked(unsigned number, const QString& action) {
    const QString token = m_tokens.take(number);
    if (chosen) {
        chosen(number, action, token);
    }
}

void Notifications::activationToken(unsigned number, const QString& token) {
    constexpr qsizetype kMostTokens = 64;
    if (m_tokens.size() < kMostTokens) {
        m_tokens.insert(number, token);
    }
}

void Notifications::notificationClosed(unsigned number, unsigned /*reason*/) {
    m_tokens.remove(number);
    if (closed) {
        closed(number);
    }
}

} // namespace guide
