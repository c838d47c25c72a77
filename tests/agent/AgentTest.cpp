#include "AgentWorld.h"
#include "platform/linux/EventLoopQueues.h"
#include "platform/linux/SessionAlarmRinging.h"
#include "platform/linux/SessionUpdates.h"
#include "platform/linux/calendar/EDSEventStore.h"

#include <QDBusConnectionInterface>
#include <QDir>
#include <QFileInfo>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using AgentTest = AgentWorld;

TEST_F(AgentTest, RingsEachAlarmOnceAcrossStopsAndKills) {
    NotificationServer server(session.busAddress());
    const Moment begin = soon(2s);
    std::vector<Moment> alarms;
    for (int i = 0; i < 10; ++i) {
        alarms.push_back(begin + i / 2 * 1s);
        save(showAt(QString::number(i), alarms.back()));
    }
    const auto rang = [&server](std::size_t count) {
        return waitFor([&] { return server.shown.size() >= count; });
    };
    start();
    EXPECT_TRUE(rang(2));
    send(SIGSTOP);
    EXPECT_TRUE(waitUntil(alarms[3]));
    send(SIGCONT);
    EXPECT_TRUE(rang(4));
    kill();
    EXPECT_TRUE(waitUntil(alarms[5]));
    start();
    EXPECT_TRUE(rang(6));
    kill();
    start();
    EXPECT_TRUE(rang(10));
    // Whatever would ring again does so before this one.
    kill();
    start();
    save(showAt(u"10"_s, soon(1s)));
    EXPECT_TRUE(rang(11));
    QStringList titles = server.titles();
    EXPECT_EQ(titles.takeLast(), u"10"_s);
    titles.sort();
    EXPECT_EQ(titles.join(QString()), u"0123456789"_s);
    for (const NotificationServer::Shown& shown : server.shown) {
        const auto number = shown.title.toUInt();
        EXPECT_TRUE(number >= alarms.size() || shown.at >= alarms[number]) << number << " is early";
    }
}

TEST_F(AgentTest, WaitsForAServerAndFollowsTheCalendar) {
    const Moment alarm = soon(-120s);
    CalendarEvent late = showAt(u"<late>"_s, alarm);
    late.startDate = alarm;
    late.url = QUrl(kScheme + u"://c1"_s);
    save(late);
    start();
    {
        NotificationServer dies(session.busAddress());
        dies.answers = false;
        EXPECT_TRUE(waitFor([&] { return !dies.shown.empty(); }));
    }
    NotificationServer server(session.busAddress());
    EXPECT_TRUE(waitFor([&] { return !server.shown.empty(); }));
    EXPECT_TRUE(server.shown[0].text.contains(u"Began 2 min ago"_s)) << server.shown[0].text.toStdString();
    EXPECT_FALSE(server.shown[0].actions.contains(u"remind"_s));

    // Moved by the guide while the agent runs.
    save(showAt(u"moved"_s, clock.now() + 1h));
    CalendarEvent moved = shows().back();
    moved.startDate = soon(1s) + 10min;
    save(moved);
    EXPECT_TRUE(waitFor([&] { return server.shown.size() == 2; }));
    EXPECT_TRUE(server.shown[1].text.contains(u"Starts in 10 min"_s));
}

TEST_F(AgentTest, ItsActionsOpenTheGuideAndRemind) {
    NotificationServer server(session.busAddress());
    SessionProgram guide(session.busAddress(), u"net.quellin.Guide"_s, u"/net/quellin/Guide"_s);
    const Moment alarm = soon(0s);
    CalendarEvent event = showAt(u"a"_s, alarm);
    event.url = QUrl(kScheme + u"://c1234567890abcdef1234567890abcdef"_s);
    save(event);
    EventLoopQueues queues;
    SessionAlarmRinging::Options options;
    options.playableChannels = session.path("data") + u"/quellin-guide/playable-channels.txt"_s;
    SessionAlarmRinging ringing(queues, std::nullopt, options);
    ringing.setPlayableChannels({u"Other\nOne"_s, event.location});
    EXPECT_TRUE(waitFor([&] { return QFile::exists(options.playableChannels); }));
    queues.shutDown();
    start();
    ASSERT_TRUE(waitFor([&] { return !server.shown.empty(); }));
    EXPECT_EQ(server.shown[0].actions, (QStringList{u"default"_s, u"Open"_s, u"open"_s, u"Open"_s, u"play"_s,
                                                    u"Play"_s, u"remind"_s, u"Remind me at the start"_s}));
    server.choose(u"play"_s);
    ASSERT_TRUE(waitFor([&] { return !guide.calls.empty(); }));
    EXPECT_EQ(guide.calls[0].arguments().value(0).toStringList(),
              QStringList(event.url->toString() + u"/play"_s));
    guide.calls.clear();
    server.choose(u"remind"_s);
    server.choose(u"open"_s);
    ASSERT_TRUE(waitFor([&] { return !guide.calls.empty(); }));
    EXPECT_EQ(guide.calls[0].member(), u"Open"_s);
    EXPECT_EQ(guide.calls[0].arguments().value(0).toStringList(), QStringList(event.url->toString()));
    EXPECT_EQ(qdbus_cast<QVariantMap>(guide.calls[0].arguments().value(1)),
              (QVariantMap{{u"activation-token"_s, u"token-1"_s}}));
    kill();
    // The show comes earlier, its alarm at the same time as before.
    event = shows().front();
    event.startDate = soon(1s);
    event.alarmOffsets = {std::chrono::floor<std::chrono::seconds>(alarm - event.startDate)};
    save(event);
    start();
    ASSERT_TRUE(waitFor([&] { return server.shown.size() == 2; }));
    EXPECT_GE(server.shown[1].at, event.startDate);
}

