#include "app/UpdateCycle.h"

#include "app/UpdateCheck.h"

namespace guide {

struct UpdateCycle::State : UpdateWork {
    using UpdateWork::UpdateWork;

    /// A check was requested and has not started.
    std::atomic<bool> waiting = false;
    /// A check has been started and has not ended. Changed on the check queue.
    std::atomic<bool> running = false;

    /// On the check queue, while no check is running.
    static void start(const std::shared_ptr<State>& state) {
        state->running = true;
        // The shows are counted after the previous check; otherwise what it loaded would be loaded again.
        state->environment.listings.showCountForSelectedChannelsForQueue(
            state->environment.checkQueue, [state](const ShowCounts& counts) {
                state->waiting = false;
                if (state->cancelled) {
                    return;
                }
                std::make_shared<UpdateCheck>(state, [state] {
                    state->running = false;
                    if (state->waiting && !state->cancelled) {
                        start(state);
                    }
                })->begin(counts);
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
        if (!state->running && !state->cancelled) {
            State::start(state);
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
