#pragma once

#include <chrono>

namespace guide {

struct FeedChannelEntries;

/// A show that is longer has a wrong end if another one starts before it. Nor does an end that is not known
/// lie later.
inline constexpr std::chrono::hours kLongestRepairedShow{12};
/// The length of a show of which neither the end nor the next show is known.
inline constexpr std::chrono::hours kLengthOfOpenShow{1};

/// Sorts the entries of a channel by their starts, which they must have, keeps the richest of those that
/// start together, and gives an end to those that have none or a wrong one: the start of the next programme.
void repairEnds(FeedChannelEntries& channel);

} // namespace guide
