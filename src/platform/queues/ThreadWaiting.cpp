#include "platform/queues/ThreadWaiting.h"

#include <utility>

namespace guide {

namespace {

thread_local ThreadWaiting* t_waiting = nullptr;

} // namespace

bool ThreadWaiting::wait(std::unique_lock<std::mutex>& guard, std::condition_variable& changed,
                         std::optional<std::chrono::milliseconds> atMost, const std::function<bool()>& done) {
    if (atMost) {
        return changed.wait_for(guard, *atMost, done);
    }
    changed.wait(guard, done);
    return true;
}

bool ThreadWaiting::waitHere(std::unique_lock<std::mutex>& guard, std::condition_variable& changed,
                             std::optional<std::chrono::milliseconds> atMost,
                             const std::function<bool()>& done) {
    if (done()) {
        return true;
    }
    if (t_waiting != nullptr) {
        return t_waiting->wait(guard, changed, atMost, done);
    }
    return ThreadWaiting().wait(guard, changed, atMost, done);
}

ThreadWaiting* ThreadWaiting::exchangeForThisThread(ThreadWaiting* waiting) {
    return std::exchange(t_waiting, waiting);
}

} // namespace guide
