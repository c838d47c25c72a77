#include "app/UpdateCycle.h"

#include "app/UpdateCheck.h"

namespace guide {

struct UpdateCycle::State : UpdateWork {
    using UpdateWork::UpdateWork;

    /// A check was requested, and its shows have not been counted.
    std::atomic<bool> waiting = false;
    /// The running check. Used on the check queue, like the number of checks that have ended.
    std::weak_ptr<UpdateCheck> check;
    unsigned ended = 0;
    /// A check is running or about to run. Changed on the check queue.
    std::atomic<bool> running = false;

    /// On the check queue.
    static void count(const std::shared_ptr<State>& state) {
        state->running = true;
        state->environment.listings.showCountForSelectedChannelsForQueue(
            state->environment.checkQueue, [state, ended = state->ended](const ShowCounts& counts) {
                if (state->cancelled) {
                    return;
                }
                if (state->ended != ended) {
                    // What the check has stored would be loaded again.
                    count(state);
                    return;
                }
                state->waiting = false;
                if (const auto running = state->check.lock()) {
                    running->join(counts);
                    return;
                }
                const auto check = std::make_shared<UpdateCheck>(state, [state] {
                    ++state->ended;
                    state->check.reset();
                    state->running = false;
                });
                state->check = check;
                check->begin(counts);
            });
    }
};

UpdateCycle::UpdateCycle(UpdateCycleEnvironment environment)
    : m_state(std::make_shared<State>(std::move(environment))) {}

void UpdateCycle::checkAndUpdateAllChannels() {
    if (m_state->waiting.exchange(true)) {
        return;
    }
    m_state->environment.checkQueue->async([state = m_state] {
        if (!state->cancelled) {
            State::count(state);
        }
    });
}

bool UpdateCycle::isRunning() const {
    return m_state->running;
}

bool UpdateCycle::finish(std::chrono::milliseconds atMost) {
    m_state->cancelled = true;
    m_state->blocks.async(*m_state->environment.checkQueue, [] {});
    return m_state->blocks.wait(atMost);
}

} // namespace guide
