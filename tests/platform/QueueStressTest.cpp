#include "platform/queues/ThreadedQueues.h"

#include <array>
#include <atomic>
#include <gtest/gtest.h>
#include <random>

using namespace std::chrono_literals;

namespace guide {
namespace {

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
