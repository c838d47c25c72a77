#include "fakes/ManualQueues.h"
#include "platform/queues/ThreadedQueues.h"

#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <latch>

using namespace std::chrono_literals;

namespace guide {
namespace {

constexpr auto kNotYet = 30ms;

/// The two implementations; `pass` lets time pass and runs the blocks that are due.
struct Threaded {
    ThreadedQueues queues{[] {}};

    void pass(std::chrono::milliseconds time, DispatchQueue& queue) {
        std::promise<void> over;
        queue.asyncAfter(time, [&] { over.set_value(); });
        over.get_future().wait();
    }
};

struct Manual {
    ManualClock clock;
    ManualQueues queues{clock};

    void pass(std::chrono::milliseconds time, DispatchQueue&) {
        for (; time > 0ms; time -= 1ms) {
            clock.advance(1ms);
            queues.runAll();
        }
    }
};

template <class Kind>
struct QueuesTest : testing::Test {
    Kind kind;
    std::shared_ptr<DispatchQueue> serial = kind.queues.makeQueue("serial", QueueKind::Serial);
    std::shared_ptr<DispatchQueue> concurrent = kind.queues.makeQueue("concurrent", QueueKind::Concurrent);
    std::string log;

    Block note(char letter) {
        return [this, letter] { log += letter; };
    }
};
using Kinds = testing::Types<Threaded, Manual>;
TYPED_TEST_SUITE(QueuesTest, Kinds);

TYPED_TEST(QueuesTest, SyncRunsOnTheCallingThreadInOrder) {
    const std::thread::id caller = std::this_thread::get_id();
    this->serial->async(this->note('a'));
    this->serial->async(this->note('b'));
    this->serial->sync([&] {
        this->serial->async(this->note('d'));
        this->log += 'c';
        EXPECT_EQ(std::this_thread::get_id(), caller);
    });
    this->serial->sync([] {});
    EXPECT_EQ(this->log, "abcd");
}

TYPED_TEST(QueuesTest, AReaderMayReadAgainWhileABarrierWaits) {
    bool ran = false;
    this->concurrent->sync([&] {
        this->concurrent->asyncBarrier([] {});
        this->concurrent->sync([&] { ran = true; });
    });
    EXPECT_TRUE(ran);
    this->concurrent->sync([] {});
}

TYPED_TEST(QueuesTest, SuspensionsNest) {
    auto first = this->serial->suspend();
    auto second = this->serial->suspend();
    DispatchGroup group;
    group.async(*this->serial, [] {});
    first.release();
    EXPECT_FALSE(group.wait(kNotYet));
    SuspensionToken moved = std::move(second);
    second.release(); // NOLINT(bugprone-use-after-move): a moved-from token holds nothing
    EXPECT_FALSE(group.wait(kNotYet));
    moved = {};
    EXPECT_TRUE(group.wait(10s));
}

TYPED_TEST(QueuesTest, DelayedBlocksKeepTheirOrder) {
    this->serial->asyncAfter(60ms, this->note('c'));
    this->serial->asyncAfter(20ms, this->note('a'));
    this->serial->asyncAfter(20ms, this->note('b'));
    this->serial->sync([&] { EXPECT_EQ(this->log, ""); });
    this->kind.pass(60ms, *this->serial);
    this->serial->sync([&] { EXPECT_EQ(this->log, "abc"); });
}

TYPED_TEST(QueuesTest, ShutDownDropsPendingBlocksAndReleasesCaptures) {
    auto screen = std::make_shared<SuspensionToken>(this->concurrent->suspend());
    const std::weak_ptr<SuspensionToken> token = screen;
    const auto held = std::make_shared<int>();
    this->kind.queues.mainQueue().async([screen = std::move(screen), held, this] { this->log += 'a'; });
    this->concurrent->async([held, this] { this->log += 'b'; });
    this->serial->asyncAfter(1h, [held, this] { this->log += 'c'; });
    this->kind.queues.shutDown();
    EXPECT_TRUE(token.expired());
    this->serial->async([held, this] { this->log += 'd'; });
    this->kind.queues.mainQueue().async([held, this] { this->log += 'e'; });
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_EQ(this->log, "");
}

TYPED_TEST(QueuesTest, AnUnreferencedQueueFinishesItsWork) {
    DispatchGroup group;
    group.async(*this->serial, this->note('a'));
    this->serial.reset();
    EXPECT_TRUE(group.wait());
    EXPECT_EQ(this->log, "a");
}

using ThreadedQueuesTest = QueuesTest<Threaded>;

TEST_F(ThreadedQueuesTest, BarriersRunAlone) {
    std::latch readersMeet(2);
    std::latch open(1);
    std::atomic<int> readers = 0;
    DispatchGroup group;
    for (int i = 0; i < 2; ++i) {
        group.async(*concurrent, [&] {
            readersMeet.arrive_and_wait();
            open.wait();
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
    open.count_down();
    lateReader.wait();
    EXPECT_TRUE(group.wait());
}

TEST_F(ThreadedQueuesTest, SyncNeedsNoWorker) {
    const unsigned workers = WorkerPool::defaultAtWork();
    std::latch open(1);
    std::latch busy(workers);
    for (unsigned i = 0; i < workers; ++i) {
        kind.queues.globalQueue(QueuePriority::Default).async([&] {
            busy.count_down();
            open.wait();
        });
    }
    busy.wait();
    bool ran = false;
    serial->sync([&] { ran = true; });
    EXPECT_TRUE(ran);
    // Another class has its own workers.
    DispatchGroup group;
    group.async(kind.queues.globalQueue(QueuePriority::Background), [] {});
    EXPECT_TRUE(group.wait(10s));
    open.count_down();
    kind.queues.shutDown();
}

TEST_F(ThreadedQueuesTest, ReplacesBlockedWorkers) {
    DispatchQueue& global = kind.queues.globalQueue(QueuePriority::Default);
    std::function<void(int)> descend = [&](int depth) {
        if (depth > 0) {
            DispatchGroup group;
            group.async(global, [&, depth] { descend(depth - 1); });
            EXPECT_TRUE(group.wait(20s));
        }
    };
    descend(40);
}

TEST_F(ThreadedQueuesTest, SyncWaitsForTheEndOfASuspension) {
    auto token = serial->suspend();
    auto synced = std::async(std::launch::async, [&] { serial->sync([] {}); });
    EXPECT_EQ(synced.wait_for(kNotYet), std::future_status::timeout);
    token.release();
    synced.wait();
}

TEST_F(ThreadedQueuesTest, ShutDownReleasesWaitingCallers) {
    auto token = std::make_shared<SuspensionToken>(concurrent->suspend());
    kind.queues.mainQueue().async([token = std::move(token)] {});
    std::promise<void> open;
    std::promise<void> begun;
    std::atomic<int> ended = 0;
    bool dropped = true;
    serial->async([&] {
        begun.set_value();
        open.get_future().wait();
        // Either would deadlock if the shutdown did not release a waiter.
        DispatchGroup group;
        group.async(*concurrent, [&] { dropped = false; });
        EXPECT_TRUE(group.wait());
        concurrent->sync([&] { ++ended; });
    });
    begun.get_future().wait();
    auto caller = std::async(std::launch::async, [&] { serial->sync([&] { ++ended; }); });
    std::thread opener([&] {
        std::this_thread::sleep_for(kNotYet);
        open.set_value();
    });
    kind.queues.shutDown();
    opener.join();
    caller.wait();
    EXPECT_EQ(ended, 2);
    EXPECT_TRUE(dropped);
}

TEST_F(ThreadedQueuesTest, MisuseEndsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(serial->sync([&] { serial->sync([] {}); }), "sync from a block of the same queue");
    EXPECT_DEATH(kind.queues.mainQueue().sync([] {}), "queue main: sync on the main queue");
    EXPECT_DEATH(std::thread([&] { kind.queues.shutDown(); }).join(), "queue main: not on the main thread");
}

} // namespace
} // namespace guide
