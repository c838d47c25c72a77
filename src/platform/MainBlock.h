#pragma once

#include "platform/DispatchQueue.h"

#include <tuple>

namespace guide {

/// An answer that is given on the main queue. With an owner it is dropped, on the main queue, when the owner has
/// gone by the time its turn comes: a screen hands itself as the owner and is never called after its end. What the
/// function captured is released on the main queue in any case.
template <class... Args>
class MainBlock {
  public:
    using Function = std::function<void(Args...)>;

    MainBlock(Function function) // NOLINT(google-explicit-constructor): a lambda is the usual argument
        : m_state(std::make_shared<State>(State{{}, false, std::move(function)})) {}
    MainBlock(const std::weak_ptr<const void>& owner, Function function)
        : m_state(std::make_shared<State>(State{owner, true, std::move(function)})) {}

    /// Gives the answer. To be called at most once; the arguments cross to the main queue by value.
    void post(DispatchQueue& mainQueue, Args... args) {
        mainQueue.async([state = std::move(m_state), values = std::make_tuple(std::move(args)...)]() mutable {
            if (!state || !state->function) {
                return;
            }
            if (state->guarded) {
                const std::shared_ptr<const void> owner = state->owner.lock();
                if (!owner) {
                    return;
                }
                std::apply(state->function, std::move(values));
                return;
            }
            std::apply(state->function, std::move(values));
        });
    }

  private:
    struct State {
        std::weak_ptr<const void> owner;
        bool guarded = false;
        Function function;
    };
    std::shared_ptr<State> m_state;
};

} // namespace guide
