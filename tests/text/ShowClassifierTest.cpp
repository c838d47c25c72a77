#include "text/categories/ShowClassifier.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

using Text = std::optional<QString>;

constexpr TVListingsCategory kMovies = TVListingsCategoryMovies;
constexpr TVListingsCategory kSeries = TVListingsCategorySeries;
constexpr TVListingsCategory kSports = TVListingsCategorySports;
constexpr TVListingsCategory kChildren = TVListingsCategoryForChildren;

TEST(ShowClassifierTest, ClassifiesByDetails) {
    const std::pair<TVListingsCategory, QStringList> rows[] = {
        {kMovies | TVListingsCategoryComedies, {u"Film, komedija"_s}},
        {kSeries, {u"Dramska serija"_s, u"Serie A"_s, u"soap opera"_s, u"drama, ep. 4"_s, u"s, 3"_s}},
        {kMovies | TVListingsCategoryDramas, {u"Sportska drama, film"_s}},
        {TVListingsCategorySF, {u"Fantasy SF"_s}},
        {kSports, {u"Formula 1"_s, u"maraton"_s, u"sportski"_s, u"esport"_s, u"šport, soutěžní show"_s}},
        {0, {u"Formulare"_s, u"film…"_s, u"filmovi"_s}},
        {TVListingsCategoryMusic, {u"opera"_s}},
        {kMovies, {u"filmski maraton"_s, u"film."_s, u"f."_s}},
        {TVListingsCategoryDocumentaries, {u"dokumentarni film"_s, u"reportaža"_s}},
        {kChildren, {u"crtani film"_s, u"priča"_s}},
        // A word of each remaining group.
        {TVListingsCategoryMusic, {u"klavir"_s}},
        {TVListingsCategoryEntertainment, {u"kviz"_s}},
        {TVListingsCategoryNews, {u"dnevnik"_s}},
        {TVListingsCategoryWesterns, {u"vestern"_s}},
        {TVListingsCategoryHorrors, {u"horor"_s}},
        {TVListingsCategoryThrillers, {u"triler"_s}},
        {TVListingsCategoryCrime, {u"krimi"_s}},
        {TVListingsCategoryAdventure, {u"pust."_s}},
        {kMovies, {u"akcija"_s}},
        // Exclusions.
        {kSeries, {u"krimi serija"_s, u"komedija, serija"_s, u"kviz, serija"_s, u"serija, vestern"_s}},
        {kSports, {u"liga, serija"_s}},
        {TVListingsCategoryWesterns, {u"liga, vestern"_s, u"kviz, vestern"_s}},
        {TVListingsCategoryDocumentaries, {u"dok. vestern"_s, u"dok. serija"_s}},
        {kChildren, {u"crtani vestern"_s, u"crtani, serija"_s, u"crtani, liga"_s}},
        // Case, marks and neighbouring characters.
        {kSports, {u"KOŠARKA"_s, u"kos\u030Carka"_s, u"kosarka"_s}},
        {0, {u"đfilm"_s, u"e\u0301film"_s, u"filmovi, film"_s, u"각film"_s}},
        {kMovies, {u"1film2"_s, u"Film 😀"_s}},
    };
    for (const auto& [categories, texts] : rows) {
        for (const QString& details : texts) {
            EXPECT_EQ(classifyEntry({}, {details, {}, {}}), categories) << details.toStdString();
        }
    }
}

TEST(ShowClassifierTest, DistinguishesTextsAndSources) {
    const std::tuple<const char*, Text, Text, Text, Text, TVListingsCategory> rows[] = {
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
    for (const auto& [name, sourceId, details, title, description, categories] : rows) {
        EXPECT_EQ(classifyEntry(sourceId, {details, title, description}), categories) << name;
    }
}

} // namespace
} // namespace guide
