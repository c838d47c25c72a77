#include "sources/NetworkActivity.h"

#include <cstdint>

namespace guide {

struct NetworkActivity::State {
    DispatchQueue& mainQueue;
    std::function<void(bool)> indicator; // main queue
    std::uint32_t count = 0;             // serial queue

    static void tell(const std::shared_ptr<State>& state, bool visible) {
        state->mainQueue.async([weakState = std::weak_ptr(state), visible] {
            if (const std::shared_ptr<State> alive = weakState.lock()) {
                alive->indicator(visible);
            }
        });
    }
};

NetworkActivity::NetworkActivity(DispatchQueues& queues, std::function<void(bool visible)> indicator)
    : m_queue(queues.makeQueue("vorel.tv.networkActivity", QueueKind::Serial))
    , m_state(new State{queues.mainQueue(), std::move(indicator)}) {}

NetworkActivity::~NetworkActivity() = default;

void NetworkActivity::startNetworkActivity() {
    m_queue->async([state = m_state] {
        if (state->count == 0) {
            State::tell(state, true);
        }
        ++state->count;
    });
}

void NetworkActivity::stopNetworkActivity() {
    m_queue->async([state = m_state] {
        if (state->count == 1) {
            State::tell(state, false);
        }
        if (state->count != 0) {
            --state->count;
        }
    });
}

} // namespace guide
