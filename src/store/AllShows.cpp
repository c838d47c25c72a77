#include "store/AllShows.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <unordered_map>

namespace guide {

namespace {

constexpr std::uint32_t kGone = std::numeric_limits<std::uint32_t>::max();

bool earlier(const AllShows::Show& a, const AllShows::Show& b) {
    return std::tie(a.start, a.list) < std::tie(b.start, b.list);
}

/// For each list of the state before, its index in the new state, or kGone.
std::vector<std::uint32_t> newNumbers(const AllShows::Lists& before, const AllShows::Lists& lists) {
    std::unordered_map<const ChannelList*, std::uint32_t> numbers;
    for (std::uint32_t i = 0; i < lists.size(); ++i) {
        numbers.emplace(lists[i].get(), i);
    }
    std::vector<std::uint32_t> result;
    result.reserve(before.size());
    for (const auto& list : before) {
        const auto number = numbers.find(list.get());
        result.push_back(number == numbers.end() ? kGone : number->second);
    }
    return result;
}

/// Whether the remaining lists are in the same order as before.
bool orderKept(std::vector<std::uint32_t> newNumbers) {
    std::erase(newNumbers, kGone);
    return std::is_sorted(newNumbers.begin(), newNumbers.end());
}

/// Merges adjacent sorted runs until one is left. `borders` are the bounds of the runs, both ends included.
void mergeRuns(std::vector<AllShows::Show>& shows, std::vector<std::size_t> borders) {
    std::vector<AllShows::Show> other(borders.size() > 2 ? shows.size() : 0);
    const auto at = [](std::vector<AllShows::Show>& of, std::size_t index) {
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
}

} // namespace

AllShows::AllShows(Lists lists, Moment endingAfter, const std::shared_ptr<const AllShows>& previous)
    : m_lists(std::move(lists))
    , m_endingAfter(endingAfter)
    , m_base(previous ? previous->lastBuilt(previous) : nullptr) {}

std::shared_ptr<const AllShows> AllShows::lastBuilt(std::shared_ptr<const AllShows> self) const {
    const std::lock_guard guard(m_guard);
    return m_showsBuilt ? std::move(self) : m_base;
}

const std::vector<AllShows::Show>& AllShows::shows() const {
    std::call_once(m_buildShows, [this] {
        std::shared_ptr<const AllShows> base;
        {
            const std::lock_guard guard(m_guard);
            base = m_base;
        }
        build(base.get());
        const std::lock_guard guard(m_guard);
        m_showsBuilt = true;
        m_textBuilt = m_text != nullptr;
        m_base.reset();
    });
    return m_shows;
}

const SearchText& AllShows::searchText() const {
    shows();
    std::call_once(m_buildText, [this] {
        if (m_text) {
            return;
        }
        auto text = std::make_unique<SearchText>();
        text->reserve(m_shows.size(), 0);
        for (const Show& show : m_shows) {
            text->append(*show.item);
        }
        m_text = std::move(text);
        const std::lock_guard guard(m_guard);
        m_textBuilt = true;
    });
    return *m_text;
}

const SearchText* AllShows::searchTextIfBuilt() const {
    const std::lock_guard guard(m_guard);
    return m_textBuilt ? m_text.get() : nullptr;
}

std::vector<AllShows::Show> AllShows::mergedShows(const std::vector<bool>& ofLists) const {
    std::vector<Show> shows;
    std::vector<std::size_t> borders{0};
    for (std::uint32_t number = 0; number < m_lists.size(); ++number) {
        if (!ofLists[number]) {
            continue;
        }
        const ChannelList& list = *m_lists[number];
        for (std::size_t i = 0; i < list.size(); ++i) {
            if (list.endOf(i) > m_endingAfter) {
                shows.push_back({list.startOf(i), list.endOf(i), &list[i], number, list.titleHashOf(i)});
            }
        }
        borders.push_back(shows.size());
    }
    mergeRuns(shows, std::move(borders));
    return shows;
}

void AllShows::build(const AllShows* base) const {
    std::vector<std::uint32_t> numbers =
        base ? newNumbers(base->m_lists, m_lists) : std::vector<std::uint32_t>();
    // After the clock was set back, shows that the base has dropped are current again.
    if (base && (base->m_endingAfter > m_endingAfter || !orderKept(numbers))) {
        base = nullptr;
        numbers.clear();
    }
    std::vector<bool> added(m_lists.size(), true);
    for (const std::uint32_t number : numbers) {
        if (number != kGone) {
            added[number] = false;
        }
    }
    if (base) {
        mergeWithBase(*base, numbers, mergedShows(added));
    } else {
        m_shows = mergedShows(added);
    }
}

void AllShows::mergeWithBase(const AllShows& base, const std::vector<std::uint32_t>& numbers,
                             const std::vector<Show>& added) const {
    const std::vector<Show>& before = base.m_shows;
    const SearchText* const formerText = base.searchTextIfBuilt();
    auto text = formerText ? std::make_unique<SearchText>() : nullptr;
    m_shows.reserve(before.size() + added.size());
    if (text) {
        text->reserve(before.size() + added.size(), formerText->bytes() + formerText->bytes() / 16);
    }
    // The texts of shows that stay adjacent are copied in one piece.
    std::size_t piece = 0;
    const auto endPiece = [&](std::size_t end) {
        if (text) {
            text->append(*formerText, piece, end - piece);
        }
        piece = end;
    };
    auto next = added.begin();
    const auto append = [&](const Show& show) {
        m_shows.push_back(show);
        if (text) {
            text->append(*show.item);
        }
    };
    for (std::size_t i = 0; i < before.size(); ++i) {
        Show show = before[i];
        show.list = numbers[show.list];
        if (show.list == kGone || show.end <= m_endingAfter) {
            endPiece(i);
            ++piece;
            continue;
        }
        for (; next != added.end() && earlier(*next, show); ++next) {
            endPiece(i);
            append(*next);
        }
        m_shows.push_back(show);
    }
    endPiece(before.size());
    std::for_each(next, added.end(), append);
    m_text = std::move(text);
}

ShowItems AllShows::showsContaining(const QByteArray& searchPattern, Moment now, std::size_t limit) const {
    const SearchText& text = searchText();
    std::vector<const ShowItem*> found;
    for (std::size_t i = text.find(searchPattern, 0); i < m_shows.size() && found.size() < limit;
         i = text.find(searchPattern, i + 1)) {
        if (m_shows[i].end >= now) {
            found.push_back(m_shows[i].item);
        }
    }
    ShowItems shows;
    shows.reserve(found.size());
    for (const ShowItem* show : found) {
        shows.push_back(*show);
    }
    return shows;
}

} // namespace guide
