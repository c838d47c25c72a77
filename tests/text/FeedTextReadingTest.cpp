#include "text/cleaning/TextTidying.h"
#include "text/cleaning/TitleCapitals.h"
#include "text/reading/CreditsReading.h"
#include "text/reading/DescriptionReading.h"
#include "text/reading/SubtitleReading.h"
#include "text/reading/TitleReading.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

/// "S2 E3/8 P1/2 1999 USA,D 12 New orig=…", what is set.
QString summary(const ShowFacts& facts) {
    QStringList parts;
    const EpisodeNumber& episode = facts.episode;
    const auto number = [&parts](const char* name, const std::optional<int>& value,
                                 const std::optional<int>& most) {
        if (value) {
            parts << QLatin1StringView(name) + QString::number(*value) +
                         (most ? u'/' + QString::number(*most) : QString());
        }
    };
    number("S", episode.season, {});
    number("E", episode.episode, episode.episodes);
    number("P", episode.part, episode.parts);
    number("", facts.year, {});
    if (!facts.countries.empty()) {
        parts << QStringList(facts.countries.begin(), facts.countries.end()).join(u',');
    }
    if (facts.ageRating) {
        parts << u"age="_s + *facts.ageRating;
    }
    if (facts.starRating) {
        parts << u"stars="_s + QString::number(facts.starRating->value);
    }
    if (facts.newness != Newness::Unknown) {
        parts << (facts.newness == Newness::New ? u"New"_s : u"Repeat"_s);
    }
    if (facts.originalTitle) {
        parts << u"orig="_s + *facts.originalTitle;
    }
    return parts.join(u' ');
}

struct Row {
    const char* language;
    const char16_t* text;
    const char16_t* left;
    const char16_t* facts;
};

QString text(const char16_t* literal) {
    return QStringView(literal).toString();
}

