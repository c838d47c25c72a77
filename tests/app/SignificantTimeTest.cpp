#include "app/SignificantTime.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace std::chrono_literals;

TEST(SignificantTime, IsNoticedBetweenTwoLooks) {
    const SignificantTime::Look before{Moment(1000h), QDate(2026, 11, 21), "Europe/Prague", 50h, 20h};
    const auto later = [&](auto change) {
        SignificantTime::Look look = before;
        look.now += 20s;
        look.sinceStart += 20s;
        look.awake += 20s;
        change(look);
        return look;
    };
    const struct {
        const char* name;
        SignificantTime::Look look;
        bool significant;
    } cases[] = {
        {"twenty seconds of any evening", later([](auto&) {}), false},
        {"midnight", later([](auto& look) { look.date = QDate(2026, 11, 22); }), true},
        {"another zone", later([](auto& look) { look.zone = "Europe/Athens"; }), true},
        {"a night's sleep", later([](auto& look) {
             look.now += 7h;
             look.sinceStart += 7h;
         }),
         true},
        {"a blink", later([](auto& look) {
             look.now += 5s;
             look.sinceStart += 5s;
         }),
         false},
        {"the clock set forward", later([](auto& look) { look.now += 1h; }), true},
        {"the clock set back", later([](auto& look) { look.now -= 1h; }), true},
    };
    for (const auto& each : cases) {
        SignificantTime time(before);
        EXPECT_EQ(time.changed(each.look), each.significant) << each.name;
        EXPECT_FALSE(time.changed(each.look)) << each.name << ": told once";
    }
}

} // namespace
} // namespace guide
