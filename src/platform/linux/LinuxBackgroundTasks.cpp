#include "platform/linux/LinuxBackgroundTasks.h"

#include "platform/queues/ThreadWaiting.h"

#include <algorithm>
#include <condition_variable>
#include <map>
#include <mutex>

namespace guide {

namespace {

constexpr std::chrono::milliseconds kBetweenCalls{10};

} // namespace

struct LinuxBackgroundTasks::State {
    std::mutex mutex;
    std::condition_variable changed;
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
        m_state->changed.notify_all();
    }
}

bool LinuxBackgroundTasks::waitUntilIdle(std::chrono::milliseconds atMost, const Block& meanwhile) {
    const auto deadline = std::chrono::steady_clock::now() + atMost;
    const auto idle = [this] { return m_state->running.empty(); };
    std::unique_lock guard(m_state->mutex);
    if (!meanwhile) {
        return ThreadWaiting::waitHere(guard, m_state->changed, atMost, idle);
    }
    for (;;) {
        guard.unlock();
        meanwhile();
        guard.lock();
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (m_state->changed.wait_for(
                guard, std::clamp(left, std::chrono::milliseconds::zero(), kBetweenCalls), idle)) {
            return true;
        }
        if (left <= std::chrono::milliseconds::zero()) {
            return false;
        }
    }
}

} // namespace guide