TEST(TitleReading, TakesOnlyTailsThatAreRecognised) {
    const Row rows[] = {
        // Numbers and words that belong to the name.
        {"hr", u"9-1-1", u"9-1-1", u""},
        {"en", u"Top 10", u"Top 10", u""},
        {"en", u"2 Broke Girls", u"2 Broke Girls", u""},
        {"hu", u"Pixie 2", u"Pixie 2", u""},
        {"fr", u"Le 12.45", u"Le 12.45", u""},
        {"fr", u"Eurockéennes 2012", u"Eurockéennes 2012", u""},
        {"en", u"Blade Runner 2049", u"Blade Runner 2049", u""},
        {"de", u"Mythos Heinrich VIII.", u"Mythos Heinrich VIII.", u""},
        {"cs", u"Rocky IV", u"Rocky IV", u""},
        {"cs", u"Star Wars: Epizoda IV - Nová naděje", u"Star Wars: Epizoda IV - Nová naděje", u""},
        {"en", u"Dune: Part 2", u"Dune: Part 2", u""},
        {"de", u"Good Bye, Lenin!", u"Good Bye, Lenin!", u""},
        {"sr", u"Dobro jutro, Srbijo", u"Dobro jutro, Srbijo", u""},
        {"hr", u"Gem, set, meč", u"Gem, set, meč", u""},
        {"de", u"Berlin, 1945", u"Berlin, 1945", u""},
        {"sr", u"Doček 2026.", u"Doček 2026.", u""},
        {"de", u"NFL Domestic 2025/2026", u"NFL Domestic 2025/2026", u""},
        {"fr", u"ICI 19/20", u"ICI 19/20", u""},
        {"it", u"TG 2", u"TG 2", u""},
        {"fr", u"How Are You? It's Alan (Partridge)", u"How Are You? It's Alan (Partridge)", u""},
        {"hr", u"2012", u"2012", u""},
        {"de", u"Folge 10", u"Folge 10", u""},
        {"de", u"K 11 - Kommissare im Einsatz", u"K 11 - Kommissare im Einsatz", u""},
        {"en", u"24", u"24", u""},
        {"en", u"Apollo 13", u"Apollo 13", u""},
        {"en", u"S.W.A.T.", u"S.W.A.T.", u""},
        {"en", u"Se7en", u"Se7en", u""},
        {"hu", u"Férfiakról férfiasan 2025.", u"Férfiakról férfiasan 2025.", u""},
        // Episodes.
        {"hu", u"Pokoli macskák II./6.", u"Pokoli macskák", u"S2 E6"},
        {"hu", u"Kókusz Coco, a kis sárkány I./19.", u"Kókusz Coco, a kis sárkány", u"S1 E19"},
        {"hu", u"Thomas, a gőzmozdony XXIV/15.", u"Thomas, a gőzmozdony", u"S24 E15"},
        {"hu", u"Bing XIV.", u"Bing", u"S14"},
        {"hu", u"Bluey 148.", u"Bluey", u"E148"},
        {"hu", u"A Tenkes kapitánya - 2/1. rész", u"A Tenkes kapitánya", u"E1/2"},
        {"hu", u"Csűrcsavarosdi I-II./23.", u"Csűrcsavarosdi", u"S1 E23"},
        {"cs", u"Kriminálka Anděl III (5)", u"Kriminálka Anděl III", u"E5"},
        {"cs", u"Vyprávěj (3/8)", u"Vyprávěj", u"E3/8"},
        {"cs", u"Ulice 3. díl", u"Ulice", u"E3"},
        {"sk", u"Panelák, 12. epizóda", u"Panelák", u"E12"},
        {"en", u"Friends S1 E2", u"Friends", u"S1 E2"},
        {"en", u"Friends S01E02", u"Friends", u"S1 E2"},
        {"it", u"Simone - Stag. 4 Ep. 2 - Il ladro di caramelle", u"Simone", u"S4 E2"},
        {"it", u"The Day: Episodio 7", u"The Day", u"E7"},
        {"it", u"Il Commissario Wallander: Serie 1, Episodio 2", u"Il Commissario Wallander", u"S1 E2"},
        {"de", u"Airport Security - Folge 10", u"Airport Security", u"E10"},
        {"de", u"Amerikas Naturwunder (2/8)", u"Amerikas Naturwunder", u"E2/8"},
        {"fr", u"Lupin, saison 2, épisode 5", u"Lupin", u"S2 E5"},
        {"ro", u"Las Fierbinți, Sezonul 3, Episodul 12", u"Las Fierbinți", u"S3 E12"},
        {"hr", u"Dinastija, 2. sezona, 14. epizoda", u"Dinastija", u"S2 E14"},
        {"hr", u"Larin izbor, dramska serija (23/60)", u"Larin izbor", u"E23/60"},
        {"pl", u"Zaraz wracam - odc. 28", u"Zaraz wracam", u"E28"},
        {"pl", u"Ranczo (s. 3, odc. 12)", u"Ranczo", u"S3 E12"},
        {"el", u"Λάμα Λάμα (Β' ΚΥΚΛΟΣ)", u"Λάμα Λάμα", u"S2"},
        {"el", u"NCIS - 10ος Κύκλος (Ε)", u"NCIS", u"S10 Repeat"},
        {"el", u"10η Εντολή, IΙΙ (Ε)", u"10η Εντολή", u"S3 Repeat"},
        {"tr", u"Kara Sevda 2. Sezon 14. Bölüm", u"Kara Sevda", u"S2 E14"},
        {"bg", u"Стъклен дом, сезон 2, епизод 5", u"Стъклен дом", u"S2 E5"},
        {"en", u"Show S0E0", u"Show", u""},
        // Years, countries, genres.
        {"hr", u"Titanic (USA, 1997)", u"Titanic", u"1997 USA"},
        {"hr", u"Titanic, američki film (SAD/1997)", u"Titanic", u"1997 SAD"},
        {"sk", u"Miss Potter (2006)", u"Miss Potter", u"2006"},
        {"de", u"Neuseeland - Wald der Riesen - Frankreich 2022", u"Neuseeland - Wald der Riesen",
         u"2022 Frankreich"},
        {"hr", u"Ruža vjetrova, serija", u"Ruža vjetrova", u""},
        {"el", u"Ο ΜΠΟΥΦΟΣ (ΕΛΛΗΝΙΚΗ ΤΑΙΝΙΑ)", u"Ο ΜΠΟΥΦΟΣ", u""},
        {"el", u"Τα Φιλαράκια (Friends) - 7ος Κύκλος", u"Τα Φιλαράκια", u"S7 orig=Friends"},
        {"de", u"Krieg und Frieden - Spielfilm Italien/USA 1956 (War and Peace)", u"Krieg und Frieden",
         u"1956 Italien,USA orig=War and Peace"},
        {"de", u"Beverly Hills 9-0 (Das Original)", u"Beverly Hills 9-0 (Das Original)", u""},
        {"hu", u"Fiú, Lány, stb. 154.", u"Fiú, Lány, stb.", u"E154"},
        // Dates of broadcasts.
        {"it", u"La volta buona - Puntata del 31/12/2025", u"La volta buona", u""},
        {"it", u"Diretta Gol Ucl 26/11/2025", u"Diretta Gol Ucl", u""},
        {"en", u"The Source - Tuesday, December 30, 2025 9PM", u"The Source", u""},
        {"cs", u"Události, 1. ledna 2026", u"Události", u""},
        {"it", u"Strage di Bologna, 2 agosto 1980", u"Strage di Bologna, 2 agosto 1980", u""},
        {"en", u"12/12", u"12/12", u""},
        {"en", u"Apocalypse 21.12.2012", u"Apocalypse 21.12.2012", u""},
        // Marks.
        {"hr", u"Dnevnik (R)", u"Dnevnik", u"Repeat"},
        {"ro", u"Știri (Reluare)", u"Știri", u"Repeat"},
        {"cs", u"Zprávy (opak.)", u"Zprávy", u"Repeat"},
        {"de", u"Tagesschau (Wh.)", u"Tagesschau", u"Repeat"},
        {"hu", u"Híradó (ism.)", u"Híradó", u"Repeat"},
        {"it", u"Forum (replica)", u"Forum", u"Repeat"},
        {"pl", u"Fakty (powt.)", u"Fakty", u"Repeat"},
        {"tr", u"Haber (tekrar)", u"Haber", u"Repeat"},
        {"el", u"ΠΟΠ ΜΑΓΕΙΡΙΚΗ (Α' ΤΗΛΕΟΠΤΙΚΗ ΜΕΤΑΔΟΣΗ)", u"ΠΟΠ ΜΑΓΕΙΡΙΚΗ", u"New"},
        {"el", u"ΜΑΜΑ-ΔΕΣ (ΝΕΟ ΕΠΕΙΣΟΔΙΟ)", u"ΜΑΜΑ-ΔΕΣ", u"New"},
        {"it", u"Better Call Roby - 1^TV", u"Better Call Roby", u"New"},
        {"it", u"Amici (NUOVO)", u"Amici", u"New"},
        {"cs", u"Film [ST,AD,HD]", u"Film", u""},
        {"bg", u"Новини /п/", u"Новини", u"Repeat"},
        {"sr", u"Вести (р)", u"Вести", u"Repeat"},
        {"de", u"Tatort (Wh. vom Vortag)", u"Tatort", u"Repeat"},
        {"bg", u"Стъклен дом (сериал, сезон 2, еп. 5)", u"Стъклен дом", u"S2 E5"},
        {"lv", u"Ugunsgrēks 12. sērija", u"Ugunsgrēks", u"E12"},
        {"de", u"Harry Potter - Teil 2", u"Harry Potter - Teil 2", u""},
        {"de", u"Buddenbrooks (Teil 2)", u"Buddenbrooks", u"P2"},
        {"en", u"England, my England - I", u"England, my England - I", u""},
        {"en", u"Sergap (L)", u"Sergap (L)", u""},
        // Blanks.
        {"cs", u"  Dva\\nTři   čtyři\u00a0", u"Dva Tři čtyři", u""},
    };
    for (const Row& row : rows) {
        const ReadTitle read = readTitle(text(row.text), QLatin1StringView(row.language), 2025);
        EXPECT_EQ(read.title, text(row.left)) << text(row.text).toStdString();
        EXPECT_EQ(summary(read.facts), text(row.facts)) << text(row.text).toStdString();
    }
    EXPECT_EQ(readTitle(u"Simone - Stag. 4 Ep. 2 - Il ladro"_s, u"it"_s).subtitle, u"Il ladro"_s);
    EXPECT_EQ(readTitle(u"Titanic, američki film (SAD/1997)"_s, u"hr"_s).genre, u"američki film"_s);
    EXPECT_EQ(seasonedTitle(u"FBI VII"_s)->title, u"FBI"_s);
    EXPECT_FALSE(seasonedTitle(u"VII"_s));
}

