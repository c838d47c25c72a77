#pragma once

#include "platform/Moment.h"
#include "store/ShowItem.h"

#include <chrono>
#include <optional>
#include <span>
#include <unordered_map>

namespace guide {

/// A show that lasts longer has a wrong end.
inline constexpr std::chrono::hours kLongestShow = std::chrono::days(7);

/// The ends with which shows are displayed and count as running. A show whose own end is before its start or
/// more than kLongestShow after it ends when the next show of the list starts; when there is no next show, or
/// that start is too late as well, its end is unknown. Shows that start together have the same next show.
class ShownEnds {
  public:
    ShownEnds() = default;
    /// A list of one channel, in ascending start time, which must outlive this object. Linear time.
    explicit ShownEnds(std::span<const ShowItem> shows);

    std::optional<Moment> endOf(const TVEntry& entry) const;
    /// False for a show whose end is unknown.
    bool overAt(const TVEntry& entry, Moment now) const;

  private:
    /// Of the shows whose own ends are wrong, which are few.
    std::unordered_map<const TVEntry*, std::optional<Moment>> m_replaced;
};

/// The end of a show whose list is not known: its own, or unset when that is wrong.
std::optional<Moment> shownEnd(const TVEntry& entry);

/// The list without the shows that are over at the moment.
ShowItems showsNotOver(std::span<const ShowItem> shows, Moment now);

} // namespace guide
