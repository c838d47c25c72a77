#include "store/ShownEnds.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <utility>

namespace guide {

namespace {

bool plausible(Moment start, Moment end) {
    return end >= start && end - start <= kLongestShow;
}

} // namespace

ShownEnds::ShownEnds(std::span<const ShowItem> shows) {
    // From the end: the start of the show at hand, and the first one after it.
    std::optional<Moment> start;
    std::optional<Moment> next;
    for (const ShowItem& show : shows | std::views::reverse) {
        const TVEntry& entry = *show.entry();
        if (!entry.dateTime()) {
            continue;
        }
        if (entry.dateTime() != start) {
            next = std::exchange(start, entry.dateTime());
        }
        if (entry.endDateTime() && !plausible(*start, *entry.endDateTime())) {
            const bool known = next && plausible(*start, *next);
            m_replaced.emplace(&entry, known ? next : std::nullopt);
        }
    }
}

std::optional<Moment> ShownEnds::endOf(const TVEntry& entry) const {
    const auto replaced = m_replaced.find(&entry);
    return replaced == m_replaced.end() ? entry.endDateTime() : replaced->second;
}

bool ShownEnds::overAt(const TVEntry& entry, Moment now) const {
    const std::optional<Moment> end = endOf(entry);
    return end && *end < now;
}

std::optional<Moment> shownEnd(const TVEntry& entry) {
    const auto& start = entry.dateTime();
    const auto& end = entry.endDateTime();
    return start && end && plausible(*start, *end) ? end : std::nullopt;
}

ShowItems showsNotOver(std::span<const ShowItem> shows, Moment now) {
    const ShownEnds ends(shows);
    ShowItems result;
    std::ranges::copy_if(shows, std::back_inserter(result),
                         [&ends, now](const ShowItem& show) { return !ends.overAt(*show.entry(), now); });
    return result;
}

} // namespace guide
