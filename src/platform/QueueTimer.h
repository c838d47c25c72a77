#pragma once

#include "platform/DispatchQueue.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

namespace guide {

/// Submits blocks to their queues when their time has come, on a thread of its own that starts with the first
/// one. Measured on a clock that no change of the date moves. May be used from any thread.
class QueueTimer {
  public:
    QueueTimer() = default;
    QueueTimer(const QueueTimer&) = delete;
    QueueTimer& operator=(const QueueTimer&) = delete;
    ~QueueTimer();

    /// The queue is kept until then. After stop the block is dropped.
    void submitAfter(std::chrono::milliseconds delay, std::shared_ptr<DispatchQueue> queue, Block block);

    /// Drops what has not been submitted, and joins the thread.
    void stop();

  private:
    struct Entry {
        std::shared_ptr<DispatchQueue> queue;
        Block block;
    };

    void run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    /// Blocks of the same moment in the order of submission.
    std::multimap<std::chrono::steady_clock::time_point, Entry> m_entries;
    std::thread m_thread;
    bool m_stopping = false;
};

} // namespace guide
