#pragma once

#include "platform/queues/DispatchQueue.h"

#include <tuple>
#include <utility>

namespace guide {

/// A callback that is called on the main queue. With an owner (usually a screen), the call is dropped if the
/// owner is gone when its turn comes. After posting, the function and its captures are released on the main
/// queue. A function that is never posted is released where the last copy of the block is destroyed, so it
/// should hold its screen weakly.
template <class... Args>
class MainBlock {
  public:
    using Function = std::function<void(Args...)>;

    MainBlock(Function function) // NOLINT(google-explicit-constructor): a lambda is the usual argument
        : m_state(std::make_shared<State>(State{{}, false, std::move(function)})) {}
    MainBlock(const std::weak_ptr<const void>& owner, Function function)
        : m_state(std::make_shared<State>(State{owner, true, std::move(function)})) {}

    /// Posts the call. Only the first post among all copies of the block counts. The arguments are passed by
    /// value.
    void post(DispatchQueue& mainQueue, Args... args) {
        mainQueue.async([state = std::move(m_state), values = std::make_tuple(std::move(args)...)]() mutable {
            if (!state) {
                return;
            }
            // Moved out of the state because another thread may hold its last copy.
            const Function function = std::exchange(state->function, nullptr);
            const std::shared_ptr<const void> owner = state->owner.lock();
            if (function && (owner || !state->guarded)) {
                std::apply(function, std::move(values));
            }
        });
    }

  private:
    /// Accessed only on the main queue after construction.
    struct State {
        std::weak_ptr<const void> owner;
        bool guarded = false;
        Function function;
    };
    std::shared_ptr<State> m_state;
};

} // namespace guide
