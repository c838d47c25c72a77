#include "app/AlarmUpdater.h"

#include "fakes/FakeApplicationState.h"
#include "fakes/FakeShowSources.h"
#include "fakes/ManualQueues.h"
#include "platform/memory/ManualClock.h"
#include "platform/memory/MemoryUserDefaults.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

TEST(AlarmUpdaterTest, MarksImmediatelyAndSynchronisesOnTheMainQueue) {
    ManualClock clock;
    ManualQueues queues(clock);
    test::FakeAlarms alarms;
    FakeApplicationState state;
    MemoryUserDefaults defaults;
    AlarmUpdater updater(alarms, queues.mainQueue(), state, defaults);
    updater.listingsReplaced();
    EXPECT_FALSE(alarms.isSynchronized());
    EXPECT_EQ(alarms.syncs, 0);
    queues.runAll();
    EXPECT_EQ(alarms.syncs, 1);
    EXPECT_EQ(defaults.synchronizeCount(), 0) << "in the foreground";
    state.state = ApplicationState::Background;
    updater.listingsReplaced();
    queues.runAll();
    EXPECT_EQ(alarms.syncs, 2);
    EXPECT_EQ(defaults.synchronizeCount(), 1);
}

} // namespace
} // namespace guide
