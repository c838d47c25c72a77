#include "fakes/ManualQueues.h"
#include "platform/queues/ThreadedQueues.h"

#include <array>
#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <latch>
#include <random>

namespace guide {
namespace {

using namespace std::chrono_literals;

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

/// A queue and plain values that only its blocks access; the thread sanitizer checks that.
struct Guarded {
    std::shared_ptr<DispatchQueue> queue;
    bool serial = false;
    long written = 0;
    std::atomic<int> readers = 0;
    std::atomic<int> writers = 0;

    void write() {
        EXPECT_EQ(++writers, 1);
        EXPECT_EQ(readers, 0);
        ++written;
        --writers;
    }
    void read() {
        ++readers;
        EXPECT_EQ(writers, 0);
        EXPECT_GE(written, 0);
        --readers;
    }
};

TEST(QueueStressTest, KeepsItsGuaranteesUnderLoadAndShutDown) {
    constexpr unsigned kQueues = 4;
    constexpr unsigned kThreads = 4;
    // The first round runs to completion; in the others the queues are shut down under load.
    for (unsigned round = 0; round < 3; ++round) {
        ThreadedQueues queues([] {});
        std::array<Guarded, kQueues> all;
        for (unsigned i = 0; i < kQueues; ++i) {
            all[i].serial = i % 2 == 0;
            all[i].queue = queues.makeQueue("queue " + std::to_string(i),
                                            all[i].serial ? QueueKind::Serial : QueueKind::Concurrent,
                                            i < 2 ? QueuePriority::Background : QueuePriority::UserInitiated);
        }
        const auto step = [&](std::minstd_rand& random) {
            const unsigned index = random() % kQueues;
            Guarded& guarded = all[index];
            const auto write = [&guarded] { guarded.write(); };
            const auto read = [&guarded] { guarded.serial ? guarded.write() : guarded.read(); };
            SuspensionToken token;
            DispatchGroup group;
            switch (random() % 8) {
            case 0:
                guarded.queue->sync(read);
                break;
            case 1:
                token = guarded.queue->suspend();
                [[fallthrough]];
            case 2:
                guarded.queue->asyncBarrier(write);
                break;
            case 3:
                guarded.queue->asyncAfter(std::chrono::milliseconds(random() % 3), read);
                break;
            case 4:
                group.async(*guarded.queue, read);
                group.async(queues.globalQueue(QueuePriority::Default), [] {});
                EXPECT_TRUE(group.wait());
                break;
            case 5:
                // Waits only for later queues, as the update check waits for the load queue.
                guarded.queue->async([&all, index] {
                    for (unsigned next = index + 1; next < all.size(); ++next) {
                        all[next].queue->sync(
                            [&] { all[next].serial ? all[next].write() : all[next].read(); });
                    }
                });
                break;
            case 6:
                // A suspension that ends on another queue.
                queues.globalQueue(QueuePriority::Background)
                    .async([held = std::make_shared<SuspensionToken>(guarded.queue->suspend())] {});
                break;
            default:
                guarded.queue->async(read);
            }
        };
        std::vector<std::jthread> threads;
        threads.reserve(kThreads);
        for (unsigned t = 0; t < kThreads; ++t) {
            threads.emplace_back([&, t] {
                std::minstd_rand random(1 + round * kThreads + t);
                for (int i = 0; i < 1500; ++i) {
                    step(random);
                }
            });
        }
        if (round == 0) {
            threads.clear();
            for (Guarded& guarded : all) {
                DispatchGroup last;
                last.async(*guarded.queue, [&guarded] { EXPECT_GT(guarded.written, 0); });
                last.wait();
            }
        }
        queues.shutDown();
        threads.clear();
    }
}

} // namespace
} // namespace guide
