#include "parsers/xmltv/FeedListEnds.h"

#include "parsers/xmltv/XMLTVToEntries.h"

#include <algorithm>
#include <bit>
#include <iterator>

namespace guide {

namespace {

Moment startOf(const ExtendedTVEntry& show) {
    return *show.basic->dateTime();
}

/// How much a show says.
qsizetype richnessOf(const ExtendedTVEntry& show) {
    const TVEntry& entry = *show.basic;
    qsizetype size = std::popcount(show.categories.value_or(0));
    const TVEntrySupplementalData& extra = *show.extra;
    for (const std::optional<QString>& text :
         {entry.identificator(), entry.subtitle1(), entry.instantDetails1(), entry.instantDescription1(),
          extra.description, extra.roles, extra.directedBy}) {
        size += text ? text->size() : 0;
    }
    return size;
}

/// Of two shows that start together. A show that is listed twice ends with the later one: the earlier end
/// would leave a gap.
void keepRicher(ExtendedTVEntry& kept, ExtendedTVEntry& other) {
    if (richnessOf(other) > richnessOf(kept)) {
        std::swap(kept, other);
    }
    const std::optional<Moment>& end = other.basic->endDateTime();
    if (end && kept.basic->endDateTime() && kept.basic->identificator() == other.basic->identificator()) {
        kept.basic->setEndDateTime(std::max(*end, *kept.basic->endDateTime()));
    }
}

} // namespace

void repairEnds(FeedChannelEntries& channel) {
    std::vector<ExtendedTVEntry>& shows = channel.entries;
    std::ranges::stable_sort(shows, {}, startOf);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < shows.size(); ++i) {
        if (kept == 0 || startOf(shows[kept - 1]) != startOf(shows[i])) {
            if (kept != i) {
                shows[kept] = std::move(shows[i]);
            }
            ++kept;
        } else {
            keepRicher(shows[kept - 1], shows[i]);
        }
    }
    shows.erase(shows.begin() + static_cast<std::ptrdiff_t>(kept), shows.end());

    std::ranges::sort(channel.gaps);
    auto gap = channel.gaps.rbegin();
    // From the end: the first programme behind the show at hand.
    std::optional<Moment> next;
    for (auto show = shows.rbegin(); show != shows.rend(); ++show) {
        const Moment start = startOf(*show);
        for (; gap != channel.gaps.rend() && *gap > start; ++gap) {
            next = next ? std::min(*next, *gap) : *gap;
        }
        // What is over lies in front of every show that is kept, but for those that are too long.
        const bool isOver = channel.lastOver && *channel.lastOver > start;
        const std::optional<Moment> following =
            isOver ? std::optional(next ? std::min(*next, *channel.lastOver) : *channel.lastOver) : next;
        const std::optional<Moment>& end = show->basic->endDateTime();
        if (!end) {
            const bool isKnown = following && *following - start <= kLongestRepairedShow;
            show->basic->setEndDateTime(isKnown ? *following : start + kLengthOfOpenShow);
        } else if (*end - start > kLongestRepairedShow && following && *following < *end) {
            show->basic->setEndDateTime(following);
        }
        next = start;
    }
}

} // namespace guide
