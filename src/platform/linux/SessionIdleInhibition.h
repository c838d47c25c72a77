#pragma once

#include "platform/IdleInhibition.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <memory>

namespace guide {

/// Asks the desktop not to blank the screen: its screen saver, or the portal where there is none. Asks
/// without waiting. Main thread.
class SessionIdleInhibition final : public QObject, public IdleInhibition {
  public:
    struct Services {
        QString screenSaver = QStringLiteral("org.freedesktop.ScreenSaver");
        QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
    };

    /// Both services are empty when the peer itself offers them.
    SessionIdleInhibition(QDBusConnection bus, Services services);
    ~SessionIdleInhibition() override;
    /// Null when the session has no bus.
    static std::unique_ptr<SessionIdleInhibition> ofSession();

    void setInhibited(bool inhibited) override;

  private:
    void askScreenSaver();
    void askPortal();
    void release();

    QDBusConnection m_bus;
    const Services m_services;
    bool m_inhibited = false;
    /// A question is under way.
    bool m_asking = false;
    /// What the screen saver has answered; 0 for none.
    unsigned m_cookie = 0;
    /// What the portal has answered; empty for none.
    QString m_request;
};

} // namespace guide