TEST(TitleReading, KnowsPlaceholdersOfManyLanguages) {
    for (const char16_t* each :
         {u"NEMA INFORMACIJA", u"Nema informacija o programu.", u"No Information", u"Keine Information",
          u"Δεν υπάρχουν πληροφορίες", u"Vysílání neposkytnuto"}) {
        EXPECT_TRUE(isFeedPlaceholder(text(each))) << text(each).toStdString();
    }
    for (const char16_t* each : {u"", u"Information", u"Unknown", u"No Country for Old Men"}) {
        EXPECT_FALSE(isFeedPlaceholder(text(each))) << text(each).toStdString();
    }
}

TEST(TitleCapitals, KeepAcronymsAndFollowTheLanguage) {
    const std::tuple<const char*, const char16_t*, const char16_t*> rows[] = {
        {"hr", u"NCIS", u"NCIS"},
        {"it", u"TG1", u"TG1"},
        {"it", u"TG5 SPECIALE", u"TG5 Speciale"},
        {"en", u"M.A.S.H.", u"M.A.S.H."},
        {"tr", u"PAZAR SİNEMASI", u"Pazar Sineması"},
        {"tr", u"KIRMIZI ODA", u"Kırmızı Oda"},
        {"el", u"ΛΟΓΟΣ ΚΑΙ ΠΑΘΟΣ", u"Λογος Και Παθος"},
        {"nl", u"HET IJS", u"Het IJs"},
        {"hr", u"DNEVNIK", u"Dnevnik"},
        {"en", u"QI XL", u"QI XL"},
        {"de", u"SOKO LEIPZIG", u"SOKO Leipzig"},
        {"hr", u"LJETO U GRADU IV", u"Ljeto U Gradu IV"},
        {"de", u"iCarly", u"iCarly"},
        {"de", u"NDR Talk Show", u"NDR Talk Show"},
        {"hr", u"FORMULA 1", u"Formula 1"},
        {"hr", u"123", u"123"},
    };
    for (const auto& [language, title, expected] : rows) {
        EXPECT_EQ(withoutCapitals(text(title), QLatin1StringView(language)), text(expected));
    }
}

