#include "platform/linux/SessionIdleInhibition.h"

#include "platform/linux/SessionBus.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QVariantMap>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

const QString kScreenSaverPath = u"/org/freedesktop/ScreenSaver"_s;
const QString kScreenSaver = u"org.freedesktop.ScreenSaver"_s;
const QString kReason = u"Playing a stream"_s;
/// The portal's number for an idle session.
constexpr unsigned kIdle = 8;

} // namespace

SessionIdleInhibition::SessionIdleInhibition(QDBusConnection bus, Services services)
    : m_bus(std::move(bus))
    , m_services(std::move(services)) {}

SessionIdleInhibition::~SessionIdleInhibition() {
    release();
}

std::unique_ptr<SessionIdleInhibition> SessionIdleInhibition::ofSession() {
    const std::optional<QDBusConnection> bus = sessionBus();
    return bus ? std::make_unique<SessionIdleInhibition>(*bus, Services()) : nullptr;
}

void SessionIdleInhibition::setInhibited(bool inhibited) {
    if (std::exchange(m_inhibited, inhibited) == inhibited || m_asking) {
        return;
    }
    if (inhibited) {
        askScreenSaver();
    } else {
        release();
    }
}

void SessionIdleInhibition::askScreenSaver() {
    QDBusMessage inhibit =
        QDBusMessage::createMethodCall(m_services.screenSaver, kScreenSaverPath, kScreenSaver, u"Inhibit"_s);
    inhibit << QGuiApplication::desktopFileName() << kReason;
    m_asking = true;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(inhibit), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<unsigned> cookie = *answer;
        m_asking = false;
        if (!cookie.isValid()) {
            askPortal();
            return;
        }
        m_cookie = cookie.value();
        if (!m_inhibited) {
            release();
        }
    });
}

void SessionIdleInhibition::askPortal() {
    QDBusMessage inhibit =
        QDBusMessage::createMethodCall(m_services.portal, u"/org/freedesktop/portal/desktop"_s,
                                       u"org.freedesktop.portal.Inhibit"_s, u"Inhibit"_s);
    inhibit << QString() << kIdle << QVariantMap{{u"reason"_s, kReason}};
    m_asking = true;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(inhibit), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> request = *answer;
        m_asking = false;
        if (request.isValid()) {
            m_request = request.value().path();
            if (!m_inhibited) {
                release();
            }
        }
    });
}

void SessionIdleInhibition::release() {
    if (m_cookie != 0) {
        QDBusMessage release = QDBusMessage::createMethodCall(m_services.screenSaver, kScreenSaverPath,
                                                              kScreenSaver, u"UnInhibit"_s);
        release << std::exchange(m_cookie, 0U);
        m_bus.send(release);
    }
    if (!m_request.isEmpty()) {
        m_bus.send(QDBusMessage::createMethodCall(m_services.portal, std::exchange(m_request, QString()),
                                                  u"org.freedesktop.portal.Request"_s, u"Close"_s));
    }
}

} // namespace guide
