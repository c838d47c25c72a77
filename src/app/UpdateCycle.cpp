#include "app/UpdateCycle.h"

#include "app/UpdateCheck.h"

#include <utility>
#include <vector>

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
    /// Wait for the end of the check. Used on the check queue.
    std::vector<Block> idle;

    void endRunning() {
        running = false;
        for (Block& block : std::exchange(idle, {})) {
            environment.queues.mainQueue().async(std::move(block));
        }
    }

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
                    state->endRunning();
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

void UpdateCycle::whenIdle(Block block) {
    m_state->environment.checkQueue->async([state = m_state, block = std::move(block)]() mutable {
        state->idle.push_back(std::move(block));
        if (!state->running) {
            state->endRunning();
        }
    });
}

bool UpdateCycle::finish(std::chrono::milliseconds atMost) {
    m_state->cancelled = true;
    m_state->blocks.async(*m_state->environment.checkQueue, [] {});
    return m_state->blocks.wait(atMost);
}

} // namespace guide
