#include "store/AllShows.h"

#include <algorithm>
#include <span>
#include <tuple>

namespace guide {

namespace {

struct StartedShow {
    Moment start;
    const ShowItem* show;
};

bool earlier(const StartedShow& a, const StartedShow& b) {
    return a.start < b.start;
}

/// A show that holds the pattern: its start, and the numbers of its list and its place there.
struct Hit {
    Moment start;
    std::size_t list;
    std::size_t index;
};

bool earlierHit(const Hit& a, const Hit& b) {
    return std::tie(a.start, a.list, a.index) < std::tie(b.start, b.list, b.index);
}

/// How far a search has come in one list: at its next show that holds the pattern.
struct SearchCursor {
    std::size_t list;
    std::size_t next;
};

constexpr std::chrono::hours kFirstSearchSpan{1};
constexpr std::chrono::hours kLongestSearchSpan{24 * 365 * 100};

/// By how much to widen a search that has found so many of the shows that it may find.
double searchSpanGrowth(std::size_t found, std::size_t limit) {
    constexpr double kLeast = 1.2;
    constexpr double kMost = 4;
    constexpr double kMargin = 1.1;
    return found == 0
               ? kMost
               : std::clamp(kMargin * static_cast<double>(limit) / static_cast<double>(found), kLeast, kMost);
}

} // namespace

std::vector<const ShowItem*> AllShows::merged() const {
    std::size_t count = 0;
    for (const auto& list : m_lists) {
        count += list->size();
    }
    std::vector<StartedShow> shows;
    shows.reserve(count);
    // Each list is a sorted run; neighbouring runs are merged until one is left.
    std::vector<std::size_t> borders{0};
    for (const auto& list : m_lists) {
        for (std::size_t i = 0; i < list->size(); ++i) {
            if (holds(*list, i)) {
                shows.push_back({list->startOf(i), &(*list)[i]});
            }
        }
        borders.push_back(shows.size());
    }
    std::vector<StartedShow> other(shows.size());
    const auto at = [](std::vector<StartedShow>& of, std::size_t index) {
        return of.begin() + static_cast<std::ptrdiff_t>(index);
    };
    while (borders.size() > 2) {
        std::vector<std::size_t> mergedBorders{0};
        for (std::size_t run = 0; run + 1 < borders.size(); run += 2) {
            const std::size_t middle = borders[run + 1];
            const std::size_t end = run + 2 < borders.size() ? borders[run + 2] : middle;
            std::merge(at(shows, borders[run]), at(shows, middle), at(shows, middle), at(shows, end),
                       at(other, borders[run]), earlier);
            mergedBorders.push_back(end);
        }
        shows.swap(other);
        borders = std::move(mergedBorders);
    }
    std::vector<const ShowItem*> result;
    result.reserve(shows.size());
    for (const StartedShow& show : shows) {
        result.push_back(show.show);
    }
    return result;
}

const std::vector<const ShowItem*>& AllShows::shows() const {
    std::call_once(m_showsOnce, [this] { m_shows = merged(); });
    return m_shows;
}

ShowItems AllShows::showsContaining(const QByteArray& searchPattern, Moment now, std::size_t limit) const {
    std::vector<SearchCursor> cursors;
    for (std::size_t i = 0; i < m_lists.size(); ++i) {
        const std::size_t first = m_lists[i]->searchText().find(searchPattern, 0);
        if (first < m_lists[i]->size()) {
            cursors.push_back({i, first});
        }
    }
    // The lists are searched one after the other, each up to the same moment, which moves on until there are
    // shows enough: each text is read once, and of a frequent pattern little more than what is answered.
    std::vector<Hit> hits;
    std::chrono::milliseconds span = kFirstSearchSpan;
    while (!cursors.empty() && hits.size() < limit) {
        const Moment upTo = span < kLongestSearchSpan ? now + span : Moment::max();
        for (SearchCursor& cursor : cursors) {
            const ChannelList& list = *m_lists[cursor.list];
            while (cursor.next < list.size() && list.startOf(cursor.next) <= upTo) {
                if (list.endOf(cursor.next) >= now && holds(list, cursor.next)) {
                    hits.push_back({list.startOf(cursor.next), cursor.list, cursor.next});
                }
                cursor.next = list.searchText().find(searchPattern, cursor.next + 1);
            }
        }
        std::erase_if(cursors, [this](const SearchCursor& cursor) {
            return cursor.next >= m_lists[cursor.list]->size();
        });
        span = std::chrono::duration_cast<std::chrono::milliseconds>(span *
                                                                     searchSpanGrowth(hits.size(), limit));
    }
    std::sort(hits.begin(), hits.end(), earlierHit);
    ShowItems found;
    found.reserve(std::min(hits.size(), limit));
    for (const Hit& hit : std::span(hits).first(std::min(hits.size(), limit))) {
        found.push_back((*m_lists[hit.list])[hit.index]);
    }
    return found;
}

} // namespace guide