TEST(SubtitleReading, TakesFactsAndKeepsTheRest) {
    const Row rows[] = {
        {"de", u"100 Meter", u"100 Meter", u""},
        {"de", u"9-1-1", u"9-1-1", u""},
        {"de", u"1. Pilot", u"1. Pilot", u""},
        {"sk", u"Epizoda 1", nullptr, u"E1"},
        {"sk", u"1. část", nullptr, u"P1"},
        {"en", u"5183", nullptr, u"E5183"},
        {"en", u"3, Series 45", nullptr, u"S45 E3"},
        {"sk", u"Šťastie je ako motýľ 2/2", u"Šťastie je ako motýľ", u"P2/2"},
        {"en", u"The Gift (1/2)", u"The Gift", u"P1/2"},
        {"fr", u"Saison 1 Episode 2 : Le retour", u"Le retour", u"S1 E2"},
        {"it", u"S15E11 ║ Gioco al rialzo ║ Reality, Auktion ║ US ║ 2023 ║ 12", u"Gioco al rialzo",
         u"S15 E11 2023 US age=12"},
        {"it", u"S1E7 ║ Intrattenimento, Show", nullptr, u"S1 E7"},
        {"it", u"E0 ║ Gary ║ Mondo e Tendenze, Documentario", u"Gary", u""},
        {"it", u"S4E10 ║ Il visone ║ Serie Tv, Dramma ║ 1981 ║ 3,661 ║ Stati Uniti", u"Il visone",
         u"S4 E10 1981 Stati Uniti stars=3.6"},
        {"it", u"2014 ║ GB, IE, US", nullptr, u"2014 GB,IE,US"},
        {"hu", u"filmsorozat", nullptr, u""},
        {"hu", u"A szirének dala 1. rész", u"A szirének dala", u"E1"},
    };
    for (const Row& row : rows) {
        const ReadSubtitle read = readSubtitle(text(row.text), QLatin1StringView(row.language));
        EXPECT_EQ(read.subtitle, row.left ? std::optional(text(row.left)) : std::nullopt)
            << text(row.text).toStdString();
        EXPECT_EQ(summary(read.facts), text(row.facts)) << text(row.text).toStdString();
    }
}

