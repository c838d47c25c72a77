#include "fakes/ManualQueues.h"

#include "fakes/FakeApplicationState.h"
#include "fakes/FakeBackgroundTasks.h"
#include "fakes/FakeDevice.h"
#include "fakes/FakeHTTPClient.h"
#include "fakes/MemoryKeyValueStore.h"
#include "fakes/MemoryUserDefaults.h"
#include "platform/MainBlock.h"

#include <gtest/gtest-spi.h>

using namespace std::chrono_literals;

namespace guide {
namespace {

struct ManualQueuesTest : testing::Test {
    ManualClock clock;
    ManualQueues queues{clock};
    std::string log;

    Block note(char letter) {
        return [this, letter] { log += letter; };
    }
};

TEST_F(ManualQueuesTest, RunsNothingByItselfAndThenInOrderOfSubmission) {
    const auto first = queues.makeQueue("first", QueueKind::Serial);
    const auto second = queues.makeQueue("second", QueueKind::Concurrent);
    first->async(note('a'));
    second->async([&] {
        log += 'b';
        queues.mainQueue().async(note('e'));
    });
    first->async(note('c'));
    second->asyncBarrier(note('d'));
    EXPECT_EQ(log, "");
    EXPECT_EQ(queues.run("second"), 2U);
    EXPECT_EQ(log, "bd");
    EXPECT_EQ(queues.runAll(), 3U);
    EXPECT_EQ(log, "bdace");
}

TEST_F(ManualQueuesTest, SyncRunsWhatIsPendingBeforeIt) {
    const auto queue = queues.makeQueue("queue", QueueKind::Serial);
    queue->async(note('a'));
    queue->async([&] {
        log += 'b';
        queue->async(note('d'));
    });
    queue->sync(note('c'));
    EXPECT_EQ(log, "abc");
    queues.runAll();
    EXPECT_EQ(log, "abcd");
}

TEST_F(ManualQueuesTest, WhatWouldHangFailsTheTest) {
    const auto queue = queues.makeQueue("queue", QueueKind::Serial);
    auto token = queue->suspend();
    EXPECT_NONFATAL_FAILURE(queue->sync([] {}), "suspended");
    token.release();
    queue->async([&] { EXPECT_NONFATAL_FAILURE(queue->sync([] {}), "would deadlock"); });
    queues.runAll();
    EXPECT_NONFATAL_FAILURE(queues.mainQueue().sync([] {}), "main queue");

    DispatchGroup group;
    token = queue->suspend();
    group.async(*queue, [] {});
    EXPECT_NONFATAL_FAILURE(group.wait(), "would never end");
    EXPECT_FALSE(group.wait(1s));
    token.release();
    EXPECT_TRUE(group.wait());
}

TEST_F(ManualQueuesTest, KnowsTheCurrentQueueThroughSyncAndGroup) {
    const auto outer = queues.makeQueue("outer", QueueKind::Serial);
    const auto inner = queues.makeQueue("inner", QueueKind::Serial);
    queues.mainQueue().assertCurrent();
    outer->async([&] {
        inner->sync([&] {
            inner->assertCurrent();
            outer->assertCurrent();
            EXPECT_NONFATAL_FAILURE(queues.mainQueue().assertCurrent(), "not on the queue main");
        });
        DispatchGroup group;
        group.async(*inner,
                    [&] { EXPECT_NONFATAL_FAILURE(outer->assertCurrent(), "not on the queue outer"); });
        EXPECT_TRUE(group.wait());
    });
    EXPECT_EQ(queues.runAll(), 1U);
}

TEST_F(ManualQueuesTest, DelayedBlocksComeWithTheClock) {
    queues.mainQueue().asyncAfter(200ms, note('b'));
    queues.mainQueue().asyncAfter(100ms, note('a'));
    EXPECT_EQ(queues.runAll(), 0U);
    clock.advance(199ms);
    queues.runAll();
    EXPECT_EQ(log, "a");
    clock.advance(1ms);
    queues.runAll();
    EXPECT_EQ(log, "ab");
}

TEST_F(ManualQueuesTest, ADroppedBlockResumesWhatItHeldSuspended) {
    const auto queue = queues.makeQueue("queue", QueueKind::Serial);
    queues.mainQueue().async([token = std::make_shared<SuspensionToken>(queue->suspend())] {});
    EXPECT_TRUE(queues.suspended("queue"));
    queues.shutDown();
    EXPECT_FALSE(queues.suspended("queue"));
}

} // namespace
} // namespace guide
