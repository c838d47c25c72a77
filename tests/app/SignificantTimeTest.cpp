#include "app/SignificantTime.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace std::chrono_literals;

TEST(SignificantTime, IsDetectedBetweenTwoReadings) {
    const SignificantTime::Reading before{Moment(1000h), QDate(2026, 11, 21), "Europe/Prague", 50h, 20h};
    const auto later = [&](auto change) {
        SignificantTime::Reading reading = before;
        reading.now += 20s;
        reading.sinceStart += 20s;
        reading.awake += 20s;
        change(reading);
        return reading;
    };
    const auto afterSleep = [&](std::chrono::seconds span) {
        return later([span](auto& reading) {
            reading.now += span;
            reading.sinceStart += span;
        });
    };
    const struct {
        const char* name;
        SignificantTime::Reading reading;
        bool significant;
    } cases[] = {
        {"twenty ordinary seconds", later([](auto&) {}), false},
        {"midnight", later([](auto& reading) { reading.date = QDate(2026, 11, 22); }), true},
        {"another zone", later([](auto& reading) { reading.zone = "Europe/Athens"; }), true},
        {"a night's sleep", afterSleep(7h), true},
        {"a short sleep", afterSleep(5s), false},
        {"the clock set forward", later([](auto& reading) { reading.now += 1h; }), true},
        {"the clock set back", later([](auto& reading) { reading.now -= 1h; }), true},
    };
    for (const auto& each : cases) {
        SignificantTime time(before);
        EXPECT_EQ(time.changed(each.reading), each.significant) << each.name;
        EXPECT_FALSE(time.changed(each.reading)) << each.name << ": reported once";
    }
}

} // namespace
} // namespace guide
