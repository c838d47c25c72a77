#include "agent/RingSchedule.h"

#include "agent/RingText.h"
#include "platform/calendar/CalendarUnderTest.h"

#include <algorithm>
#include <map>
#include <random>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

CalendarEvent event(int number, Moment start, std::chrono::minutes lead = 10min) {
    CalendarEvent event = showEvent(u"c%1"_s.arg(number), start);
    event.identifier = u"tv/c%1"_s.arg(number);
    event.alarmOffsets = {-lead};
    return event;
}

/// The addresses of what rings, without their scheme.
QStringList addresses(const RingPlan& plan) {
    QStringList list;
    for (const Ring& ring : plan.due) {
        list << ring.event.names.url.section(u'/', -1);
    }
    return list;
}

/// An agent whose process, clock and calendars are those of the test.
class SimulatedAgent {
  public:
    explicit SimulatedAgent(const std::vector<CalendarEvent>& calendar)
        : m_calendar(calendar) {}

    void read(Moment now) { m_events = ringEvents(m_calendar, kScheme, now); }
    void restart(Moment now) {
        m_rung = RungAlarms::fromText(m_rung.text());
        read(now);
    }
    /// What rings, and when to wake again.
    std::pair<std::vector<Ring>, Moment> wake(Moment now) {
        if (m_events.readAgain <= now) {
            read(now);
        }
        RingPlan plan = ringPlan(m_events, m_rung, now);
        for (const Ring& ring : plan.due) {
            setRung(m_rung, ring);
        }
        return {plan.due, std::min(plan.next.value_or(m_events.readAgain), m_events.readAgain)};
    }
    RungAlarms& rung() { return m_rung; }

  private:
    const std::vector<CalendarEvent>& m_calendar;
    RingEvents m_events;
    RungAlarms m_rung;
};

TEST(RingScheduleTest, InAWeekEachAlarmRingsOnceAndInTime) {
    // Over the night in which summer time ends.
    const Moment begin = std::chrono::sys_days(std::chrono::year(2026) / 10 / 22) + 9h;
    constexpr int kSeeds = 20;
    for (unsigned seed = 0; seed < kSeeds; ++seed) {
        std::mt19937 random(seed);
        const auto upTo = [&random](int most) { return static_cast<int>(random() % unsigned(most + 1)); };
        std::vector<CalendarEvent> calendar;
        for (int i = 0; i < 200; ++i) {
            const std::array<std::chrono::minutes, 5> leads{0min, 5min, 60min, 24h, 24h * 7};
            calendar.push_back(event(i, begin + std::chrono::minutes(upTo(7 * 24 * 60)),
                                     leads[std::size_t(upTo(int(leads.size()) - 1))]));
        }
        SimulatedAgent agent(calendar);
        // The clock that the agent sees is off by this.
        std::chrono::milliseconds error{};
        std::map<QString, std::vector<Moment>> rang;
        Moment real = begin;
        agent.read(real);
        Moment sawUntil = begin - 24h * 8;
        bool isPunctual = false;
        while (real < begin + 24h * 8) {
            const Moment seen = real + error;
            const auto [rings, next] = agent.wake(seen);
            for (const Ring& ring : rings) {
                rang[ring.event.names.url].push_back(seen);
                for (const Moment at : ring.alerts) {
                    EXPECT_LE(at, seen) << "early, seed " << seed;
                    EXPECT_TRUE(at > sawUntil) << "not at the first opportunity, seed " << seed;
                    EXPECT_TRUE(at == seen || !isPunctual) << "late, seed " << seed;
                }
            }
            sawUntil = std::max(sawUntil, seen);
            isPunctual = false;
            Moment wake = next - error;
            switch (upTo(9)) {
            case 0: // It sleeps past the next alarm, but not past the end of its show.
                wake += std::chrono::minutes(upTo(40));
                break;
            case 1:
                agent.restart(seen);
                continue;
            case 2: // The clock is set, which wakes.
                error = std::chrono::minutes(upTo(20) - 10);
                agent.read(real + error);
                continue;
            default:
                isPunctual = true;
                break;
            }
            real = std::max(real, wake);
        }
        EXPECT_EQ(rang.size(), calendar.size()) << "lost, seed " << seed;
        for (const auto& [url, moments] : rang) {
            EXPECT_EQ(moments.size(), 1U) << url.toStdString() << " seed " << seed;
        }
    }
}

