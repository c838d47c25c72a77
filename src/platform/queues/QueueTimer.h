#pragma once

#include "platform/queues/DispatchQueue.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

namespace guide {

/// Submits blocks to their queues when they are due, on its own thread, which starts with the first block.
/// Uses a monotonic clock. May be used from any thread.
class QueueTimer {
  public:
    QueueTimer() = default;
    QueueTimer(const QueueTimer&) = delete;
    QueueTimer& operator=(const QueueTimer&) = delete;
    ~QueueTimer();

    /// Keeps the queue alive until then. After stop the block is dropped.
    void submitAfter(std::chrono::milliseconds delay, std::shared_ptr<DispatchQueue> queue, Block block);

    /// Drops blocks that are not due yet and joins the thread.
    void stop();

  private:
    struct Entry {
        std::shared_ptr<DispatchQueue> queue;
        Block block;
    };

    void run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    /// Blocks with the same time keep the order of submission.
    std::multimap<std::chrono::steady_clock::time_point, Entry> m_entries;
    std::thread m_thread;
    bool m_stopping = false;
};

} // namespace guide
