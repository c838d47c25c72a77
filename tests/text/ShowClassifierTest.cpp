#include "text/ShowClassifier.h"

#include "GeneratedText.h"
#include "NaiveClassifier.h"

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
    };
    for (const auto& [details, categories] : rows) {
        EXPECT_EQ(classifyEntry({}, {details, {}, {}}), categories) << details.toStdString();
    }
}

TEST(ShowClassifierTest, TellsTextsAndSourcesApart) {
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
        {"five characters are no number", u"00077"_s, {}, {}, {}, 0},
        {"leading zeros", u"0077"_s, {}, {}, {}, kChildren},
        {"digits in front", u"77x"_s, {}, {}, {}, kChildren},
        {"another script's digits", u"٧٧"_s, {}, {}, {}, 0},
        {"a title of an abbreviated series", {}, {}, u"s."_s, {}, kSeries},
        {"a title of an abbreviated film", {}, {}, u"f."_s, {}, 0},
        {"the same abbreviation in the description", {}, {}, u"f."_s, u"f."_s, kMovies},
        {"the first abbreviation ends the search", {}, u"f."_s, {}, u"s."_s, kMovies},
        {"South Park is not for children", {}, u"crtani"_s, u"South Park"_s, {}, 0},
        {"an episode clears what came before", {}, u"film, ep."_s, {}, {}, kSeries},
        {"and not what comes after", {}, u"ep."_s, {}, u"film"_s, kSeries},
        {"a film by its title that is a series", {}, u"film"_s, u"Kad lišće pada"_s, {}, kSeries},
        {"no film by its title", {}, u"film"_s, u"Kućni ljubimci"_s, {}, 0},
        {"a report on a film", {}, u"film"_s, {}, u"reportaža"_s, TVListingsCategoryDocumentaries},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(classifyEntry(row.sourceId, {row.details, row.title, row.description}), row.categories)
            << row.name;
    }
}

TEST(ShowClassifierTest, AgreesWithPlainSearches) {
    QList<QString> words{
        u"kad lišće pada"_s, u"kućni ljubimci"_s, u"south park"_s, u"priča"_s, u"f."_s, u"s."_s, u"s,"_s};
    for (const ClassifierGroup& group : classifierGroups()) {
        for (const char16_t* word : group.words) {
            words += QString::fromUtf16(word);
        }
        for (const char16_t* word : {group.substring, group.conditional, group.unless}) {
            if (word) {
                // A share of the texts as large as that of a group.
                words += {QString::fromUtf16(word), QString::fromUtf16(word), QString::fromUtf16(word)};
            }
        }
    }
    GeneratedText generated(words);
    GeneratedText between({u" "_s, u", "_s, u". "_s, u"-"_s, u"…"_s, u""_s, u"a"_s, u"đ"_s, u"\u0301"_s,
                           u"😀"_s, u"각"_s, u"1"_s});
    const auto word = [&] {
        QString plain = generated.piece();
        switch (generated.below(6)) {
        case 0:
            return plain.toUpper();
        case 1:
            return plain.normalized(QString::NormalizationForm_D);
        case 2:
            return plain.first(plain.size() - 1);
        default:
            return plain;
        }
    };
    const auto text = [&]() -> Text {
        if (generated.below(5) == 0) {
            return std::nullopt;
        }
        QString made;
        for (unsigned left = generated.below(4); left > 0; --left) {
            made += between.piece() + word() + between.piece();
        }
        return made;
    };
    const std::array<Text, 6> sources{std::nullopt, u"36"_s, u"89"_s, u"77"_s, u"x"_s, u"14b"_s};
    int classified = 0;
    for (int i = 0; i < 3000; ++i) {
        const Text& source = sources[generated.below(sources.size())];
        const Text details = text();
        const Text title = text();
        const Text description = text();
        const TVListingsCategory categories = classifyEntry(source, {details, title, description});
        ASSERT_EQ(categories, naiveCategories(source, details, title, description))
            << source.value_or(u"-"_s).toStdString() << '|' << details.value_or(u"-"_s).toStdString() << '|'
            << title.value_or(u"-"_s).toStdString() << '|' << description.value_or(u"-"_s).toStdString();
        classified += categories != 0;
    }
    EXPECT_GT(classified, 2000);
}

} // namespace
} // namespace guide
