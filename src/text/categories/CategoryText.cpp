#include "text/categories/CategoryText.h"

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

struct Title {
    TVListingsCategory bit;
    const char16_t* text;
};

/// In order of precedence.
constexpr std::array kTitles{
    Title{TVListingsCategoryDocumentaries, u"Documentaries"},
    Title{TVListingsCategoryForChildren, u"For Children"},
    Title{TVListingsCategoryNews, u"News"},
    Title{TVListingsCategoryEntertainment, u"Entertainment"},
    Title{TVListingsCategoryMusic, u"Music"},
    Title{TVListingsCategorySports, u"Sports"},
    Title{TVListingsCategoryComedies, u"Comedies"},
    Title{TVListingsCategoryAdventure, u"Adventure"},
    Title{TVListingsCategoryCrime, u"Crime"},
    Title{TVListingsCategoryWesterns, u"Westerns"},
    Title{TVListingsCategoryDramas, u"Dramas"},
    Title{TVListingsCategoryThrillers, u"Thrillers"},
    Title{TVListingsCategorySF, u"SF"},
    Title{TVListingsCategoryFantasy, u"Fantasy"},
    Title{TVListingsCategoryHorrors, u"Horrors"},
    Title{TVListingsCategoryMovies, u"Movies"},
    Title{TVListingsCategorySeries, u"TV Series"},
};

} // namespace

QString textForCategory(TVListingsCategory category) {
    switch (category) {
    case TVListingsCategoryMostWatched:
        return u"Most Watched"_s;
    case TVListingsCategoryEveningShows:
        return u"Evening Shows"_s;
    case TVListingsCategoryAllFilm:
        return u"Feature Films"_s;
    case TVListingsCategoryAllShows:
        return u"All Shows"_s;
    default:
        break;
    }
    const auto found =
        std::ranges::find_if(kTitles, [&](const Title& title) { return category & title.bit; });
    return found == kTitles.end() ? u"All Shows"_s : QString::fromUtf16(found->text);
}

std::vector<QString> textsOfBits(TVListingsCategory categories) {
    std::vector<QString> texts;
    for (TVListingsCategory bit = 1; bit <= TVListingsCategoryHorrors; bit <<= 1) {
        if (categories & bit) {
            texts.push_back(textForCategory(bit));
        }
    }
    return texts;
}

} // namespace guide
