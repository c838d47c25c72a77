#include "text/categories/FeedGenres.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using std::chrono::minutes;

constexpr TVListingsCategory kNone = 0;
constexpr TVListingsCategory kMovies = TVListingsCategoryMovies;
constexpr TVListingsCategory kSeries = TVListingsCategorySeries;
constexpr TVListingsCategory kDocumentaries = TVListingsCategoryDocumentaries;
constexpr TVListingsCategory kChildren = TVListingsCategoryForChildren;
constexpr TVListingsCategory kNews = TVListingsCategoryNews;
constexpr TVListingsCategory kEntertainment = TVListingsCategoryEntertainment;
constexpr TVListingsCategory kMusic = TVListingsCategoryMusic;
constexpr TVListingsCategory kSports = TVListingsCategorySports;

ShowText showOf(int length, const QString& title, const QString& language) {
    ShowText show;
    show.title = title;
    show.language = language;
    if (length > 0) {
        show.length = minutes(length);
    }
    return show;
}

TEST(FeedGenresTest, ReadsCategoryElements) {
    struct Row {
        TVListingsCategory categories;
        const char16_t* language;
        int length;
        QStringList elements;
    };
    const Row rows[] = {
        // As a whole, folded.
        {kNews, u"de", 15, {u"Nachrichten"_s}},
        {kNews, u"fr", 5, {u"meteo"_s}},
        {kNews, u"fr", 5, {u"MÉTÉO"_s}},
        {kNews, u"fr", 5, {u"Me\u0301te\u0301o"_s}},
        {kSports, u"fr", 110, {u"hockey-sur-glace"_s}},
        {kDocumentaries, u"bg", 50, {u"Документален филм"_s}},
        {kChildren, u"tr", 20, {u"Çizgi Film"_s}},
        {kEntertainment, u"lv", 60, {u"Realitātes šovs"_s}},
        {kMusic, u"pl", 60, {u"program muzyczny"_s}},
        {kChildren, u"sl", 20, {u"risanka"_s}},
        {kSports, u"en", 60, {u"Special events (Olympic Games, World Cup, etc.)"_s}},
        // In parts, and several.
        {kSeries, u"it", 45, {u"Intrattenimento, Fiction"_s}},
        {kChildren, u"it", 5, {u"Ragazzi e Musica, Cartoni Animati"_s}},
        {kEntertainment, u"it", 30, {u"Mondo e Tendenze, Cucina"_s}},
        {kDocumentaries, u"de", 45, {u"Abenteuer, Dokumentation"_s}},
        {kNews, u"fr", 40, {u"Info-Météo"_s, u"Information"_s}},
        {kSports, u"fr", 60, {u"Magazine"_s, u"Mag. Sport"_s}},
        {kChildren, u"de", 11, {u"Animation"_s, u"Kinder"_s, u"Comedy"_s, u"Abenteuer"_s}},
        // German compounds, by their last member.
        {kSeries, u"de", 45, {u"Fantasy-Abenteuerserie"_s}},
        {kSeries, u"de", 45, {u"Krimidramaserie"_s}},
        {kDocumentaries, u"de", 45, {u"Auslandsreportage"_s}},
        {kMovies | TVListingsCategorySF, u"de", 90, {u"SciFi-Comicverfilmung"_s}},
        {kEntertainment, u"de", 45, {u"Schatzsuchershow"_s}},
        {kSports, u"de", 25, {u"Motorsportmagazin"_s}},
        {kChildren, u"de", 25, {u"Kinder-Abenteuerserie"_s}},
        {kMusic, u"de", 50, {u"Klassikkonzert"_s}},
        // What a generic word says yields to what another one says.
        {kMusic, u"en", 30, {u"Music"_s, u"Series"_s, u"Blues"_s}},
        {kEntertainment, u"en", 30, {u"Reality"_s, u"Human Interest"_s, u"Series"_s}},
        {kSeries, u"en", 25, {u"Comedy"_s, u"Series"_s}},
        {kDocumentaries, u"en", 64, {u"Movie"_s, u"Documentary"_s}},
        // A genre alone is that of a film or of a series.
        {kMovies | TVListingsCategoryDramas, u"en", 165, {u"Drama"_s}},
        {kSeries, u"en", 45, {u"Drama"_s}},
        {kMovies | TVListingsCategoryHorrors, u"en", 90, {u"Horror"_s, u"Series"_s}},
        // Neither.
        {kNone, u"de", 60, {u"Infomercial"_s}},
        {kNone, u"fr", 289, {u"fin"_s}},
        {kNone, u"de", 60, {u"Unbekanntes"_s}},
        // A word of another language: "sf" in "Stammesfehde", "Mag" in "Magie".
        {kNone, u"de", 60, {u"Stammesfehde"_s, u"Magie"_s, u"Popkornkino-Ecke"_s}},
    };
    for (const Row& row : rows) {
        ShowText show = showOf(row.length, u"Title"_s, QString::fromUtf16(row.language));
        show.categories = {row.elements.begin(), row.elements.end()};
        EXPECT_EQ(feedCategories(show), row.categories) << row.elements.join(u'+').toStdString();
    }
}

