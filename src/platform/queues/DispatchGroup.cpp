#include "platform/queues/DispatchQueue.h"
#include "platform/queues/ThreadWaiting.h"

#include <condition_variable>
#include <mutex>

namespace guide {

struct DispatchGroup::State {
    std::mutex mutex;
    std::condition_variable changed;
    std::size_t members = 0;
};

namespace {

/// Decrements the group when the block that holds it is destroyed, run or not.
template <class State>
class Membership {
  public:
    explicit Membership(std::shared_ptr<State> state)
        : m_state(std::move(state)) {
        const std::lock_guard guard(m_state->mutex);
        ++m_state->members;
    }
    Membership(const Membership&) = delete;
    Membership& operator=(const Membership&) = delete;
    ~Membership() {
        const std::lock_guard guard(m_state->mutex);
        if (--m_state->members == 0) {
            m_state->changed.notify_all();
        }
    }

  private:
    std::shared_ptr<State> m_state;
};

} // namespace

DispatchGroup::DispatchGroup()
    : m_state(std::make_shared<State>()) {}

void DispatchGroup::async(DispatchQueue& queue, Block block) {
    // Destroyed after the block and its captures.
    auto membership = std::make_shared<Membership<State>>(m_state);
    queue.async([membership = std::move(membership), block = std::move(block)]() mutable {
        std::exchange(block, nullptr)();
    });
}

bool DispatchGroup::wait(std::optional<std::chrono::milliseconds> atMost) {
    const std::shared_ptr<State> state = m_state;
    std::unique_lock guard(state->mutex);
    return ThreadWaiting::waitHere(guard, state->changed, atMost, [&state] { return state->members == 0; });
}

} // namespace guide
