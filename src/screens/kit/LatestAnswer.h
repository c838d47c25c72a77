#pragma once

#include "platform/queues/MainBlock.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace guide {

/// Drops the answers to questions that a newer one has overtaken. A screen has one of these for each kind of
/// question that it asks, and wraps each answer:
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
        operator MainBlock<Args...>() && { // NOLINT(google-explicit-constructor): made to be passed on
            return {owner, std::move(answer)};
        }
    };

  public:
    /// Counts as a new question. Its answer is dropped also when the owner, which contains this object, is
    /// gone.
    template <class Answer>
    auto expect(const std::weak_ptr<const void>& owner, Answer answer) {
        auto unlessOvertaken = [this, question = ++m_latest,
                                answer = std::move(answer)](const auto&... values) {
            if (question == m_latest) {
                answer(values...);
            }
        };
        return Expected<decltype(unlessOvertaken)>{owner, std::move(unlessOvertaken)};
    }

  private:
    std::uint64_t m_latest = 0;
};

} // namespace guide
