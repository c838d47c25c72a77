#include "platform/linux/LinuxBackgroundTasks.h"

#include <map>
#include <mutex>
#include <utility>

namespace guide {

struct LinuxBackgroundTasks::State {
    std::mutex mutex;
    /// The handlers of the running tasks; empty after the call.
    std::map<BackgroundTaskId, Block> running;
    BackgroundTaskId last = kBackgroundTaskInvalid;
};

LinuxBackgroundTasks::LinuxBackgroundTasks(DispatchQueues& queues, std::chrono::milliseconds expireAfter)
    : m_queues(queues)
    , m_expireAfter(expireAfter)
    , m_state(std::make_shared<State>()) {}

BackgroundTaskId LinuxBackgroundTasks::beginBackgroundTask(Block expirationHandler) {
    BackgroundTaskId task = kBackgroundTaskInvalid;
    {
        const std::lock_guard guard(m_state->mutex);
        task = ++m_state->last;
        m_state->running.emplace(task, std::move(expirationHandler));
    }
    m_queues.globalQueue(QueuePriority::Default)
        .asyncAfter(m_expireAfter, [weakState = std::weak_ptr(m_state), task] {
            const std::shared_ptr<State> state = weakState.lock();
            if (!state) {
                return;
            }
            Block handler;
            {
                const std::lock_guard guard(state->mutex);
                if (const auto found = state->running.find(task); found != state->running.end()) {
                    handler = std::exchange(found->second, nullptr);
                }
            }
            if (handler) {
                handler();
            }
        });
    return task;
}

void LinuxBackgroundTasks::endBackgroundTask(BackgroundTaskId task) {
    Block handler;
    const std::lock_guard guard(m_state->mutex);
    if (const auto found = m_state->running.find(task); found != m_state->running.end()) {
        handler = std::move(found->second);
        m_state->running.erase(found);
    }
}

} // namespace guide