TEST(FeedGenresTest, ReadsTexts) {
    struct Row {
        TVListingsCategory categories;
        const char16_t* language;
        int length;
        const char16_t* title;
        const char16_t* subtitle;
        const char16_t* description;
    };
    const Row rows[] = {
        // Genres in a subtitle.
        {kSports, u"it", 15, u"Gli Inizi", u"S1E1 ║  Gli Inizi ║ Sport, Motori", u""},
        {kDocumentaries, u"it", 30, u"Pesca", u"Documentario (30')", u""},
        {kNone, u"it", 30, u"Ballarò", u"S1E1 ║ Natura morta", u""},
        // Definitions.
        {kSeries, u"hu", 45, u"Jesse", u"", u"amerikai akciófilm-sorozat,1993 Embercsempészek után nyomoz."},
        {kMovies, u"hu", 100, u"Vasvirág", u"", u"A novellákból készült magyar film, 1958, felújítva."},
        {kMovies | TVListingsCategoryComedies, u"de", 95, u"Die Reise", u"", u"Komödie, USA 2017"},
        {kSeries, u"el", 60, u"Μην Αρχίζεις", u"",
         u"Κωμική σειρά ελληνικής παραγωγής 2020-2021. Ο Ηλίας μιλά."},
        {kDocumentaries, u"sk", 30, u"Boj o život", u"",
         u"Ed sa vydal na krátku túru. Stratil sa. Americký dokumentárny seriál"},
        {kSeries, u"cs", 50, u"Ulice", u"", u"Možná jste to vy, kdo tu bydlí. Původní český seriál."},
        {kChildren, u"cs", 30, u"Spongebob", u"Loď", u"SpongeBob v kalhotách je kreslený seriál o houbě."},
        {kEntertainment, u"sk", 60, u"Moja mama varí", u"", u"Slovenská súťažná kuchárska show"},
        {kNews, u"sr", 5, u"Fleš", u"", u"Kratke vijesti Televizije Adria."},
        {kDocumentaries, u"ru", 30, u"д/с Планета цветов", u"", u"Цветы – не только украшение природы."},
        // Words in passing.
        {kNone, u"de", 45, u"Am Abend", u"",
         u"Anna sitzt zu Hause und langweilt sich. Er schaut einen Film und sie ein Konzert im Fernsehen."},
        {kNone, u"hu", 45, u"A médium", u"", u"Vajon segítenek a sorozatgyilkos elfogásában a látomásai?"},
        // Words within words.
        {kNone, u"en", 45, u"George and the Stammesfehde", u"", u"Newspapers and showers in Sportown."},
        // A documentary of half an hour that calls itself a film.
        {kNone, u"hu", 30, u"Némethy András", u"",
         u"A film egy vadászút egy-egy napját mutatja be Afrikában"},
        // Titles.
        {kNews, u"de", 15, u"Tagesschau", u"", u""},
        {kNews, u"sk", 30, u"Správy RTVS", u"", u""},
        {kSports, u"cs", 110, u"Fotbal: Slavia - Sparta", u"", u""},
        {kSports, u"it", 120, u"LIVE: Serie A - Napoli", u"", u""},
        {kEntertainment, u"it", 210, u"X Factor", u"", u""},
        {kNone, u"de", 60, u"Sendeschluss", u"", u""},
        {kNone, u"en", 25, u"Walker's Bones and Friends of Mine", u"", u""},
    };
    for (const Row& row : rows) {
        ShowText show = showOf(row.length, QString::fromUtf16(row.title), QString::fromUtf16(row.language));
        show.subtitle = QString::fromUtf16(row.subtitle);
        show.description = QString::fromUtf16(row.description);
        EXPECT_EQ(feedCategories(show), row.categories)
            << show.title.toStdString() << ": " << show.description.toStdString();
    }
}

