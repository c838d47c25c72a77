#include "core/Settings.h"

#include "platform/Moment.h"
#include "platform/memory/MemoryUserDefaults.h"

#include <gtest/gtest.h>
#include <limits>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(SettingsTest, CountIsTheLowByte) {
    MemoryUserDefaults defaults;
    const Settings settings(defaults);
    EXPECT_EQ(settings.showCount(), 4);
    for (const auto& [stored, count] : {std::pair{7, 7}, {0, 4}, {256, 4}, {257, 1}, {-1, 255}}) {
        defaults.setInteger(u"currently_show_count"_s, stored);
        EXPECT_EQ(settings.showCount(), count) << stored;
    }
}

TEST(SettingsTest, IntervalIsInWholeSeconds) {
    MemoryUserDefaults defaults;
    const Settings settings(defaults);
    EXPECT_EQ(settings.automaticUpdateInterval(), 86'400s);
    defaults.setInteger(u"data_update"_s, 3'600);
    EXPECT_EQ(settings.automaticUpdateInterval(), 3'600s);
    defaults.setDouble(u"data_update"_s, 1.9);
    EXPECT_EQ(settings.automaticUpdateInterval(), 1s);
    defaults.setDouble(u"data_update"_s, std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(settings.automaticUpdateInterval(), 86'400s);
    defaults.setInteger(u"data_update"_s, std::numeric_limits<std::int64_t>::max());
    EXPECT_LT(Moment{} + settings.automaticUpdateInterval(), Moment::max());
}

} // namespace
} // namespace guide
