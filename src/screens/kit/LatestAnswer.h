#pragma once

#include "platform/queues/MainBlock.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace guide {

/// Drops the answers to all but the latest request. A screen has one of these for each kind of request that
/// it makes, and wraps each callback:
///
///     listings.cachedListForChannel(channel, m_list.expect(weak_from_this(), [this](...) {...}));
///
/// Main queue.
class LatestAnswer {
    template <class Answer>
    struct Expected {
        std::weak_ptr<const void> owner;
        Answer answer;

        template <class... Args>
        operator MainBlock<Args...>() && { // NOLINT(google-explicit-constructor): implicit by design
            return {owner, std::move(answer)};
        }
    };

  public:
    /// Counts as a new request. Its answer is also dropped when the owner, which contains this object, has
    /// been destroyed.
    template <class Answer>
    auto expect(const std::weak_ptr<const void>& owner, Answer answer) {
        auto unlessSuperseded = [this, question = ++m_latest,
                                 answer = std::move(answer)](const auto&... values) {
            if (question == m_latest) {
                answer(values...);
            }
        };
        return Expected<decltype(unlessSuperseded)>{owner, std::move(unlessSuperseded)};
    }

  private:
    std::uint64_t m_latest = 0;
};

} // namespace guide
