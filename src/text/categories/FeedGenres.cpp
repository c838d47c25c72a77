#include "text/categories/FeedGenres.h"

#include "text/categories/ShowClassifier.h"
#include "text/categories/genres/GenreEvidence.h"
#include "text/categories/genres/GenreWords.h"

#include <algorithm>

namespace guide {

using namespace genres;

namespace {

using std::chrono::minutes;

constexpr Bits kCategories = TVListingsCategoryAllShows;
/// More than any real show has.
constexpr std::size_t kMostCategories = 32;

bool isLongerThan(const ShowText& show, minutes length) {
    return show.length && *show.length > length;
}

bool isShorterThan(const ShowText& show, minutes length) {
    return show.length && *show.length < length;
}

const GenreWords& channelWords() {
    static const GenreWords kWords(kChannel | kChannelStart);
    return kWords;
}

/// What the name of the channel says.
Bits channelTheme(const ShowText& show) {
    Bits theme = 0;
    for (const Hit& hit : channelWords().find(show.channelName, show.language, kChannel | kChannelStart)) {
        if ((hit.row->places & kChannel) || hit.begin == 0) {
            theme |= hit.row->adds;
        }
    }
    return theme;
}

/// The categories of what was found.
TVListingsCategory settled(const ShowText& show, Bits found) {
    constexpr Bits kTold = kDocumentaries | kNews | kMusic | kSports;
    if (found & kForChildren) {
        return kForChildren;
    }
    const bool mayBeFilm = !show.hasEpisode && !isShorterThan(show, minutes(70));
    if (found & kAnimation) {
        if (!(found & kAdult)) {
            return kForChildren;
        }
        found |= found & kMovies || (mayBeFilm && show.length) ? kMovies : kSeries;
    }
    if (found & kTold) {
        found &= ~kEntertainment;
        if (found & (kNews | kDocumentaries)) {
            found &= ~kStories;
        }
        // A musical, or a concert?
        if ((found & kMusic) && (found & kMovies)) {
            found &= mayBeFilm ? ~kMusic : ~kStories;
        }
        if ((found & kMusic) && !(found & (kMovies | kSeries))) {
            found &= ~kStories;
        }
    } else if ((found & kEntertainment) && !(found & (kMovies | kSeries))) {
        found &= ~kStories;
    } else if ((found & kStoryGenres) && !(found & (kMovies | kSeries))) {
        found |= mayBeFilm ? kMovies : kSeries;
    }
    if (found & kSeries) {
        found &= ~TVListingsCategoryAllFilm;
    }
    return withoutExcluded(found & kCategories);
}

/// Whether the theme of the channel says more than what was found in the title and in the other texts.
bool isThemeBelieved(const ShowText& show, Bits theme, Bits title, Bits prose) {
    if (theme & kForChildren) {
        return ((title | prose) & (kNews | kSports | kMusic)) == 0;
    }
    const Bits found = title | prose;
    // Channels of other themes fill nights and weekends with films.
    constexpr Bits kWithFilms = kEntertainment | kDocumentaries;
    if ((theme & kWithFilms) && !show.hasEpisode &&
        isLongerThan(show, minutes(theme & kEntertainment ? 95 : 130))) {
        return false;
    }
    Bits outdone = kStories | kAnimation | kPresented;
    if (theme & (kSports | kMusic | kNews)) {
        outdone |= kEntertainment;
    }
    if (title & ~outdone) {
        return false;
    }
    // Descriptions mention many things in passing.
    if (theme & (kDocumentaries | kMusic | kSports)) {
        outdone |= kMusic | kSports | kNews | kEntertainment;
    }
    if (prose & ~outdone) {
        return false;
    }
    return !(found & kMovies) || isShorterThan(show, minutes(75));
}

} // namespace

TVListingsCategory feedCategories(const ShowText& show) {
    Evidence genres;
    for (std::size_t i = 0; i < std::min(show.categories.size(), kMostCategories); ++i) {
        addCategory(show.categories[i], show.language, genres);
    }
    addSubtitleGenres(show.subtitle, show.language, genres);
    const Bits named = genres.said();
    if (named & (kKinds & ~kAnimation)) {
        // Some feeds call all that is no film a series.
        const bool isUncertainSeries = !(genres.strong & kSeries) && (named & kStoryGenres);
        if ((named & kSeries) && isUncertainSeries && !show.hasEpisode && isLongerThan(show, minutes(75))) {
            return settled(show, (named & ~kSeries) | kMovies);
        }
        // Talk shows about politics, and news that a feed calls films.
        if (named == kEntertainment || ((named & kMovies) && isShorterThan(show, minutes(60)))) {
            Evidence title;
            addTitle(show.title, show.language, title);
            if (const Bits told = title.strong & (named & kMovies ? kNews | kSports : kNews)) {
                return settled(show, told);
            }
        }
        return settled(show, named);
    }
    if (named & kNothing) {
        return 0;
    }
    const Bits themes = channelTheme(show);
    Evidence title;
    addTitle(show.title, show.language, title);
    if (named & kAnimation) {
        return settled(show, named | (title.strong & kForChildren) | ((themes | title.strong) & kAdult));
    }
    if (title.strong & kNothing || themes & kNothing) {
        return 0;
    }
    constexpr Bits kThemes = kForChildren | kSports | kMusic | kNews | kDocumentaries | kEntertainment;
    const Bits theme = themes & kThemes;
    if (named & kStoryGenres) {
        return settled(show, named);
    }
    const Bits titled = title.said();
    Bits told = 0;
    if (!(titled & (kKinds | kStoryGenres)) && !(theme & kForChildren)) {
        Evidence prose;
        addSubtitle(show.subtitle, show.language, prose);
        addDescription(show.description, show.language, prose);
        if (prose.strong & kNothing) {
            return 0;
        }
        told = prose.said() | (prose.strong & kPresented);
        title.vague |= prose.vague;
        // A word about a film is no film.
        if ((told & kMovies) && isShorterThan(show, minutes(45))) {
            told &= ~kStories;
        }
    }
    if (theme != 0 && isThemeBelieved(show, theme, titled, told)) {
        return settled(show, theme);
    }
    const Bits found = titled | told;
    if (found & (kKinds | kStoryGenres)) {
        return settled(show, found | (themes & kAdult));
    }
    const bool mayBeFilm = !show.hasEpisode && isLongerThan(show, minutes(60));
    if ((themes & kMovies) && mayBeFilm && isLongerThan(show, minutes(69)) &&
        isShorterThan(show, minutes(240))) {
        return kMovies;
    }
    Bits vague = (title.vague ? title.vague : genres.vague) & kCategories;
    if ((vague & kMovies) && isShorterThan(show, minutes(60))) {
        vague = 0;
    }
    if (vague != 0) {
        return settled(show, vague);
    }
    if ((found | themes) & kPresented) {
        return 0;
    }
    if (show.hasRoles && mayBeFilm) {
        return kMovies;
    }
    if (isShorterThan(show, minutes(70)) && !isShorterThan(show, minutes(15)) &&
        (show.hasEpisode || (themes & kSeries))) {
        return kSeries;
    }
    return 0;
}

} // namespace guide
