#include "parsers/markers/ZoneClock.h"

#include "parsers/ShowJSON.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace std::chrono_literals;

std::string utc(ZoneClock& clock, QDate date, std::chrono::minutes time) {
    const auto moment = clock.momentAt(date, time);
    return moment ? isoMoment(*moment).toStdString() : "none";
}

TEST(ZoneClock, ResolvesTimesAroundClockChanges) {
    ZoneClock prague(QTimeZone("Europe/Prague"));
    const struct {
        const char* name;
        QDate date;
        std::chrono::minutes time;
        const char* expected;
    } rows[] = {
        {"the day before the spring change", {2026, 3, 28}, 2h + 30min, "2026-03-28T01:30:00Z"},
        {"just before the gap", {2026, 3, 29}, 1h + 59min, "2026-03-29T00:59:00Z"},
        {"in the gap: forward by the gap", {2026, 3, 29}, 2h + 30min, "2026-03-29T01:30:00Z"},
        {"after the gap", {2026, 3, 29}, 3h, "2026-03-29T01:00:00Z"},
        {"across the gap from the day before", {2026, 3, 28}, 27h, "2026-03-29T01:00:00Z"},
        {"the day after", {2026, 3, 30}, 2h + 30min, "2026-03-30T00:30:00Z"},
        {"before the repeated hour", {2026, 10, 25}, 1h + 30min, "2026-10-24T23:30:00Z"},
        {"repeated: the first", {2026, 10, 25}, 2h + 30min, "2026-10-25T00:30:00Z"},
        {"after the repeated hour", {2026, 10, 25}, 3h, "2026-10-25T02:00:00Z"},
        {"no date", {2026, 2, 30}, 1h, "none"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(utc(prague, row.date, row.time), row.expected) << row.name;
    }
}

TEST(ZoneClock, OffsetsMatchTheZoneOnBothSidesOfEveryChange) {
    for (const char* name : {"Europe/Prague", "Europe/Bucharest", "Africa/Casablanca", "UTC", "Etc/GMT+5"}) {
        const QTimeZone zone(name);
        ZoneClock clock(zone);
        const Moment start = std::chrono::sys_days{std::chrono::year{2035} / 1 / 1};
        // Forwards, jumping back at times, into years beyond the table of transitions.
        for (int i = 0; i < 4 * 365 * 24; ++i) {
            const Moment moment = start + std::chrono::hours(i % 7 == 0 ? i / 2 : i);
            for (const Moment near : {moment - 1ms, moment}) {
                const QDateTime time =
                    QDateTime::fromMSecsSinceEpoch(near.time_since_epoch().count(), Qt::UTC);
                ASSERT_EQ(clock.offsetAt(near).count(), zone.offsetFromUtc(time))
                    << name << ' ' << isoMoment(near).toStdString();
            }
        }
    }
}

TEST(ZoneClock, ReadsTimesOfDay) {
    EXPECT_EQ(timeOfDay("00:00"), 0min);
    EXPECT_EQ(timeOfDay("9:05"), 9h + 5min);
    EXPECT_EQ(timeOfDay("23:59"), 23h + 59min);
    for (const char* text :
         {"", ":", "24:00", "12:60", "12:5", "12:345", "1a:00", " 9:00", "12.30", "-1:00"}) {
        EXPECT_FALSE(timeOfDay(text)) << text;
    }
}

} // namespace
} // namespace guide
