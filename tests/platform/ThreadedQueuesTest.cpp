#include "platform/ThreadedQueues.h"

#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <latch>

using namespace std::chrono_literals;

namespace guide {
namespace {

constexpr auto kNotYet = 30ms;

struct ThreadedQueuesTest : testing::Test {
    ThreadedQueues queues{[] {}};
    std::shared_ptr<DispatchQueue> serial = queues.makeQueue("serial", QueueKind::Serial);
    std::shared_ptr<DispatchQueue> concurrent = queues.makeQueue("concurrent", QueueKind::Concurrent);
};

TEST_F(ThreadedQueuesTest, SyncRunsOnTheCallersThreadAfterWhatCameBefore) {
    std::string log;
    const std::thread::id caller = std::this_thread::get_id();
    serial->async([&] {
        log += 'a';
        EXPECT_NE(std::this_thread::get_id(), caller);
    });
    serial->async([&] { log += 'b'; });
    serial->sync([&] {
        serial->async([&] { log += 'd'; });
        log += 'c';
        EXPECT_EQ(std::this_thread::get_id(), caller);
        serial->assertCurrent();
    });
    serial->sync([] {});
    EXPECT_EQ(log, "abcd");
}

TEST_F(ThreadedQueuesTest, BarrierRunsAloneAndWhatComesAfterWaitsForIt) {
    std::latch readersMeet(2);
    std::promise<void> open;
    const std::shared_future<void> opened = open.get_future().share();
    std::atomic<int> readers = 0;
    DispatchGroup group;
    for (int i = 0; i < 2; ++i) {
        group.async(*concurrent, [&] {
            readersMeet.arrive_and_wait();
            opened.wait();
            ++readers;
        });
    }
    readersMeet.wait();
    bool barrierRan = false;
    concurrent->asyncBarrier([&] {
        EXPECT_EQ(readers, 2);
        barrierRan = true;
    });
    group.async(*concurrent, [&] { EXPECT_TRUE(barrierRan); });
    auto lateReader =
        std::async(std::launch::async, [&] { concurrent->sync([&] { EXPECT_TRUE(barrierRan); }); });
    EXPECT_EQ(lateReader.wait_for(kNotYet), std::future_status::timeout);
    open.set_value();
    lateReader.wait();
    EXPECT_TRUE(group.wait());
}

TEST_F(ThreadedQueuesTest, AReaderMayReadAgainWhileABarrierWaits) {
    bool ran = false;
    concurrent->sync([&] {
        concurrent->asyncBarrier([] {});
        concurrent->sync([&] { ran = true; });
    });
    EXPECT_TRUE(ran);
}

TEST_F(ThreadedQueuesTest, SyncNeedsNoWorker) {
    const unsigned workers = WorkerPool::defaultAtWork();
    std::promise<void> open;
    const std::shared_future<void> opened = open.get_future().share();
    std::latch busy(workers);
    for (unsigned i = 0; i < workers; ++i) {
        queues.globalQueue(QueuePriority::Default).async([&] {
            busy.count_down();
            opened.wait();
        });
    }
    busy.wait();
    bool ran = false;
    serial->sync([&] { ran = true; });
    EXPECT_TRUE(ran);
    // Another class has workers of its own.
    DispatchGroup group;
    group.async(queues.globalQueue(QueuePriority::Background), [] {});
    EXPECT_TRUE(group.wait(10s));
    open.set_value();
    queues.shutDown();
}

TEST_F(ThreadedQueuesTest, BlockedWorkersAreReplaced) {
    DispatchQueue& global = queues.globalQueue(QueuePriority::Default);
    std::function<void(int)> descend = [&](int depth) {
        if (depth > 0) {
            DispatchGroup group;
            group.async(global, [&, depth] { descend(depth - 1); });
            EXPECT_TRUE(group.wait(20s));
        }
    };
    descend(40);
}

TEST_F(ThreadedQueuesTest, SuspensionsNestAndHoldBackEverything) {
    auto first = serial->suspend();
    auto second = serial->suspend();
    DispatchGroup group;
    group.async(*serial, [] {});
    auto synced = std::async(std::launch::async, [&] { serial->sync([] {}); });
    first.release();
    EXPECT_FALSE(group.wait(kNotYet));
    EXPECT_EQ(synced.wait_for(0ms), std::future_status::timeout);
    SuspensionToken moved = std::move(second);
    second.release(); // NOLINT(bugprone-use-after-move): a token that was moved from holds nothing
    EXPECT_FALSE(group.wait(kNotYet));
    moved = {};
    EXPECT_TRUE(group.wait(10s));
    synced.wait();
}

TEST_F(ThreadedQueuesTest, DelayedBlocksKeepTheirTimesAndOrder) {
    const auto start = std::chrono::steady_clock::now();
    std::string log;
    std::promise<void> done;
    serial->asyncAfter(60ms, [&] {
        log += 'c';
        done.set_value();
    });
    serial->asyncAfter(20ms, [&] { log += 'a'; });
    serial->asyncAfter(20ms, [&] { log += 'b'; });
    done.get_future().wait();
    EXPECT_GE(std::chrono::steady_clock::now() - start, 60ms);
    serial->sync([&] { EXPECT_EQ(log, "abc"); });
}

TEST_F(ThreadedQueuesTest, ShutDownReleasesWhatHasNotBegunAndEveryoneWhoWaits) {
    auto screen = std::make_shared<SuspensionToken>(concurrent->suspend());
    const std::weak_ptr<SuspensionToken> token = screen;
    queues.mainQueue().async([screen = std::move(screen)] {});

    std::promise<void> open;
    std::promise<void> begun;
    std::atomic<int> ended = 0;
    bool dropped = true;
    serial->async([&] {
        begun.set_value();
        open.get_future().wait();
        // Both would never return if the end left anybody waiting.
        DispatchGroup group;
        group.async(*concurrent, [&] { dropped = false; });
        EXPECT_TRUE(group.wait());
        concurrent->sync([&] { ++ended; });
    });
    begun.get_future().wait();
    serial->async([&] { dropped = false; });
    serial->asyncAfter(1h, [&] { dropped = false; });
    auto caller = std::async(std::launch::async, [&] { serial->sync([&] { ++ended; }); });
    std::thread opener([&] {
        std::this_thread::sleep_for(kNotYet);
        open.set_value();
    });
    queues.shutDown();
    opener.join();
    caller.wait();
    EXPECT_EQ(ended, 2);
    EXPECT_TRUE(token.expired());

    const auto late = std::make_shared<int>();
    queues.makeQueue("late", QueueKind::Serial)->async([late, &dropped] { dropped = false; });
    serial->async([late, &dropped] { dropped = false; });
    queues.mainQueue().async([late, &dropped] { dropped = false; });
    EXPECT_EQ(late.use_count(), 1);
    EXPECT_TRUE(dropped);
}

TEST_F(ThreadedQueuesTest, AQueueThatNobodyHoldsFinishesItsWork) {
    std::promise<void> done;
    serial->async([&] { done.set_value(); });
    serial.reset();
    done.get_future().wait();
    queues.shutDown();
}

using ThreadedQueuesDeathTest = ThreadedQueuesTest;

TEST_F(ThreadedQueuesDeathTest, MisuseEndsTheProcessInsteadOfHanging) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(serial->assertCurrent(), "queue serial: not the queue");
    EXPECT_DEATH(serial->sync([&] { concurrent->assertCurrent(); }), "queue concurrent: not the queue");
    EXPECT_DEATH(serial->sync([&] { serial->sync([] {}); }), "sync from a block of the same queue");
    EXPECT_DEATH(concurrent->sync([&] { concurrent->syncBarrier([] {}); }), "barrier waited for");
    EXPECT_DEATH(queues.mainQueue().sync([] {}), "queue main: waited for");
    EXPECT_DEATH(std::thread([&] { queues.mainQueue().assertCurrent(); }).join(),
                 "queue main: not the queue");
}

} // namespace
} // namespace guide
