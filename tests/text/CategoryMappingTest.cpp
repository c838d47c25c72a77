#include "text/categories/CategoryMapping.h"

#include "text/categories/CategoryTable.h"
#include "text/categories/CategoryText.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

constexpr TVListingsCategory kMovies = TVListingsCategoryMovies;
constexpr TVListingsCategory kDocumentaries = TVListingsCategoryDocumentaries;
constexpr TVListingsCategory kEntertainment = TVListingsCategoryEntertainment;

TEST(CategoryMappingTest, MapsTextsByTable) {
    const struct {
        TVListingsCategory (*map)(const QString&);
        QString text;
        TVListingsCategory categories;
    } rows[] = {
        {mapCategoryAttribute, u"Adventure"_s, kMovies | TVListingsCategoryAdventure},
        {mapCategoryAttribute, u"Magazine"_s, kEntertainment},
        {mapCategoryAttribute, u"Animated"_s, kMovies},
        {mapCategoryAttribute, u"music"_s, 0},
        {mapCategoryAttribute, u"Music "_s, 0},
        {mapBracketCategories, u"[Action, komedija]"_s, kMovies | TVListingsCategoryComedies},
        {mapBracketCategories, u"[serija]"_s, TVListingsCategorySeries},
        {mapBracketCategories, u"[Serija]"_s, 0},
        {mapBracketCategories, u"[sf]"_s, kMovies | TVListingsCategorySF},
        {mapBracketCategories, u"[SF]"_s, kMovies | TVListingsCategorySF},
        {mapBracketCategories, u"[Sf]"_s, 0},
        {mapBracketCategories, u"[pesca]"_s, kDocumentaries | TVListingsCategorySports},
        {mapBracketCategories, u"[Magazine des médias]"_s, TVListingsCategoryNews | kEntertainment},
        {mapBracketCategories, u"[Docu]"_s, 0},
        {mapBracketCategories, u"[Meteo]"_s, TVListingsCategoryNews},
        {mapBracketCategories, u"[meteo]"_s, 0},
        {mapBracketCategories, u"[SÉRIE]"_s, TVListingsCategorySeries},
        {mapBracketCategories, u"[opéra OPERA]"_s, TVListingsCategoryMusic},
        {mapBracketCategories, u"[AKČNÍ]"_s, kMovies},
        {mapBracketCategories, u"[akcni]"_s, 0},
        {mapBracketCategories, u"[Ak\u010Dni\u0301]"_s, kMovies},
        {mapBracketCategories, u"[Kultura\u0301]"_s, kDocumentaries},
        {mapBracketCategories, u"[Pop\u0301]"_s, 0},
        {mapBracketCategories, u"„Talk”"_s, kEntertainment},
        {mapDescriptionWords, u"Drama i dramska serija"_s,
         kMovies | TVListingsCategoryDramas | TVListingsCategorySeries},
        {mapDescriptionWords, u"drama, horror, comedy"_s, 0},
        {mapDescriptionWords, u"sf film, dječak, zab."_s,
         kMovies | TVListingsCategorySF | TVListingsCategoryForChildren | kEntertainment},
        {mapInstantDescriptionWords, u"animirani film za djecu"_s, kMovies | TVListingsCategoryForChildren},
        {mapInstantDescriptionWords, u"Film"_s, 0},
        {mapCategoryText, u"dokumentarni film"_s, kMovies | kDocumentaries},
        {mapCategoryText, u"SF film"_s, kMovies | TVListingsCategorySF},
        {mapCategoryText, u"sf film"_s, kMovies},
        {mapCategoryText, u"Fantastika"_s, kMovies | TVListingsCategoryFantasy},
        {mapCategoryText, u"znanstvena FANTASTIKA"_s, kMovies | TVListingsCategorySF},
        {mapCategoryText, u"SF, fantastika"_s, kMovies | TVListingsCategorySF},
        {mapCategoryText, u"KRIMINALISTIČKI"_s, kMovies | TVListingsCategoryCrime},
        {mapCategoryText, u""_s, 0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.map(row.text), row.categories) << row.text.toStdString();
    }
}

TEST(CategoryMappingTest, RecognisesSubtitlesAndTitles) {
    const struct {
        const char* name;
        std::optional<QString> subtitle;
        std::optional<QString> title;
        TVListingsCategory categories;
        bool recognised;
    } rows[] = {
        {"nothing", {}, {}, 0, false},
        {"an unknown word", u"Epizoda"_s, u"Naslov"_s, 0, false},
        {"a word of the first rows", u"komedija"_s, {}, kMovies | TVListingsCategoryComedies, true},
        {"a word of the last rows",
         u"sport i glazba"_s,
         {},
         TVListingsCategorySports | TVListingsCategoryMusic,
         true},
        {"a word in capitals", u"Komedija"_s, {}, 0, false},
        {"a producer without a subtitle", {}, u"National Geographic"_s, kDocumentaries, true},
        {"a producer in the subtitle", u"Viasat"_s, u"Naslov"_s, 0, false},
        {"both", u"show"_s, u"Discovery"_s, kEntertainment | kDocumentaries, true},
    };
    for (const auto& row : rows) {
        const SubtitleCategories words = mapSubtitleWords(row.subtitle, row.title);
        EXPECT_EQ(words.categories, row.categories) << row.name;
        EXPECT_EQ(words.recognised, row.recognised) << row.name;
    }
}

TEST(CategoryTableTest, KeysHaveTheirOwnFoldModes) {
    const CategoryTable table({{1, {u"Éa"}},
                               {2, {{u"Éa", FoldMode::Case}}},
                               {4, {{u"Éa", FoldMode::Diacritics}}},
                               {8, {u"none", {u"Éa", FoldMode::CaseAndDiacritics}}}});
    const std::pair<QString, TVListingsCategory> rows[] = {
        {u"xÉax"_s, 15}, {u"xE\u0301ax"_s, 15}, {u"xéAx"_s, 2 | 8}, {u"xEa"_s, 4 | 8},
        {u"ea"_s, 8},    {u"Éá"_s, 4 | 8},      {u"noneÉ"_s, 8},    {u"e"_s, 0},
    };
    for (const auto& [text, categories] : rows) {
        EXPECT_EQ(table.categoriesOf(table.rowsFoundIn(text)), categories) << text.toStdString();
    }
}

TEST(CategoryTextTest, TheFirstBitInPrecedenceGivesTheTitle) {
    const std::pair<TVListingsCategory, QString> rows[] = {
        {TVListingsCategoryMostWatched, u"Most Watched"_s},
        {TVListingsCategoryEveningShows, u"Evening Shows"_s},
        {TVListingsCategoryAllFilm, u"Feature Films"_s},
        {TVListingsCategoryAllShows, u"All Shows"_s},
        {0, u"All Shows"_s},
        {0x20000, u"All Shows"_s},
        {TVListingsCategoryMovies | TVListingsCategorySeries, u"Movies"_s},
        {TVListingsCategorySeries, u"TV Series"_s},
        {TVListingsCategoryMovies | TVListingsCategoryHorrors, u"Horrors"_s},
        {TVListingsCategoryFilmGenres, u"Comedies"_s},
        {TVListingsCategoryNews | TVListingsCategoryDocumentaries, u"Documentaries"_s},
    };
    for (const auto& [category, title] : rows) {
        EXPECT_EQ(textForCategory(category), title) << std::hex << category;
    }
    EXPECT_EQ(textsOfBits(TVListingsCategorySF | kMovies | 0x20000),
              (std::vector<QString>{u"Movies"_s, u"SF"_s}));
}

} // namespace
} // namespace guide
