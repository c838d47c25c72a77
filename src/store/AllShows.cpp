#include "store/AllShows.h"

#include <algorithm>

namespace guide {

namespace {

struct StartedShow {
    Moment start;
    const ShowItem* show;
};

bool earlier(const StartedShow& a, const StartedShow& b) {
    return a.start < b.start;
}

/// Where a search stands in one list: at a show that holds the pattern.
struct Hit {
    Moment start;
    std::size_t list;
    std::size_t index;
};

bool laterHit(const Hit& a, const Hit& b) {
    return a.start != b.start ? a.start > b.start : a.list > b.list;
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
    std::vector<Hit> hits;
    // Moves on to the next show of the list that holds the pattern, if there is one.
    const auto push = [&](std::size_t listIndex, std::size_t from) {
        const ChannelList& list = *m_lists[listIndex];
        for (std::size_t i = list.searchText().find(searchPattern, from); i < list.size();
             i = list.searchText().find(searchPattern, i + 1)) {
            if (list.endOf(i) >= now && holds(list, i)) {
                hits.push_back({list.startOf(i), listIndex, i});
                std::push_heap(hits.begin(), hits.end(), laterHit);
                return;
            }
        }
    };
    for (std::size_t i = 0; i < m_lists.size(); ++i) {
        push(i, 0);
    }
    ShowItems found;
    while (!hits.empty() && found.size() < limit) {
        std::pop_heap(hits.begin(), hits.end(), laterHit);
        const Hit hit = hits.back();
        hits.pop_back();
        found.push_back((*m_lists[hit.list])[hit.index]);
        push(hit.list, hit.index + 1);
    }
    return found;
}

} // namespace guide