TEST_F(AgentTest, OnlyOneRunsUntilItIsToldToQuit) {
    const NotificationServer server(session.busAddress());
    save(showAt(u"a"_s, soon(0s)));
    start();
    ASSERT_TRUE(waitFor([&] { return !server.shown.empty(); }));
    QProcess second;
    second.setProcessEnvironment(agent.processEnvironment());
    second.start(agent.program(), QStringList());
    EXPECT_TRUE(second.waitForFinished(60'000));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(agent.state(), QProcess::Running);
    QDBusConnection bus = server.bus;
    bus.send(QDBusMessage::createMethodCall(u"net.quellin.GuideAgent"_s, u"/net/quellin/GuideAgent"_s,
                                            u"net.quellin.GuideAgent"_s, u"Quit"_s));
    EXPECT_TRUE(waitFor([this] { return agent.state() == QProcess::NotRunning; }));
    EXPECT_EQ(agent.exitStatus(), QProcess::NormalExit);
}

/// Of all threads.
long wakeUps(qint64 process) {
    long sum = 0;
    const QString tasks = u"/proc/%1/task/"_s.arg(process);
    for (const QString& task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(tasks + task + u"/status"_s);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith("voluntary_ctxt_switches:")) {
                sum += line.mid(line.indexOf(':') + 1).trimmed().toLong();
            }
        }
    }
    return sum;
}

/// In kilobytes.
long ownMemory(qint64 process) {
    QFile file(u"/proc/%1/smaps_rollup"_s.arg(process));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Private_Dirty:")) {
            return line.mid(line.indexOf(':') + 1).trimmed().split(' ').first().toLong();
        }
    }
    return 0;
}

TEST_F(AgentTest, IsSmallAndSleepsBetweenAlarms) {
    const NotificationServer server(session.busAddress());
    std::vector<EventChange> changes;
    const QString calendar = store.defaultCalendarForNewEvents().value_or(EventCalendar{}).identifier;
    for (int i = 0; i < 500; ++i) {
        CalendarEvent event = showAt(QString::number(i), clock.now() + 1h + i * 15min);
        event.calendar = calendar;
        changes.emplace_back(SaveEvent{event});
    }
    store.apply(changes);
    save(showAt(u"first"_s, soon(0s)));
    start();
    ASSERT_TRUE(waitFor([&] { return !server.shown.empty(); }));
    // It is idle once a second has passed in which it did not wake.
    long before = -1;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            const long last = std::exchange(before, wakeUps(agent.processId()));
            QTest::qWait(1'000);
            return last == before;
        },
        60'000));
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    EXPECT_GT(ownMemory(agent.processId()), 0);
    EXPECT_LT(ownMemory(agent.processId()), 4'096);
#endif
    QFile maps(u"/proc/%1/maps"_s.arg(agent.processId()));
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    const QByteArray libraries = maps.readAll();
    for (const char* library : {"libQt6Gui", "libQt6Multimedia", "libcurl", "libxml2"}) {
        EXPECT_FALSE(libraries.contains(library)) << library;
    }
}

class DesktopAgentTest : public AgentWorld {
  protected:
    DesktopAgentTest()
        : AgentWorld(true) {}
};

TEST_F(DesktopAgentTest, IsSilentWhereTheDesktopRings) {
    EDSEventStore desktop(session.busAddress(), kScheme, clock);
    const NotificationServer server(session.busAddress());
    std::optional<SessionProgram> other;
    other.emplace(session.busAddress(), u"org.gnome.Evolution-alarm-notify"_s, u"/org/gnome"_s);
    ASSERT_TRUE(save(desktop, showAt(u"silent"_s, soon(0s))).isDone());
    start();
    const QString record = session.path("data") + u"/quellin-guide/rung-alarms.txt"_s;
    EXPECT_TRUE(waitFor([&] { return QFile::exists(record); })) << "it counts as rung";
    other.reset();
    ASSERT_TRUE(save(desktop, showAt(u"loud"_s, soon(1s))).isDone());
    EXPECT_TRUE(waitFor([&] { return !server.shown.empty(); }));
    EXPECT_EQ(server.titles(), QStringList(u"loud"_s));
}

/// The guide of this process writes into the folders of the agent's session.
void enterSession(const QProcess& agent) {
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
        qputenv(name, agent.processEnvironment().value(QString::fromLatin1(name)).toLocal8Bit());
    }
}

