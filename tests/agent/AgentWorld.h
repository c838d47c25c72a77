#pragma once

#include "platform/calendar/CalendarUnderTest.h"
#include "platform/calendar/DesktopSession.h"
#include "platform/linux/LinuxClock.h"
#include "platform/linux/calendar/FolderEventStore.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QTest>
#include <QUuid>

#include <functional>
#include <optional>
#include <sys/prctl.h>
#include <vector>

namespace guide::test {

/// A program of the session with a name on the bus.
class SessionProgram : public QDBusVirtualObject {
  public:
    SessionProgram(const QString& address, const QString& name, const QString& path)
        : m_connection(QUuid::createUuid().toString())
        , bus(QDBusConnection::connectToBus(address, m_connection)) {
        EXPECT_TRUE(bus.registerVirtualObject(path, this, QDBusConnection::SubPath));
        EXPECT_TRUE(bus.registerService(name));
    }
    ~SessionProgram() override { QDBusConnection::disconnectFromBus(m_connection); }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        calls.push_back(message);
        const std::optional<QVariant> result = answer(message);
        return !result ||
               connection.send(result->isValid() ? message.createReply(*result) : message.createReply());
    }

    std::vector<QDBusMessage> calls;
    /// No result for no answer.
    std::function<std::optional<QVariant>(const QDBusMessage&)> answer = [](const auto&) {
        return QVariant();
    };

  private:
    const QString m_connection;

  public:
    QDBusConnection bus;
};

/// A notification server.
class NotificationServer final : public SessionProgram {
  public:
    struct Shown {
        QString title;
        QString text;
        QStringList actions;
        Moment at;
    };

    explicit NotificationServer(const QString& address)
        : SessionProgram(address, QStringLiteral("org.freedesktop.Notifications"),
                         QStringLiteral("/org/freedesktop")) {
        answer = [this](const QDBusMessage& message) -> std::optional<QVariant> {
            if (message.member() == QLatin1StringView("GetCapabilities")) {
                return QStringList{QStringLiteral("actions"), QStringLiteral("body-markup")};
            }
            const QVariantList words = message.arguments();
            shown.push_back({words.value(3).toString(), words.value(4).toString(),
                             words.value(5).toStringList(), LinuxClock().now()});
            if (!answers) {
                return std::nullopt;
            }
            return QVariant::fromValue(unsigned(shown.size()));
        };
    }

    /// By the user, on the last notification.
    void choose(const QString& action) {
        const QString name = QStringLiteral("org.freedesktop.Notifications");
        const auto signal = [&](const QString& member, const QString& word) {
            QDBusMessage message =
                QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/Notifications"), name, member);
            message << unsigned(shown.size()) << word;
            EXPECT_TRUE(bus.send(message));
        };
        signal(QStringLiteral("ActivationToken"), QStringLiteral("token-1"));
        signal(QStringLiteral("ActionInvoked"), action);
    }

    QStringList titles() const {
        QStringList titles;
        for (const Shown& each : shown) {
            titles << each.title;
        }
        return titles;
    }

    std::vector<Shown> shown;
    bool answers = true;
};

/// A session in which the agent runs as a process.
class AgentWorld : public testing::Test {
  protected:
    explicit AgentWorld(bool hasServices = false)
        : session(hasServices) {
        agent.setProcessChannelMode(QProcess::ForwardedChannels);
        agent.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), session.busAddress());
        environment.insert(QStringLiteral("HOME"), session.path("data"));
        for (const auto& [name, folder] :
             {std::pair("XDG_DATA_HOME", "data"), std::pair("XDG_CONFIG_HOME", "config"),
              std::pair("XDG_CACHE_HOME", "cache"), std::pair("XDG_RUNTIME_DIR", "run")}) {
            environment.insert(QString::fromLatin1(name), session.path(folder));
        }
        agent.setProcessEnvironment(environment);
    }
    ~AgentWorld() override { kill(); }

    void start() {
        agent.start(QStringLiteral(QUELLIN_AGENT), QStringList());
        ASSERT_TRUE(agent.waitForStarted(60'000)) << agent.errorString().toStdString();
    }
    void kill() {
        agent.kill();
        agent.waitForFinished();
    }
    void send(int signal) const { ASSERT_EQ(::kill(static_cast<pid_t>(agent.processId()), signal), 0); }

    static bool waitFor(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 60'000); }
    static bool waitUntil(Moment at) {
        return waitFor([at] { return LinuxClock().now() >= at; });
    }

    /// A show whose alarm is at the moment, ten minutes ahead of it.
    static CalendarEvent showAt(const QString& title, Moment alarm) {
        CalendarEvent event = showEvent(u'c' + title, alarm + std::chrono::minutes(10));
        event.title = title;
        return event;
    }
    static EventOutcome save(EventStore& store, CalendarEvent event) {
        event.calendar = store.defaultCalendarForNewEvents().value_or(EventCalendar{}).identifier;
        return store.apply({SaveEvent{event}}).front();
    }
    void save(const CalendarEvent& event) {
        const EventOutcome outcome = save(store, event);
        EXPECT_TRUE(outcome.isDone()) << outcome.message.toStdString();
    }
    /// In ascending order of their starts.
    std::vector<CalendarEvent> shows() {
        return store
            .eventsBetween(clock.now(), clock.now() + std::chrono::hours(2),
                           store.defaultCalendarForNewEvents().value_or(EventCalendar{}))
            .events;
    }
    /// The next full second that is at least this long from now: calendars keep full seconds.
    static Moment soon(std::chrono::milliseconds from) {
        return std::chrono::ceil<std::chrono::seconds>(LinuxClock().now() + from);
    }

    const DesktopSession session;
    const LinuxClock clock;
    FolderEventStore store{session.path("data") + QStringLiteral("/quellin-guide/calendars"), kScheme, clock};
    QProcess agent;
};

} // namespace guide::test
