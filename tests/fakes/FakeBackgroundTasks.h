#pragma once

#include "platform/BackgroundTasks.h"

#include <map>
#include <mutex>
#include <utility>

namespace guide {

/// Counts background tasks and expires them on request.
class FakeBackgroundTasks final : public BackgroundTasks {
  public:
    BackgroundTaskId beginBackgroundTask(Block expirationHandler) override {
        const std::lock_guard guard(m_guard);
        m_running.emplace(++m_last, std::move(expirationHandler));
        return m_last;
    }
    void endBackgroundTask(BackgroundTaskId task) override {
        // Destroyed after the lock is released.
        decltype(m_running)::node_type ended;
        const std::lock_guard guard(m_guard);
        ended = m_running.extract(task);
    }

    /// The number of tasks ever begun.
    std::size_t begun() const {
        const std::lock_guard guard(m_guard);
        return static_cast<std::size_t>(m_last);
    }
    std::size_t running() const {
        const std::lock_guard guard(m_guard);
        return m_running.size();
    }
    /// Calls the handler of every running task.
    void expireAll() {
        std::map<BackgroundTaskId, Block> expired;
        {
            const std::lock_guard guard(m_guard);
            for (auto& [task, handler] : m_running) {
                expired.emplace(task, std::exchange(handler, nullptr));
            }
        }
        for (const auto& [task, handler] : expired) {
            if (handler) {
                handler();
            }
        }
    }

  private:
    mutable std::mutex m_guard;
    std::map<BackgroundTaskId, Block> m_running;
    BackgroundTaskId m_last = kBackgroundTaskInvalid;
};

} // namespace guide