TEST(RingScheduleTest, FollowsTheCalendar) {
    // The alarm of the event is at 19:05, the show lasts from 19:15 to 20:00.
    const CalendarEvent usual = event(1, kEvening);
    const auto with = [&usual](const std::function<void(CalendarEvent&)>& change) {
        CalendarEvent event = usual;
        change(event);
        return event;
    };
    const struct {
        const char* name;
        std::vector<CalendarEvent> before;
        std::vector<CalendarEvent> after;
        std::chrono::minutes wake;
        QStringList rings;
        std::chrono::minutes next;
    } cases[] = {
        {"not yet", {}, {usual}, -11min, {}, -10min},
        {"at its time", {}, {usual}, -10min, {u"c1"_s}, 0min},
        {"late, until the end", {}, {usual}, 44min, {u"c1"_s}, 0min},
        {"too late", {}, {usual}, 45min, {}, 0min},
        {"again", {usual}, {usual}, 0min, {}, 0min},
        {"moved to later",
         {usual},
         {with([](auto& e) {
             e.url = QUrl(kScheme + u"://c2"_s);
             e.startDate += 25min;
             e.endDate = *e.endDate + 25min;
         })},
         0min,
         {},
         15min},
        {"moved to earlier", {}, {with([](auto& e) { e.startDate -= 20min; })}, -20min, {u"c1"_s}, 0min},
        {"renamed", {usual}, {with([](auto& e) { e.url = QUrl(kScheme + u"://c2"_s); })}, 0min, {}, 0min},
        {"made again", {usual}, {with([](auto& e) { e.identifier = u"tv/other"_s; })}, 0min, {}, 0min},
        {"in two calendars",
         {},
         {usual, with([](auto& e) { e.identifier = u"other/c1"_s; })},
         0min,
         {u"c1"_s},
         0min},
        {"two alerts, both missed",
         {},
         {with([](auto& e) { e.alarmOffsets = {0s, -10min}; })},
         5min,
         {u"c1"_s},
         0min},
        {"two alerts", {usual}, {with([](auto& e) { e.alarmOffsets = {5min, -10min}; })}, 0min, {}, 5min},
        {"without an end", {}, {with([](auto& e) { e.endDate = {}; })}, 59min, {u"c1"_s}, 0min},
        {"of another program",
         {},
         {with([](auto& e) { e.url = QUrl(u"https://example.org"_s); })},
         0min,
         {},
         0min},
        {"without an alarm", {}, {with([](auto& e) { e.alarmOffsets = {}; })}, 0min, {}, 0min},
    };
    for (const auto& each : cases) {
        SimulatedAgent before(each.before);
        before.read(kEvening - 10min);
        before.wake(kEvening - 10min);
        const Moment now = kEvening + each.wake;
        const RingEvents events = ringEvents(each.after, kScheme, now);
        const RingPlan plan = ringPlan(events, before.rung(), now);
        EXPECT_EQ(addresses(plan), each.rings) << each.name;
        const Moment next = plan.next.value_or(kEvening);
        EXPECT_EQ(next - kEvening, each.next) << each.name;
    }
}

TEST(RingScheduleTest, AReminderFollowsTheStartOfTheShow) {
    std::vector<CalendarEvent> calendar{event(1, kEvening)};
    SimulatedAgent agent(calendar);
    agent.read(kEvening - 10min);
    const auto [rings, next] = agent.wake(kEvening - 10min);
    ASSERT_EQ(rings.size(), 1U);
    agent.rung().setRemindsAtStart(rings[0].event.names, true);
    // The show is later, and the agent is another process.
    calendar[0].url = QUrl(kScheme + u"://c9"_s);
    calendar[0].startDate += 3min;
    calendar[0].alarmOffsets = {-13min};
    agent.restart(kEvening);
    EXPECT_EQ(agent.wake(kEvening).second, kEvening + 3min);
    const RingPlan plan =
        ringPlan(ringEvents(calendar, kScheme, kEvening + 3min), agent.rung(), kEvening + 3min);
    ASSERT_EQ(plan.due.size(), 1U);
    setRung(agent.rung(), plan.due[0]);
    setNotRung(agent.rung(), plan.due[0]);
    EXPECT_EQ(agent.wake(kEvening + 4min).first.size(), 1U) << "it could not be shown";
    calendar[0].startDate += 10min;
    calendar[0].alarmOffsets = {-23min};
    agent.read(kEvening + 13min);
    EXPECT_TRUE(agent.wake(kEvening + 20min).first.empty()) << "a reminder is for once";
}