TEST(FeedGenresTest, LooksElsewhereOnlyWhereTextsAreSilent) {
    struct Row {
        TVListingsCategory categories;
        const char16_t* channel;
        const char16_t* category;
        const char16_t* description;
        int length;
        bool hasRoles;
        bool hasEpisode;
    };
    const Row rows[] = {
        {kNone, u"NDR", u"", u"", 90, false, false},
        {kMovies, u"NDR", u"", u"", 90, true, false},
        {kNone, u"NDR", u"", u"", 60, true, false},
        {kNone, u"NDR", u"", u"", 0, true, false},
        {kEntertainment, u"NDR", u"Talkshow", u"", 120, true, false},
        {kSeries, u"NDR", u"", u"", 45, true, true},
        {kNone, u"NDR", u"", u"", 70, false, true},
        {kNone, u"NDR", u"", u"Der Moderator begrüßt wieder seine Gäste.", 45, true, true},
        // The theme of the channel.
        {kChildren, u"Nick Jr. HD", u"", u"", 10, false, true},
        {kChildren, u"Boing +1", u"", u"Dies ist eine Serie.", 10, true, true},
        {kMusic, u"MTV Hits", u"", u"", 60, false, false},
        {kEntertainment, u"Food Network (HD)", u"", u"", 30, false, true},
        {kEntertainment, u"auto motor und sport", u"", u"", 30, false, false},
        {kNone, u"Sportown TV", u"", u"", 30, false, false},
        {kMovies, u"Film Café (HD)", u"", u"", 95, false, false},
        {kNone, u"Film Café (HD)", u"", u"", 20, false, false},
        {kNews, u"Sky Sport News", u"Nachrichten", u"", 30, false, false},
        {kNone, u"Eurosport 1", u"Werbesendung", u"", 30, false, false},
        // For adults.
        {kChildren, u"ProSieben", u"Kinder", u"", 20, false, true},
        {kChildren, u"KiKA", u"Zeichentrickserie", u"", 20, false, true},
        {kSeries, u"Comedy Central", u"Zeichentrickserie", u"", 20, false, true},
    };
    for (const Row& row : rows) {
        ShowText show = showOf(row.length, u"Ohne Namen"_s, u"de"_s);
        show.channelName = QString::fromUtf16(row.channel);
        if (*row.category) {
            show.categories = {QString::fromUtf16(row.category)};
        }
        show.description = QString::fromUtf16(row.description);
        show.hasRoles = row.hasRoles;
        show.hasEpisode = row.hasEpisode;
        EXPECT_EQ(feedCategories(show), row.categories)
            << show.channelName.toStdString() << " " << row.length << " " << show.description.toStdString();
    }
}

} // namespace
} // namespace guide
