#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace guide {

/// Pauses background work until shutdown interrupts the pauses. Any thread.
class InterruptibleWait {
  public:
    /// Blocks for the given time. Returns false immediately when interrupted.
    bool wait(std::chrono::milliseconds time) {
        std::unique_lock guard(m_mutex);
        return !m_changed.wait_for(guard, time, [this] { return m_interrupted; });
    }

    /// Ends all current and future pauses.
    void interrupt() {
        const std::lock_guard guard(m_mutex);
        m_interrupted = true;
        m_changed.notify_all();
    }

  private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_interrupted = false;
};

} // namespace guide
