#include "alarms/AlarmMinutes.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace guide {
namespace {

TEST(AlarmMinutes, SnapToTheScale) {
    const struct {
        const char* name;
        double minutes;
        std::optional<long long> normalized;
    } cases[] = {
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
    for (const auto& each : cases) {
        EXPECT_EQ(normalizedMinutes(each.minutes), each.normalized) << each.name;
    }
}

} // namespace
} // namespace guide
