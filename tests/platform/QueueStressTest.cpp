#include "platform/queues/ThreadedQueues.h"

#include <atomic>
#include <gtest/gtest.h>
#include <random>

using namespace std::chrono_literals;

namespace guide {
namespace {

/// A queue and plain values that only its blocks access; the thread sanitizer checks that.
struct Guarded {
    std::shared_ptr<DispatchQueue> queue;
    bool serial;
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

/// Random numbers that are the same in every run.
class RandomNumbers {
  public:
    explicit RandomNumbers(unsigned seed)
        : m_numbers(seed) {}
    unsigned operator()(unsigned sides) { return static_cast<unsigned>(m_numbers() % sides); }

  private:
    std::minstd_rand m_numbers;
};

TEST(QueueStressTest, KeepsItsGuaranteesUnderLoadAndShutDown) {
    constexpr int kRounds = 3;
    constexpr unsigned kThreads = 4;
    constexpr int kSteps = 1500;
    for (unsigned round = 0; round < kRounds; ++round) {
        ThreadedQueues queues([] {});
        std::vector<std::unique_ptr<Guarded>> all;
        for (unsigned i = 0; i < 4; ++i) {
            const bool serial = i % 2 == 0;
            all.push_back(std::make_unique<Guarded>());
            all.back()->serial = serial;
            all.back()->queue = queues.makeQueue(
                "queue " + std::to_string(i), serial ? QueueKind::Serial : QueueKind::Concurrent,
                i < 2 ? QueuePriority::Background : QueuePriority::UserInitiated);
        }
        std::atomic<long> writes = 0;
        const auto step = [&](RandomNumbers& random) {
            const unsigned index = random(4);
            Guarded& guarded = *all[index];
            const auto write = [&guarded, &writes] {
                guarded.write();
                ++writes;
            };
            const auto read = [&guarded] { guarded.serial ? guarded.write() : guarded.read(); };
            switch (random(9)) {
            case 0:
                guarded.queue->sync(read);
                break;
            case 1:
            case 2:
                guarded.queue->asyncBarrier(write);
                break;
            case 3:
                guarded.queue->asyncAfter(std::chrono::milliseconds(random(3)), read);
                break;
            case 4: {
                const auto token = guarded.queue->suspend();
                guarded.queue->asyncBarrier(write);
                break;
            }
            case 5: {
                DispatchGroup group;
                group.async(*guarded.queue, read);
                group.async(queues.globalQueue(QueuePriority::Default), [] {});
                EXPECT_TRUE(group.wait());
                break;
            }
            case 6:
                // Waits for a queue further on, as the update check waits for the load queue.
                guarded.queue->async([&all, index] {
                    for (std::size_t next = index + 1; next < all.size(); ++next) {
                        all[next]->queue->sync(
                            [&] { all[next]->serial ? all[next]->write() : all[next]->read(); });
                    }
                });
                break;
            case 7: {
                // A suspension that ends on another queue.
                auto token = std::make_shared<SuspensionToken>(guarded.queue->suspend());
                queues.globalQueue(QueuePriority::Background).async([token = std::move(token)] {});
                break;
            }
            default:
                guarded.queue->async(read);
            }
        };
        std::vector<std::thread> threads;
        threads.reserve(kThreads);
        for (unsigned t = 0; t < kThreads; ++t) {
            threads.emplace_back([&, t] {
                RandomNumbers random(1 + round * kThreads + t);
                for (int i = 0; i < kSteps; ++i) {
                    step(random);
                }
            });
        }
        if (round == 0) {
            // The first round runs to completion; in the others the queues are shut down under load.
            for (std::thread& thread : threads) {
                thread.join();
            }
            for (const auto& guarded : all) {
                DispatchGroup last;
                last.async(*guarded->queue, [] {});
                last.wait();
            }
            EXPECT_GT(writes, 0);
        }
        queues.shutDown();
        for (std::thread& thread : threads) {
            if (thread.joinable()) {
                thread.join();
            }
        }
    }
}

} // namespace
} // namespace guide
