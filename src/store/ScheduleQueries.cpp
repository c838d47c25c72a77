#include "store/ScheduleQueries.h"

#include "store/LocalTime.h"
#include "store/TitleHash.h"

#include <algorithm>

namespace guide {

namespace {

constexpr int kEveningHour = 19;

template <class Test>
ShowItems matchingShows(const AllShows& all, Test test) {
    ShowItems result;
    for (const AllShows::Show& show : all.shows()) {
        if (test(show)) {
            result.push_back(*show.item);
            if (result.size() == kMostShows) {
                break;
            }
        }
    }
    return result;
}

/// Most shows are not looked at: their entries are all over the memory.
bool hasFavoriteTitle(const AllShows::Show& show, const FavoriteTitles& favorites) {
    if (show.titleHash != kNoTitleHash && !favorites.mayContain(show.titleHash)) {
        return false;
    }
    const std::optional<QString>& title = show.item->entry()->title();
    return title && favorites.containsFavoriteNamed(*title);
}

bool isOfCategory(const ShowItem& show, TVListingsCategory category) {
    const TVListingsCategory mask = show.categories().value_or(0);
    return (mask & category) != 0 && ((mask ^ category) & TVListingsCategorySeries) == 0;
}

/// Whether the query of the selector lists the show; never for the most watched shows, which have a list.
bool isListed(const ShowItem& show, TVListingsCategory selector, Moment now, LocalTime& localTime) {
    const TVEntry& entry = *show.entry();
    switch (selector) {
    case TVListingsCategoryMostWatched:
        return false;
    case TVListingsCategoryAllShows:
        return !entry.overAt(now);
    case TVListingsCategoryEveningShows:
        return !entry.overAt(now) && localTime.hourAt(*entry.dateTime()) >= kEveningHour;
    default:
        return isOfCategory(show, selector) && entry.endsAfter(now);
    }
}

} // namespace

ShowItems showsWithCategory(const AllShows& all, TVListingsCategory category, Moment now) {
    return matchingShows(all, [&](const AllShows::Show& show) {
        return isOfCategory(*show.item, category) && show.item->entry()->endsAfter(now);
    });
}

ShowItems allShowsWithCategory(const AllShows& all, TVListingsCategory category, Moment now,
                               const QTimeZone& zone) {
    LocalTime localTime(zone);
    const TVListingsCategory selector = category == TVListingsCategoryEveningShows
                                            ? TVListingsCategoryEveningShows
                                            : TVListingsCategoryAllShows;
    return matchingShows(
        all, [&](const AllShows::Show& show) { return isListed(*show.item, selector, now, localTime); });
}

std::vector<int> showCounts(const AllShows& all, const ShowList& popular,
                            std::span<const TVListingsCategory> selectors, Moment now, Moment until,
                            const QTimeZone& zone) {
    LocalTime localTime(zone);
    std::vector<int> counts(selectors.size());
    for (const AllShows::Show& show : all.shows()) {
        if (show.start >= until) {
            break;
        }
        for (std::size_t place = 0; place < selectors.size(); ++place) {
            counts[place] += isListed(*show.item, selectors[place], now, localTime) ? 1 : 0;
        }
    }
    const auto mostWatched = std::ranges::find(selectors, TVListingsCategoryMostWatched);
    if (mostWatched != selectors.end()) {
        const ShowItems shows = showsNotEnded(popular, now);
        counts[static_cast<std::size_t>(mostWatched - selectors.begin())] =
            static_cast<int>(std::ranges::count_if(
                shows, [until](const ShowItem& show) { return show.entry()->dateTime() < until; }));
    }
    return counts;
}

ShowItems showsNotEnded(const ShowList& list, Moment now) {
    ShowItems result;
    if (list) {
        std::copy_if(list->begin(), list->end(), std::back_inserter(result),
                     [now](const ShowItem& show) { return show.entry()->endsAfter(now); });
    }
    return result;
}

ShowItems favoritesSchedule(const AllShows& all, const FavoriteTitles& favorites, Moment now) {
    if (favorites.empty()) {
        return {};
    }
    return matchingShows(all, [&](const AllShows::Show& show) {
        return hasFavoriteTitle(show, favorites) && show.item->entry()->endsAfter(now);
    });
}

FavoritesToCome favoritesToCome(const AllShows& all, const FavoriteTitles& favorites, Moment now) {
    FavoritesToCome result;
    if (favorites.empty()) {
        return result;
    }
    result.shows = matchingShows(all, [&](const AllShows::Show& show) {
        return show.start > now && hasFavoriteTitle(show, favorites);
    });
    result.byDigest.reserve(result.shows.size());
    for (const ShowItem& show : result.shows) {
        if (const std::optional<ShowDigest> digest = show.entry()->digest()) {
            result.byDigest.insert_or_assign(*digest, show);
        }
    }
    return result;
}

ShowItems showScheduleForTitle(const AllShows& all, const QString& title, Moment now) {
    const std::uint32_t hash = titleHash(title);
    return matchingShows(all, [&](const AllShows::Show& show) {
        return show.titleHash == hash && show.item->entry()->title() == title &&
               !show.item->entry()->overAt(now);
    });
}

bool isBroadcast(const AllShows& all, const QString& identificator, bool previouslyShown, Moment now) {
    const auto& shows = all.shows();
    return std::any_of(shows.begin(), shows.end(), [&](const AllShows::Show& show) {
        const TVEntry& entry = *show.item->entry();
        return entry.previouslyShown() == previouslyShown && !entry.overAt(now) &&
               entry.identificator() == identificator;
    });
}

std::optional<ShowItem> showWithURL(const AllShows& all, const QUrl& url, const QString& scheme) {
    const std::optional<ShowDigest> digest = digestOfUrl(url);
    if (!digest) {
        return std::nullopt;
    }
    // Compares digests, because caching a URL for every show would take too much memory.
    const auto& shows = all.shows();
    const auto found = std::ranges::find_if(
        shows, [&digest](const AllShows::Show& show) { return show.item->entry()->digest() == digest; });
    const bool matches = found != shows.end() && found->item->entry()->urlDigestWithScheme(scheme) == url;
    return matches ? std::optional(*found->item) : std::nullopt;
}

std::size_t firstNotEnded(std::span<const ShowItem> list, Moment now) {
    const auto first = std::find_if(list.begin(), list.end(),
                                    [now](const ShowItem& show) { return show.entry()->endsAfter(now); });
    return static_cast<std::size_t>(first - list.begin());
}

} // namespace guide