TEST(DescriptionReading, TakesFactsOffBothEnds) {
    const Row rows[] = {
        {"de",
         u"(CDN|D|F) 2017 • S3 E66 • FSK 6\nDer Abend: Lena ist zurück.\nOriginaltitel\nFind "
         u"Me\nAusstrahlung\nMorgen 13:35-14:25",
         u"Der Abend: Lena ist zurück.", u"S3 E66 2017 CDN,D,F age=6 orig=Find Me"},
        {"de", u"(Fortsetzung) 2017 war ein Jahr.", u"(Fortsetzung) 2017 war ein Jahr.", u""},
        {"fr", u"Saison:1 - Episode:1 - A peine parti.", u"A peine parti.", u"S1 E1"},
        {"en", u"He checks it out. S37/Ep10", u"He checks it out.", u"S37 E10"},
        {"en", u"Text here. (S2 Ep8/22)", u"Text here.", u"S2 E8/22"},
        {"en", u"Accidents. S02 E01, USA 1988", u"Accidents.", u"S2 E1 1988 USA"},
        {"it", u"S1 Ep.09 L'invidia - Tino ha tanti giochi", u"L'invidia - Tino ha tanti giochi", u"S1 E9"},
        {"it", u"Ep5 di 10 - I ragazzi", u"I ragazzi", u"E5/10"},
        {"el", u"Eπεισόδιο 44 - «Φασόλια»", u"«Φασόλια»", u"E44"},
        {"el", u"[Κ16 - Περιέχει βία]. Α΄ τηλεοπτική προβολή. Κωμωδία.", u"Κωμωδία.", u"age=Κ16 New"},
        {"el", u"Ντοκιμαντέρ Eπεισόδιο 4 - Γιούκον", u"Ντοκιμαντέρ - Γιούκον", u"E4"},
        {"sk", u"Text filmu. (skryte titulky)", u"Text filmu.", u""},
        {"it", u"Un film. Titolo originale: The Gift. Con molti attori.", u"Un film. Con molti attori.",
         u"orig=The Gift"},
        {"fr", u"Texte (Titre original : The Gift) suite", u"Texte suite", u"orig=The Gift"},
        {"hr", u"2. epizoda serije donosi nove izazove.", u"2. epizoda serije donosi nove izazove.", u""},
        {"de", u"Ein Satz, der\nweitergeht.\nNeue Zeile", u"Ein Satz, der weitergeht.\nNeue Zeile", u""},
    };
    for (const Row& row : rows) {
        const ReadDescription read = readDescription(text(row.text), QLatin1StringView(row.language));
        EXPECT_EQ(read.text, text(row.left)) << text(row.text).toStdString();
        EXPECT_EQ(summary(read.facts), text(row.facts)) << text(row.text).toStdString();
    }
}

