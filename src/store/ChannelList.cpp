#include "store/ChannelList.h"

#include "store/ShownEnds.h"
#include "store/TitleHash.h"

#include <algorithm>

namespace guide {

ChannelList::ChannelList(ShowList shows)
    : m_shows(std::move(shows)) {
    m_times.reserve(m_shows->size());
    m_titleHashes.reserve(m_shows->size());
    const ShownEnds ends(*m_shows);
    Moment latestEnd = Moment::min();
    for (const ShowItem& show : *m_shows) {
        const TVEntry& entry = *show.entry();
        const std::optional<Moment> shownEnd = ends.endOf(entry);
        const Moment end = shownEnd ? *shownEnd : entry.endDateTime().value_or(Moment::min());
        latestEnd = std::max(latestEnd, end);
        m_times.push_back({*show.entry()->dateTime(), end, latestEnd});
        m_titleHashes.push_back(entry.title() ? titleHash(*entry.title()) : kNoTitleHash);
    }
}

std::size_t ChannelList::firstNotOver(Moment now) const {
    // A list begins with the show that was running when it was stored, so the answer is near the front.
    constexpr std::size_t kNear = 4;
    const std::size_t near = std::min(kNear, m_times.size());
    for (std::size_t i = 0; i < near; ++i) {
        if (m_times[i].latestEnd >= now) {
            return i;
        }
    }
    const auto first =
        std::partition_point(m_times.begin() + static_cast<std::ptrdiff_t>(near), m_times.end(),
                             [now](const Times& times) { return times.latestEnd < now; });
    return static_cast<std::size_t>(first - m_times.begin());
}

ShowSpan ChannelList::notOver(Moment now, std::size_t limit) const {
    const std::size_t first = firstNotOver(now);
    std::size_t end = first;
    while (end < m_times.size() && end - first < limit && m_times[end].end >= now) {
        ++end;
    }
    if (end - first == limit || end == m_times.size()) {
        return {m_shows, first, end - first};
    }
    // A show that is over lies between shows that are not.
    ShowItems shows;
    for (std::size_t i = first; i < m_times.size() && shows.size() < limit; ++i) {
        if (m_times[i].end >= now) {
            shows.push_back((*m_shows)[i]);
        }
    }
    return ShowSpan(std::move(shows));
}

std::size_t ChannelList::countNotOver(Moment now, std::size_t limit) const {
    std::size_t count = 0;
    for (std::size_t i = firstNotOver(now); i < m_times.size() && count < limit; ++i) {
        count += m_times[i].end >= now ? 1 : 0;
    }
    return count;
}

} // namespace guide
