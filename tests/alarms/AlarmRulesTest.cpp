#include "alarms/AlarmMinutes.h"
#include "alarms/AlarmText.h"
#include "alarms/Favorites.h"
#include "alarms/PendingAlarms.h"
#include "alarms/SilentHours.h"
#include "fakes/FakeDevice.h"
#include "platform/memory/MemoryKeyValueStore.h"

#include <QDateTime>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(AlarmMinutes, SnapToTheScale) {
    const std::tuple<const char*, double, std::optional<long long>> cases[] = {
        {"on the scale", 15, 15},
        {"rounds onto the scale", 4.6, 5},
        {"a half rounds away from zero", 0.5, 1},
        {"a negative half rounds away from zero", -0.5, {}},
        {"less than half below zero", -0.4, 0},
        {"nearer to the lower point", 6.9, 5},
        {"midway goes up", 7.5, 10},
        {"just below midway goes down", 7.4, 5},
        {"four is midway between three and five", 4, 5},
        {"far below zero", -7, {}},
        {"just short of the end", 119.4, 120},
        {"midway between the last two", 90, 120},
        {"the end itself", 120, 120},
        {"beyond the end only rounded", 133.5, 134},
        {"beyond every integer", std::numeric_limits<double>::infinity(), 9223372036854774784},
        {"not a number", std::nan(""), {}},
    };
    for (const auto& [name, minutes, normalized] : cases) {
        EXPECT_EQ(normalizedMinutes(minutes), normalized) << name;
    }
}

TEST(AlarmText, TellsLeadTimeAndRepetition) {
    const auto rule = [](std::optional<int> minutes, std::optional<bool> previouslyShown) {
        return Favorite{u"Title"_s, minutes, {}, previouslyShown};
    };
    const struct {
        Favorite rule;
        std::optional<int> alarm;
        QString text;
    } cases[] = {
        {rule({}, {}), {}, u"None"_s},
        {rule({}, {}), 0, u"At beginning of the show"_s},
        {rule({}, {}), 10, u"10min before"_s},
        {rule({}, {}), 90, u"90min before"_s},
        {rule({}, {}), 60, u"1h before"_s},
        {rule(120, {}), {}, u"2h before (any broadcast)"_s},
        {rule(5, false), 5, u"5min before (every premiere)"_s},
        {rule(0, true), {}, u"At beginning of the show (every replay)"_s},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(leadTimeText(&each.rule, each.alarm), each.text);
    }
    EXPECT_EQ(leadTimeText(nullptr, 2), u"2min before"_s);
}

TEST(SilentPeriod, AllowsItsEndsAndEverythingOutside) {
    const std::tuple<const char*, int, int, int, bool> cases[] = {
        {"at the beginning", 0, 420, 0, true},
        {"just inside", 0, 420, 1, false},
        {"just before the end", 0, 420, 419, false},
        {"at the end", 0, 420, 420, true},
        {"noon, across midnight", 1380, 420, 720, false},
        {"midnight, across midnight", 1380, 420, 0, false},
        {"empty period", 600, 600, 300, false},
    };
    for (const auto& [name, from, to, at, allowed] : cases) {
        EXPECT_EQ((SilentPeriod{from, to}.mayBeAlarmedAt(at)), allowed) << name;
    }
    const std::tuple<const char*, int, int, int, bool> across[] = {
        {"at the beginning", 1380, 420, 1380, true},
        {"just inside", 1380, 420, 1381, false},
        {"midnight", 1380, 420, 0, false},
        {"just before the end", 1380, 420, 419, false},
        {"at the end", 1380, 420, 420, true},
        {"noon", 1380, 420, 720, true},
        {"within a day as without it", 60, 420, 300, false},
        {"empty as without it", 600, 600, 300, false},
        {"up to midnight", 1380, 0, 0, true},
    };
    for (const auto& [name, from, to, at, allowed] : across) {
        EXPECT_EQ((SilentPeriod{from, to, true}.mayBeAlarmedAt(at)), allowed) << name;
    }
}

