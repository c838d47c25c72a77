#include "platform/linux/LinuxBackgroundTasks.h"

#include "fakes/ManualQueues.h"
#include "platform/linux/LinuxClock.h"
#include "platform/queues/ThreadedQueues.h"

#include <gtest/gtest.h>
#include <string>
#include <thread>

using namespace std::chrono_literals;

namespace guide {
namespace {

TEST(LinuxBackgroundTasksTest, ExpiresLongTasksOnce) {
    ManualClock clock;
    ManualQueues queues(clock);
    LinuxBackgroundTasks tasks(queues, 1min);
    std::string expired;
    tasks.endBackgroundTask(tasks.beginBackgroundTask([&] { expired += "ended in time "; }));
    const BackgroundTaskId task = tasks.beginBackgroundTask([&] { expired += "once "; });
    clock.advance(59s);
    queues.runAll();
    EXPECT_EQ(expired, "");
    clock.advance(1s);
    queues.runAll();
    clock.advance(10min);
    queues.runAll();
    EXPECT_EQ(expired, "once ");
    tasks.endBackgroundTask(task);
    tasks.endBackgroundTask(kBackgroundTaskInvalid);
}

TEST(LinuxClockTest, ContinuesFromTheGivenMoment) {
    const Moment start = std::chrono::sys_days(std::chrono::year(2025) / 6 / 30) + 20h;
    const LinuxClock clock(start);
    EXPECT_LT(clock.now() - start, 10s);
    const Moment before = clock.now();
    std::this_thread::sleep_for(5ms);
    EXPECT_GE(clock.now() - before, 4ms);
    const auto system = std::chrono::system_clock::now();
    EXPECT_LT(std::chrono::abs(LinuxClock().now() - system), 10s);
}

} // namespace
} // namespace guide
