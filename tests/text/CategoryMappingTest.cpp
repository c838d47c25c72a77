#include "text/categories/CategoryMapping.h"

#include "text/categories/CategoryTable.h"
#include "text/categories/CategoryText.h"

#include <QStringList>

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
        TVListingsCategory categories;
        QStringList texts;
    } rows[] = {
        {mapCategoryAttribute, kMovies | TVListingsCategoryAdventure, {u"Adventure"_s}},
        {mapCategoryAttribute, kEntertainment, {u"Magazine"_s}},
        {mapCategoryAttribute, kMovies, {u"Animated"_s}},
        {mapCategoryAttribute, 0, {u"music"_s, u"Music "_s}},
        {mapBracketCategories, kMovies | TVListingsCategoryComedies, {u"[Action, komedija]"_s}},
        {mapBracketCategories, TVListingsCategorySeries, {u"[serija]"_s, u"[SÉRIE]"_s}},
        {mapBracketCategories, 0,
         QStringList{u"[Serija]"_s, u"[Sf]"_s, u"[Docu]"_s, u"[meteo]"_s, u"[akcni]"_s, u"[Pop\u0301]"_s}},
        {mapBracketCategories, kMovies | TVListingsCategorySF, {u"[sf]"_s, u"[SF]"_s}},
        {mapBracketCategories, kDocumentaries | TVListingsCategorySports, {u"[pesca]"_s}},
        {mapBracketCategories, TVListingsCategoryNews | kEntertainment, {u"[Magazine des médias]"_s}},
        {mapBracketCategories, TVListingsCategoryNews, {u"[Meteo]"_s}},
        {mapBracketCategories, TVListingsCategoryMusic, {u"[opéra OPERA]"_s}},
        {mapBracketCategories, kMovies, {u"[AKČNÍ]"_s, u"[Ak\u010Dni\u0301]"_s}},
        {mapBracketCategories, kDocumentaries, {u"[Kultura\u0301]"_s}},
        {mapBracketCategories, kEntertainment, {u"„Talk”"_s}},
        {mapDescriptionWords, kMovies | TVListingsCategoryDramas | TVListingsCategorySeries,
         QStringList{u"Drama i dramska serija"_s}},
        {mapDescriptionWords, 0, {u"drama, horror, comedy"_s}},
        {mapDescriptionWords, kMovies | TVListingsCategorySF | TVListingsCategoryForChildren | kEntertainment,
         QStringList{u"sf film, dječak, zab."_s}},
        {mapInstantDescriptionWords, kMovies | TVListingsCategoryForChildren, {u"animirani film za djecu"_s}},
        {mapInstantDescriptionWords, 0, {u"Film"_s}},
        {mapCategoryText, kMovies | kDocumentaries, {u"dokumentarni film"_s}},
        {mapCategoryText, kMovies | TVListingsCategorySF,
         QStringList{u"SF film"_s, u"znanstvena FANTASTIKA"_s, u"SF, fantastika"_s}},
        {mapCategoryText, kMovies, {u"sf film"_s}},
        {mapCategoryText, kMovies | TVListingsCategoryFantasy, {u"Fantastika"_s}},
        {mapCategoryText, kMovies | TVListingsCategoryCrime, {u"KRIMINALISTIČKI"_s}},
        {mapCategoryText, 0, {u""_s}},
    };
    for (const auto& row : rows) {
        for (const QString& text : row.texts) {
            EXPECT_EQ(row.map(text), row.categories) << text.toStdString();
        }
    }
}

TEST(CategoryMappingTest, RecognisesSubtitlesAndTitles) {
    const struct {
        const char* name;
        std::optional<QString> subtitle, title;
        TVListingsCategory categories;
        bool recognised;
    } rows[] = {
        {"nothing", {}, {}, 0, false},
        {"an unknown word", u"Epizoda"_s, u"Naslov"_s, 0, false},
        {"a word of the first rows", u"komedija"_s, {}, kMovies | TVListingsCategoryComedies, true},
        {"a word of the last rows", u"sport i glazba"_s, std::nullopt,
         TVListingsCategorySports | TVListingsCategoryMusic, true},
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