TEST(SilentHours, ReadStoredDatesInTheDevicesZone) {
    MemoryKeyValueStore store;
    FakeDevice device;
    device.zone = QTimeZone("Europe/Prague");
    const auto hours = [&] { return SilentHours(store, device); };
    const auto at = [](const char* utc) {
        return Moment(std::chrono::milliseconds(
            QDateTime::fromString(QString::fromLatin1(utc), Qt::ISODate).toMSecsSinceEpoch()));
    };
    const Moment night = at("2026-11-21T04:00:00Z");
    EXPECT_TRUE(hours().mayBeAlarmedAt(night)) << "the feature is off";

    store.setValue(u"noAlarmsSchedule"_s, true);
    EXPECT_FALSE(hours().mayBeAlarmedAt(night)) << "05:00 is in the default period";
    EXPECT_TRUE(hours().mayBeAlarmedAt(at("2026-11-21T06:00:00Z"))) << "07:00 is its end";

    store.setValue(u"noAlarmsSchedule.0"_s,
                   QCborValue(QDateTime::fromString(u"2026-07-01T20:00:00Z"_s, Qt::ISODate)));
    store.setValue(u"noAlarmsSchedule.1"_s,
                   QCborValue(QDateTime::fromString(u"2026-07-01T21:30:00Z"_s, Qt::ISODate)));
    EXPECT_TRUE(hours().mayBeAlarmedAt(night));
    EXPECT_FALSE(hours().mayBeAlarmedAt(at("2026-11-21T21:30:00Z")))
        << "22:30 in Prague, between 22:00 and 23:30";

    setSilentHoursTo(store, at("2026-11-21T05:00:00Z"));
    EXPECT_FALSE(hours().mayBeAlarmedAt(at("2026-11-21T12:00:00Z"))) << "22:00 to 06:00, all day";
    setSilentHoursAcrossMidnight(store, true);
    EXPECT_TRUE(hours().mayBeAlarmedAt(at("2026-11-21T12:00:00Z")));
    EXPECT_FALSE(hours().mayBeAlarmedAt(night));
    setSilentHoursEnabled(store, false);
    EXPECT_TRUE(hours().mayBeAlarmedAt(night));
}

TEST(FavoritesSnapshotTest, TheFirstRuleOfATitleCounts) {
    const FavoritesSnapshot favorites(
        {{u"Žirafa"_s, 5, {}, {}}, {u"ŽIRAFA"_s, {}, {}, {}}, {u""_s, {}, {}, {}}});
    EXPECT_FALSE(favorites.empty());
    ASSERT_TRUE(favorites.ruleNamed(u"žirafa"_s));
    EXPECT_EQ(favorites.ruleNamed(u"žirafa"_s)->minutes, 5);
    EXPECT_TRUE(favorites.containsFavoriteNamed(QString())) << "an empty title is a rule like any other";
    EXPECT_FALSE(favorites.containsFavoriteNamed(u"Žirafa "_s));
    const FavoritesSnapshot unusual({{u"İstanbul"_s, {}, {}, {}}, {u"\U00010400 x"_s, {}, {}, {}}});
    for (const auto& title : {u"İstanbul"_s, u"i\u0307stanbul"_s, u"İSTANBUL"_s, u"\U00010428 X"_s}) {
        EXPECT_TRUE(unusual.containsFavoriteNamed(title)) << title.toStdString();
    }
    EXPECT_FALSE(FavoritesSnapshot().containsFavoriteNamed(QString()));
}

TEST(AlarmsSnapshotTest, AnEventBelongsToOneBroadcast) {
    const Alphabet latin;
    TVEntry entry(latin);
    entry.setDateTime(Moment(std::chrono::hours(1)));
    const AlarmsSnapshot none;
    EXPECT_EQ(none.alarmedEntry(entry), std::nullopt);
    entry.setIdentificator(u"A"_s);
    const AlarmsSnapshot alarms({{*entry.digest(), 0}});
    EXPECT_EQ(alarms.alarmedEntry(entry), 0);
    entry.setDateTime(Moment(std::chrono::hours(2)));
    EXPECT_EQ(alarms.alarmedEntry(entry), std::nullopt);

    const AlarmsSnapshot silenced({{*entry.digest(), std::nullopt}});
    EXPECT_EQ(silenced.alarmedEntry(entry), std::nullopt);
    EXPECT_EQ(silenced.eventCount(), 1U);
}

} // namespace
} // namespace guide
