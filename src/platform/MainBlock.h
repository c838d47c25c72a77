#pragma once

#include "platform/DispatchQueue.h"

#include <tuple>
#include <utility>

namespace guide {

/// An answer that is given on the main queue. With an owner it is dropped, on the main queue, when the owner
/// has gone by the time its turn comes: a screen hands itself as the owner and is never called after its end.
/// Once the answer is posted, the function and what it captured are released on the main queue; a function
/// whose answer is never posted goes where the last copy of the block goes, so it should hold its screen
/// weakly.
template <class... Args>
class MainBlock {
  public:
    using Function = std::function<void(Args...)>;

    MainBlock(Function function) // NOLINT(google-explicit-constructor): a lambda is the usual argument
        : m_state(std::make_shared<State>(State{{}, false, std::move(function)})) {}
    MainBlock(const std::weak_ptr<const void>& owner, Function function)
        : m_state(std::make_shared<State>(State{owner, true, std::move(function)})) {}

    /// Gives the answer. The first answer that any copy of the block posts is the only one that is given; the
    /// arguments cross to the main queue by value.
    void post(DispatchQueue& mainQueue, Args... args) {
        mainQueue.async([state = std::move(m_state), values = std::make_tuple(std::move(args)...)]() mutable {
            if (!state) {
                return;
            }
            // Taken out of the state, for another thread may hold the last copy of it.
            const Function function = std::exchange(state->function, nullptr);
            const std::shared_ptr<const void> owner = state->owner.lock();
            if (function && (owner || !state->guarded)) {
                std::apply(function, std::move(values));
            }
        });
    }

  private:
    /// Touched on the main queue alone once it is made.
    struct State {
        std::weak_ptr<const void> owner;
        bool guarded = false;
        Function function;
    };
    std::shared_ptr<State> m_state;
};

} // namespace guide
