#include "text/categories/ShowClassifier.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

using Text = std::optional<QString>;

constexpr TVListingsCategory kMovies = TVListingsCategoryMovies;
constexpr TVListingsCategory kSeries = TVListingsCategorySeries;
constexpr TVListingsCategory kSports = TVListingsCategorySports;
constexpr TVListingsCategory kChildren = TVListingsCategoryForChildren;

TEST(ShowClassifierTest, ClassifiesByDetails) {
    const std::pair<QString, TVListingsCategory> rows[] = {
        {u"Film, komedija"_s, kMovies | TVListingsCategoryComedies},
        {u"Dramska serija"_s, kSeries},
        {u"Sportska drama, film"_s, kMovies | TVListingsCategoryDramas},
        {u"Fantasy SF"_s, TVListingsCategorySF},
        {u"Formula 1"_s, kSports},
        {u"Formulare"_s, 0},
        {u"Serie A"_s, kSeries},
        {u"soap opera"_s, kSeries},
        {u"opera"_s, TVListingsCategoryMusic},
        {u"filmski maraton"_s, kMovies},
        {u"maraton"_s, kSports},
        {u"sportski"_s, kSports},
        {u"esport"_s, kSports},
        {u"film."_s, kMovies},
        {u"film…"_s, 0},
        {u"filmovi"_s, 0},
        {u"drama, ep. 4"_s, kSeries},
        {u"dokumentarni film"_s, TVListingsCategoryDocumentaries},
        {u"crtani film"_s, kChildren},
        {u"reportaža"_s, TVListingsCategoryDocumentaries},
        {u"priča"_s, kChildren},
        {u"f."_s, kMovies},
        {u"s, 3"_s, kSeries},
        {u"šport, soutěžní show"_s, kSports},
        // A word of each remaining group.
        {u"klavir"_s, TVListingsCategoryMusic},
        {u"kviz"_s, TVListingsCategoryEntertainment},
        {u"dnevnik"_s, TVListingsCategoryNews},
        {u"vestern"_s, TVListingsCategoryWesterns},
        {u"horor"_s, TVListingsCategoryHorrors},
        {u"triler"_s, TVListingsCategoryThrillers},
        {u"krimi"_s, TVListingsCategoryCrime},
        {u"pust."_s, TVListingsCategoryAdventure},
        {u"akcija"_s, kMovies},
        // Exclusions.
        {u"krimi serija"_s, kSeries},
        {u"komedija, serija"_s, kSeries},
        {u"liga, serija"_s, kSports},
        {u"liga, vestern"_s, TVListingsCategoryWesterns},
        {u"kviz, serija"_s, kSeries},
        {u"kviz, vestern"_s, TVListingsCategoryWesterns},
        {u"serija, vestern"_s, kSeries},
        {u"dok. vestern"_s, TVListingsCategoryDocumentaries},
        {u"crtani vestern"_s, kChildren},
        {u"crtani, serija"_s, kChildren},
        {u"crtani, liga"_s, kChildren},
        {u"dok. serija"_s, TVListingsCategoryDocumentaries},
        // Case, marks and neighbouring characters.
        {u"KOŠARKA"_s, kSports},
        {u"kos\u030Carka"_s, kSports},
        {u"kosarka"_s, kSports},
        {u"đfilm"_s, 0},
        {u"e\u0301film"_s, 0},
        {u"1film2"_s, kMovies},
        {u"filmovi, film"_s, 0},
        {u"Film 😀"_s, kMovies},
        {u"각film"_s, 0},
    };
    for (const auto& [details, categories] : rows) {
        EXPECT_EQ(classifyEntry({}, {details, {}, {}}), categories) << details.toStdString();
    }
}

TEST(ShowClassifierTest, DistinguishesTextsAndSources) {
    const struct {
        const char* name;
        Text sourceId;
        Text details;
        Text title;
        Text description;
        TVListingsCategory categories;
    } rows[] = {
        {"nothing", {}, {}, {}, {}, 0},
        {"empty texts", u""_s, u""_s, u""_s, u""_s, 0},
        {"a source by its number", u"77"_s, {}, {}, {}, kChildren},
        {"children's source, a film", u"77"_s, {}, u"Neki film"_s, {}, kChildren},
        {"five characters are not a number", u"00077"_s, {}, {}, {}, 0},
        {"leading zeros", u"0077"_s, {}, {}, {}, kChildren},
        {"leading digits", u"77x"_s, {}, {}, {}, kChildren},
        {"digits of another script", u"٧٧"_s, {}, {}, {}, 0},
        {"an abbreviation of series in the title", {}, {}, u"s."_s, {}, kSeries},
        {"an abbreviation of film in the title", {}, {}, u"f."_s, {}, 0},
        {"the same abbreviation in the description", {}, {}, u"f."_s, u"f."_s, kMovies},
        {"the first abbreviation ends the search", {}, u"f."_s, {}, u"s."_s, kMovies},
        {"South Park is not for children", {}, u"crtani"_s, u"South Park"_s, {}, 0},
        {"an episode clears earlier categories", {}, u"film, ep."_s, {}, {}, kSeries},
        {"an episode keeps later categories", {}, u"ep."_s, {}, u"film"_s, kSeries},
        {"a title known to be a series", {}, u"film"_s, u"Kad lišće pada"_s, {}, kSeries},
        {"a title known not to be a film", {}, u"film"_s, u"Kućni ljubimci"_s, {}, 0},
        {"a report on a film", {}, u"film"_s, {}, u"reportaža"_s, TVListingsCategoryDocumentaries},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(classifyEntry(row.sourceId, {row.details, row.title, row.description}), row.categories)
            << row.name;
    }
}

} // namespace
} // namespace guide
