#include "sources/NetworkActivity.h"

#include "fakes/ManualQueues.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

TEST(NetworkActivityTest, IndicatorFollowsTheFirstAndTheLastTransfer) {
    ManualClock clock;
    ManualQueues queues(clock);
    std::vector<bool> shown;
    NetworkActivity activity(queues, [&](bool visible) {
        EXPECT_TRUE(ManualQueues::isCurrent(queues.mainQueue()));
        shown.push_back(visible);
    });
    activity.stopNetworkActivity();
    activity.startNetworkActivity();
    activity.startNetworkActivity();
    activity.stopNetworkActivity();
    queues.runAll();
    EXPECT_EQ(shown, std::vector{true});
    activity.stopNetworkActivity();
    queues.runAll();
    EXPECT_EQ(shown, (std::vector{true, false}));
    activity.stopNetworkActivity();
    activity.startNetworkActivity();
    queues.runAll();
    EXPECT_EQ(shown, (std::vector{true, false, true})) << "a stop without a start does not count";
}

} // namespace
} // namespace guide