TEST(RingScheduleTest, FarAlarmsAreReadAgainInTime) {
    const Moment now = kEvening;
    const std::vector<CalendarEvent> calendar{event(1, now + 24h * 20), event(2, now + 24h * 9, 24h * 2),
                                              event(3, now + 2h)};
    const RingEvents events = ringEvents(calendar, kScheme, now);
    ASSERT_EQ(events.events.size(), 1U);
    EXPECT_LT(events.readAgain, now + 24h * 7);
    EXPECT_GT(events.readAgain, now + 24h * 6);
    EXPECT_LT(ringEvents({}, kScheme, now).readAgain, now + 24h * 30) << "nothing is known of later";
}

TEST(RungAlarmsTest, ForgetsTheOldestAndSurvivesDamage) {
    RungAlarms rung;
    const auto names = [](int number) {
        return EventNames{u"tv/%1"_s.arg(number), u"quellin-guide://%1"_s.arg(number)};
    };
    for (int i = 0; i < 5'000; ++i) {
        rung.setRung(names(i), kEvening);
        rung.setRemindsAtStart(names(i), true);
    }
    EXPECT_LT(rung.text().size(), 256 << 10);
    EXPECT_TRUE(rung.hasRung(names(4'999), kEvening));
    EXPECT_FALSE(rung.hasRung(names(4'999), kEvening + 1ms));
    EXPECT_FALSE(rung.hasRung(names(0), kEvening));
    EXPECT_TRUE(rung.remindsAtStart(names(4'999)) && !rung.remindsAtStart(names(0)));

    const QByteArray text = rung.text();
    EXPECT_EQ(RungAlarms::fromText(text).text(), text);
    QByteArray damaged = text;
    damaged.replace(40, 60, "\n\0rung x y\nrung 1\nremind\n\xff");
    EXPECT_TRUE(RungAlarms::fromText(damaged).hasRung(names(4'999), kEvening));
    EXPECT_FALSE(RungAlarms::fromText(text.mid(1)).hasRung(names(4'999), kEvening)) << "another version";
}

TEST(RingTextTest, TellsTheTimeInTheZoneOfTheDevice) {
    // Summer time ends on 25 October 2026 at 1:00 UTC.
    const Moment change = std::chrono::sys_days(std::chrono::year(2026) / 10 / 25) + 1h;
    const struct {
        const char* zone;
        std::chrono::minutes start;
        std::chrono::minutes now;
        QString text;
    } cases[] = {
        {"Europe/Prague", -30min, -40min, u"02:30 · ČT 1 · Starts in 10 min"_s},
        {"Europe/Prague", 30min, -10min, u"02:30 · ČT 1 · Starts in 40 min"_s},
        {"America/New_York", 30min, 30min, u"21:30 · ČT 1 · Starts now"_s},
        {"Europe/Prague", 30min, 42min, u"02:30 · ČT 1 · Began %n min ago"_s},
        {"Europe/Prague", 24h, 0min, u"Mon 02:00 · ČT 1"_s},
    };
    for (const auto& each : cases) {
        const RingEvents events =
            ringEvents({event(1, change + each.start, 24h)}, kScheme, change + each.now - 1h);
        const QString text =
            ringText(events.events.at(0), change + each.now,
                     QLocale(QLocale::English, QLocale::UnitedKingdom), QTimeZone(each.zone));
        EXPECT_EQ(text, QString(each.text).replace(u"%n"_s, u"12"_s)) << text.toStdString();
    }
}

} // namespace
} // namespace guide::test
