#pragma once

#include "store/AllShows.h"
#include "store/FavoriteTitles.h"
#include "store/ShowItem.h"

#include <QString>
#include <QTimeZone>
#include <QUrl>

#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace guide {

/// The most shows that a query over all shows returns.
inline constexpr std::size_t kMostShows = 2000;

/// Shows that share a bit with the mask, have not ended, and are series if and only if the mask asks for
/// series.
ShowItems showsWithCategory(const AllShows& all, TVListingsCategory category, Moment now);

/// Shows that are not over; for the selector "Evening Shows" only those that start at 19:00 or later.
ShowItems allShowsWithCategory(const AllShows& all, TVListingsCategory category, Moment now,
                               const QTimeZone& zone);

/// For each selector of a category screen, how many shows its query would list of those that start before
/// `until`, without a limit. `popular` is the list of the most watched shows and may be null.
std::vector<int> showCounts(const AllShows& all, const ShowList& popular,
                            std::span<const TVListingsCategory> selectors, Moment now, Moment until,
                            const QTimeZone& zone);

/// The shows of the list that have not ended, without a limit. The list may be null.
ShowItems showsNotEnded(const ShowList& list, Moment now);

/// Shows with a favourite title that have not ended.
ShowItems favoritesSchedule(const AllShows& all, const FavoriteTitles& favorites, Moment now);

struct FavoritesToCome {
    ShowItems shows;
    std::unordered_map<ShowDigest, ShowItem, ShowDigestHash> byDigest;
};
/// Shows with a favourite title that have not begun.
FavoritesToCome favoritesToCome(const AllShows& all, const FavoriteTitles& favorites, Moment now);

/// Shows of exactly this title that are not over.
ShowItems showScheduleForTitle(const AllShows& all, const QString& title, Moment now);

/// Whether a show with this source title and this flag is not over.
bool isBroadcast(const AllShows& all, const QString& identificator, bool previouslyShown, Moment now);

/// The first show with this digest URL.
std::optional<ShowItem> showWithURL(const AllShows& all, const QUrl& url, const QString& scheme);

/// The index of the first show that ends after the moment; the number of shows when none does.
std::size_t firstNotEnded(std::span<const ShowItem> list, Moment now);

} // namespace guide
