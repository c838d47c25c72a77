#include "alarms/SilentHours.h"

#include "fakes/FakeDevice.h"
#include "platform/memory/MemoryKeyValueStore.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(SilentPeriod, AllowsItsEndsAndEverythingOutside) {
    const struct {
        const char* name;
        int from, to, at;
        bool allowed;
    } cases[] = {
        {"at the beginning", 0, 420, 0, true},
        {"just inside", 0, 420, 1, false},
        {"just before the end", 0, 420, 419, false},
        {"at the end", 0, 420, 420, true},
        {"noon, across midnight", 1380, 420, 720, false},
        {"midnight, across midnight", 1380, 420, 0, false},
        {"empty period", 600, 600, 300, false},
    };
    for (const auto& each : cases) {
        EXPECT_EQ((SilentPeriod{each.from, each.to}.mayBeAlarmedAt(each.at)), each.allowed) << each.name;
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
}

} // namespace
} // namespace guide