TEST_F(AgentTest, UpdatesAreStartedBySystemd) {
    enterSession(agent);
    EventLoopQueues queues;
    const SessionProgram guide(session.busAddress(), u"org.example.Guide"_s, u"/org/example"_s);
    SessionUpdates updates(queues, guide.bus, QStringLiteral(QUELLIN_SOURCE_DATA) + u"/session"_s,
                           u"/opt/guide"_s);
    const auto state = [&] {
        std::optional<BackgroundUpdates::State> now;
        updates.state({[&](BackgroundUpdates::State answer) { now = answer; }});
        EXPECT_TRUE(waitFor([&] { return now.has_value(); }));
        return now;
    };
    const auto set = [&](bool on) {
        std::optional<bool> isDone;
        updates.setOn(on, {[&](bool done) { isDone = done; }});
        EXPECT_TRUE(waitFor([&] { return isDone.has_value(); }));
        return isDone == true;
    };
    EXPECT_EQ(state(), BackgroundUpdates::State::Unavailable) << "no systemd in this session";
    SessionProgram systemd(session.busAddress(), u"org.freedesktop.systemd1"_s, u"/org/freedesktop"_s);
    EXPECT_EQ(state(), BackgroundUpdates::State::Off);
    EXPECT_TRUE(set(true));
    EXPECT_EQ(state(), BackgroundUpdates::State::On);
    EXPECT_TRUE(set(false));
    EXPECT_EQ(state(), BackgroundUpdates::State::Off);
    QStringList calls;
    for (const QDBusMessage& call : systemd.calls) {
        calls << call.member() + u' ' + call.arguments().value(0).toString();
    }
    const QString timer = u"quellin-guide-update.timer"_s;
    EXPECT_EQ(calls,
              QStringList({u"Reload "_s, u"StartUnit "_s + timer, u"StopUnit "_s + timer, u"Reload "_s}))
        << "systemd knows the timer when it starts it, and ends it while it knows it";
    queues.shutDown();
}

TEST_F(DesktopAgentTest, IsSwitchedOnAndOffByTheGuide) {
    enterSession(agent);
    const SessionProgram watcher(session.busAddress(), u"org.example.Watcher"_s, u"/org/example"_s);
    const auto isRunning = [&watcher] {
        return watcher.bus.interface()->isServiceRegistered(u"net.quellin.GuideAgent"_s).value();
    };
    EventLoopQueues queues;
    SessionAlarmRinging ringing(queues, watcher.bus,
                                {.templates = QStringLiteral(QUELLIN_SOURCE_DATA) + u"/session"_s,
                                 .programs = QFileInfo(QStringLiteral(QUELLIN_AGENT)).path(),
                                 .playableChannels = {}});
    const auto set = [&](bool on) {
        std::optional<bool> isDone;
        std::optional<AlarmRingingState> state;
        ringing.setOn(on, {[&](bool done) { isDone = done; }});
        ringing.state({[&](const AlarmRingingState& now) { state = now; }});
        EXPECT_TRUE(waitFor([&] { return state.has_value(); }));
        return isDone == true && state && state->isOn == on;
    };
    EXPECT_TRUE(set(true));
    EXPECT_TRUE(waitFor(isRunning)) << "the bus starts it";
    EXPECT_TRUE(set(true));
    EXPECT_TRUE(set(false));
    EXPECT_TRUE(waitFor([&] { return !isRunning(); }));
    queues.shutDown();
}

} // namespace
} // namespace guide::test