TEST(DescriptionReading, TakesCreditsByTheirLabels) {
    struct CreditRow {
        const char16_t* text;
        const char16_t* left;
        const char16_t* directedBy;
        const char16_t* roles;
    };
    const CreditRow rows[] = {
        {u"Ein Film. Regie: Anna Berg. Darsteller: Jan Muster, Eva Klein u. a.", u"Ein Film.", u"Anna Berg",
         u"Jan Muster, Eva Klein"},
        {u"Un film.\nRegia: Ugo Neri\nCast: Ada Bianchi, Leo Rossi, Altri", u"Un film.", u"Ugo Neri",
         u"Ada Bianchi, Leo Rossi"},
        {u"Un film. Réalisateur : Luc Blanc. Avec : Eva Noir, J. Petit", u"Un film.", u"Luc Blanc",
         u"Eva Noir, J. Petit"},
        {u"Un film. Regia: Ion Pop. Distribuția: Ana Rus, Dan Lup.", u"Un film.", u"Ion Pop",
         u"Ana Rus, Dan Lup"},
        {u"Film. Reżyseria: Jan Kos. Obsada: Ewa Nowak, Adam Lis.", u"Film.", u"Jan Kos",
         u"Ewa Nowak, Adam Lis"},
        {u"Film. Yönetmen: Ali Can. Oyuncular: Ece Su, Can Dal.", u"Film.", u"Ali Can", u"Ece Su, Can Dal"},
        {u"Ταινία. Παίζουν: Άννα Νικολάου, Γιώργος Παππάς κ.ά. Σκηνοθεσία: Νίκος Δήμου. Διάρκεια: 82’.",
         u"Ταινία. Διάρκεια: 82’.", u"Νίκος Δήμου", u"Άννα Νικολάου, Γιώργος Παππάς"},
        {u"Rejtély.Rendezte: Ted Wass, Gail MancusoFőszereplők: Pat Burton, Megyn Price", u"Rejtély.",
         u"Ted Wass, Gail Mancuso", u"Pat Burton, Megyn Price"},
        {u"Seriál. Hrajú: D. Morávková, J. Kačer a ďalší. Režia: V. Drha.", u"Seriál.", u"V. Drha",
         u"D. Morávková, J. Kačer"},
        {u"Film. Uloge: Ana Ban, Ivo Dan Redatelj: Pero Kos", u"Film.", u"Pero Kos", u"Ana Ban, Ivo Dan"},
        {u"Die Regie: ein schweres Amt.", u"Die Regie: ein schweres Amt.", nullptr, nullptr},
        {u"Musik: Bach. Text.", u"Musik: Bach. Text.", nullptr, nullptr},
    };
    for (const CreditRow& row : rows) {
        QString left = text(row.text);
        const ReadCredits credits = takeCredits(left);
        const auto expected = [](const char16_t* names) {
            return names ? std::optional(text(names)) : std::nullopt;
        };
        EXPECT_EQ(left, text(row.left)) << text(row.text).toStdString();
        EXPECT_EQ(credits.directedBy, expected(row.directedBy)) << text(row.text).toStdString();
        EXPECT_EQ(credits.roles, expected(row.roles)) << text(row.text).toStdString();
    }
}

TEST(DescriptionReading, TakesNamesOnLinesAtTheEnd) {
    const ReadDescription read = readDescription(
        u"Un detective indaga.\nTony Wharmby\nChris O'Donnell - G. Callen\nLL Cool J - Sam Hanna."_s,
        u"it"_s);
    EXPECT_EQ(read.text, u"Un detective indaga."_s);
    EXPECT_EQ(read.credits.directedBy, u"Tony Wharmby"_s);
    EXPECT_EQ(read.credits.roles, u"Chris O'Donnell - G. Callen, LL Cool J - Sam Hanna"_s);
    EXPECT_FALSE(readDescription(u"Heute im Programm.\nNeue Folge\nMit Gästen"_s, u"de"_s).credits.roles);
}

TEST(TextTidying, ClosesOnlyOpenSentences) {
    for (const auto& [before, after] :
         {std::pair(u"Text", u"Text."), std::pair(u"Text!", u"Text!"), std::pair(u"Text?", u"Text?"),
          std::pair(u"Text…", u"Text…"), std::pair(u"Text:", u"Text:"), std::pair(u"„Text!“", u"„Text!“"),
          std::pair(u"(Text.)", u"(Text.)"), std::pair(u"(Text)", u"(Text)."), std::pair(u"", u"")}) {
        QString closed = text(before);
        closeSentence(closed);
        EXPECT_EQ(closed, text(after));
    }
}

} // namespace
} // namespace guide
