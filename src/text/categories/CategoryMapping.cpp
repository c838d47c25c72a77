#include "text/categories/CategoryMapping.h"

#include "text/categories/CategoryTable.h"
#include "text/cleaning/TextLog.h"

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr FoldMode kCase = FoldMode::Case;
constexpr FoldMode kMarks = FoldMode::Diacritics;
constexpr FoldMode kBoth = FoldMode::CaseAndDiacritics;

struct AttributeRow {
    QLatin1StringView value;
    TVListingsCategory adds;
};

constexpr std::array kAttributes{
    AttributeRow{"Music"_L1, TVListingsCategoryMusic},
    AttributeRow{"Sports"_L1, TVListingsCategorySports},
    AttributeRow{"Adventure"_L1, TVListingsCategoryMovies | TVListingsCategoryAdventure},
    AttributeRow{"Science fiction"_L1, TVListingsCategoryMovies | TVListingsCategorySF},
    AttributeRow{"Drama"_L1, TVListingsCategoryMovies | TVListingsCategoryDramas},
    AttributeRow{"Entertainment"_L1, TVListingsCategoryEntertainment},
    AttributeRow{"Show"_L1, TVListingsCategoryEntertainment},
    AttributeRow{"Magazine"_L1, TVListingsCategoryEntertainment},
    AttributeRow{"News"_L1, TVListingsCategoryNews},
    AttributeRow{"Documentary"_L1, TVListingsCategoryDocumentaries},
    AttributeRow{"History"_L1, TVListingsCategoryDocumentaries},
    AttributeRow{"Educational"_L1, TVListingsCategoryDocumentaries},
    AttributeRow{"Children"_L1, TVListingsCategoryForChildren},
    AttributeRow{"Comedy"_L1, TVListingsCategoryMovies | TVListingsCategoryComedies},
    AttributeRow{"Romance"_L1, TVListingsCategoryMovies},
    AttributeRow{"Animated"_L1, TVListingsCategoryMovies},
};

/// Rows that are tested individually below.
constexpr std::uint64_t kBracketDramas = std::uint64_t(1) << 5;
constexpr std::uint64_t kTextSF = std::uint64_t(1) << 9;
constexpr std::uint64_t kTextFantasy = std::uint64_t(1) << 10;

// clang-format off
const CategoryTable& bracketTable() {
    static const CategoryTable kTable({
        {TVListingsCategoryMovies,
         {{u"film", kCase}, u"telenovela", u"cinema", u"azione", u"Action", u"Akcija", u"muzyczny",
          u"akciófilm", u"Acţiune", {u"Akční", kCase}}},
        {TVListingsCategoryMovies | TVListingsCategoryAdventure,
         {u"Abenteuer", u"avantura", u"Adventure", u"Aventuri", u"d'aventures", u"dobrodružný",
          u"Pustolovščina", u"Kalandfilm", u"putopis", u"avant.", u"avventura"}},
        {TVListingsCategoryNews,
         {u"Actualité", {u"Info", kCase}, u"d'information", u"rassegna stampa", {u"Météo", kMarks},
          u"News", u"Promet", u"Vreme", u"rassegna stampa", u"attualita", u"Nachrichten",
          u"ismeretterjesztő", u"Notizie", {u"Notiziario", kCase}, u"Magazine des médias", u"Nachrichten",
          u"Hírműsor", u"Magazine d'actualité"}},
        {TVListingsCategorySeries,
         {u"sit com", u"Sitcom", u"soap opera", u"Telenovela", u"telenovella", u"szappanopera",
          u"Nadaljevanka", u"Nanizanka", u"Krimireihe", u"serija", {u"serie", kBoth}, {u"sorozat", kBoth},
          u"Seriál", u"(S"}},
        {TVListingsCategoryForChildren,
         {u"Kids", u"Kinder", u"dječ", u"Otroški", {u"děti", kCase}, u"bambini", u"animirani porodični",
          u"tinejdžerski", u"djeji", u"Cartoni", u"CARTONI", u"dečiji"}},
        {TVListingsCategoryMovies | TVListingsCategoryDramas, {{u"filmdráma", kCase}, {u"Dram", kCase}}},
        {TVListingsCategoryMovies | TVListingsCategoryFantasy,
         {{u"Fiction", kCase}, {u"fantasti", kCase}, u"játékfilm", u"favolistico", u"fant.", u"fantasy"}},
        {TVListingsCategoryMovies | TVListingsCategorySF,
         {u"science-fiction", u"fantascienza", u"sci-fi", u"Scifi", u"Znanstvena fantastika", u"sf", u"SF"}},
        {TVListingsCategoryMovies | TVListingsCategoryHorrors,
         {u"d'horreur", {u"horror", kCase}, u"Grozljivka", u"Hor", u"horor"}},
        {TVListingsCategoryMovies | TVListingsCategoryCrime,
         {{u"Krimi", kCase}, {u"crime", kCase}, u"Crimă", {u"bűnügyi", kCase}, u"poliz",
          {u"policier", kBoth}}},
        {TVListingsCategoryDocumentaries,
         {u"Fortbildung", {u"Documenta", kCase}, {u"Dok", kCase}, u"mondo e tendenze", u"biografico",
          {u"reportage", kCase}, u"scienza", u"natura", u"Découvertes", u"politique", u"Kunst", u"Kultur",
          u"kultur", u"Religion", u"vjer", u"znanstveno-popularni program", u"ismeretterjesztő",
          u"educational", u"obraz", u"caccia", u"pesca", {u"Reportage", kCase}, u"Reportaža",
          {u"Culturel", kCase}, {u"Découverte", kCase}, u"Magazine du consommateur", u"caccia", u"viaggi",
          u"l'environnement", u"géopolitique", u"cultur", u"Potopis", u"Travel", u"viaggi", u"storia",
          u"Zgodovina", u"Découvertes", {u"Bildung", kCase}, u"scientifique", u"technique", u"DOC"}},
        {TVListingsCategorySports,
         {{u"Sport", kCase}, {u"Šport", kCase}, u"Fussball", u"nogomet", u"Calcio", {u"Sportif", kCase},
          u"Wrestling", u"Ciclismo", u"pesca"}},
        {TVListingsCategoryMusic,
         {u"Rock", u"muzika", u"Pop", {u"Concert", kCase}, u"Konzert", u"Koncert", {u"Musica", kCase},
          u"Musik", u"Muz", u"muzyczny", {u"muzikal", kMarks}, u"dance", u"Ples", u"muzyczny",
          {u"jazz", kCase}, {u"Opéra", kBoth}, u"Glasba", u"glaz", u"Hudba", u"hudební", u"danza",
          u"ROCK UND POP", u"MUSIK-CLIPS", u"dance"}},
        {TVListingsCategoryMovies | TVListingsCategoryComedies,
         {u"Comedy", {u"Comédie", kMarks}, u"comico", {u"commedia", kCase}, u"humoristique", u"vígjáték",
          u"filmszatíra", u"Kom", u"kom.", u"Humoristični", u"Humour", {u"Komedija", kCase}, u"komedie",
          u"Comedie", u"komödie"}},
        {TVListingsCategoryMovies | TVListingsCategoryWesterns,
         {{u"western", kCase}, u"vestern", u"West", u"Vestern"}},
        {TVListingsCategoryMovies | TVListingsCategoryThrillers,
         {{u"thriller", kCase}, u"Thril", u"Triler", u"triler", u"Srhljivka"}},
        {TVListingsCategoryEntertainment,
         {u"Divertissement", u"Entertainment", u"Intrattenimento", u"Débat", u"Reality-Soap",
          u"REALITY-SOAP", u"intrattenimento", u"Divertimento", {u"show", kCase}, u"Intervju", u"Kochen",
          u"cucina", {u"Culinaire", kCase}, u"quiz", u"Kviz", u"kviz", u"Loterie", u"lotto", u"Talk",
          u"Proslava", u"Débat", u"Diskussion", u"Conversazione", u"Mag", u"mag", {u"Magazin", kCase},
          u"Art de vivre", u"reality", u"zab", u"Záb"}},
    });
    return kTable;
}

const CategoryTable& subtitleTable() {
    static const CategoryTable kTable({
        {TVListingsCategoryMovies | TVListingsCategoryComedies, {u"komedija"}},
        {TVListingsCategoryMovies | TVListingsCategoryDramas, {u"drama"}},
        {TVListingsCategoryMovies | TVListingsCategoryCrime, {u"kriminalistički"}},
        {TVListingsCategoryForChildren, {u"dječji"}},
        {TVListingsCategoryEntertainment, {u"magazin", u"show", u"zabava"}},
        {TVListingsCategoryMovies, {u"romantika", u"biografski", u"akcija", u"telenovela", u"animirani"}},
        {TVListingsCategoryMovies | TVListingsCategoryThrillers, {u"triler"}},
        {TVListingsCategoryMovies | TVListingsCategoryHorrors, {u"horror"}},
        {TVListingsCategoryMovies | TVListingsCategoryAdventure, {u"avantura"}},
        {TVListingsCategoryMovies | TVListingsCategoryWesterns, {u"vestern"}},
        {TVListingsCategoryMovies | TVListingsCategorySF, {u"sf"}},
        {TVListingsCategoryMovies | TVListingsCategoryFantasy, {u"fantastika"}},
        {TVListingsCategoryNews, {u"informativni"}},
        {TVListingsCategoryDocumentaries, {u"dokumentarni"}},
        {TVListingsCategorySports, {u"sport"}},
        {TVListingsCategoryMusic, {u"glazba"}},
    });
    return kTable;
}

const CategoryTable& makersTable() {
    static const CategoryTable kTable({
        {TVListingsCategoryDocumentaries, {u"Discovery", u"Geo", u"Viasat"}},
    });
    return kTable;
}

const CategoryTable& descriptionTable() {
    static const CategoryTable kTable({
        {TVListingsCategoryMovies | TVListingsCategoryDramas, {u"dramska serija", u"Drama"}},
        {TVListingsCategoryMovies | TVListingsCategoryCrime, {u"kriminalistički film"}},
        {TVListingsCategorySeries, {u"serija"}},
        {TVListingsCategoryDocumentaries, {u"Documentary", u"dok."}},
        {TVListingsCategoryMovies | TVListingsCategoryWesterns, {u"Western"}},
        {TVListingsCategoryMovies, {u"Action"}},
        {TVListingsCategoryMovies | TVListingsCategoryAdventure, {u"avant."}},
        {TVListingsCategoryMovies | TVListingsCategoryComedies, {u"Comedy"}},
        {TVListingsCategoryMovies | TVListingsCategorySF, {u"Sci-Fi", u"sf film"}},
        {TVListingsCategoryMovies | TVListingsCategoryHorrors, {u"Horror"}},
        {TVListingsCategoryMusic, {u"glaz."}},
        {TVListingsCategoryEntertainment, {u"reality"}},
        {TVListingsCategoryForChildren, {u"dječ"}},
        {TVListingsCategoryNews, {u"infor."}},
        {TVListingsCategoryEntertainment, {u"zab."}},
    });
    return kTable;
}

const CategoryTable& instantDescriptionTable() {
    static const CategoryTable kTable({
        {TVListingsCategoryMovies, {u"film"}},
        {TVListingsCategoryForChildren, {u"za djecu"}},
        {TVListingsCategorySeries, {u"serija"}},
        {TVListingsCategoryDocumentaries, {u"dokumentarna"}},
    });
    return kTable;
}

const CategoryTable& categoryTextTable() {
    static const CategoryTable kTable({
        {TVListingsCategoryMovies, {{u"film", kCase}, {u"akcija", kCase}, {u"igrani", kCase}}},
        {TVListingsCategoryMovies | TVListingsCategoryAdventure, {{u"pustolovni film", kCase}}},
        {TVListingsCategorySeries, {{u"serij", kCase}}},
        {TVListingsCategorySports, {{u"sport", kCase}}},
        {TVListingsCategoryMusic, {{u"glazb", kCase}}},
        {TVListingsCategoryMovies | TVListingsCategoryCrime, {{u"kriminalistički", kCase}}},
        {TVListingsCategoryMovies | TVListingsCategoryWesterns, {{u"vestern", kCase}}},
        {TVListingsCategoryMovies | TVListingsCategoryAdventure, {{u"avantura", kCase}}},
        {TVListingsCategoryMovies | TVListingsCategoryDramas, {{u"drama", kCase}}},
        {TVListingsCategoryMovies | TVListingsCategorySF, {u"SF", {u"znanstvena fantastika", kCase}}},
        {TVListingsCategoryMovies | TVListingsCategoryFantasy, {{u"fantastika", kCase}}},
        {TVListingsCategoryDocumentaries,
         {{u"doku", kCase}, {u"gospodarstvo", kCase}, {u"obrazovanje", kCase}, {u"znanost", kCase},
          {u"kultura", kCase}, {u"umjetnost", kCase}, {u"religija", kCase}, {u"reportage", kCase}}},
        {TVListingsCategoryEntertainment,
         {{u"show", kCase}, {u"magazin", kCase}, {u"lifestyle", kCase}, {u"reality", kCase},
          {u"zabav", kCase}}},
        {TVListingsCategoryMovies | TVListingsCategoryComedies, {{u"komedija", kCase}}},
        {TVListingsCategoryNews,
         {{u"informativn", kCase}, {u"aktualnost", kCase}, {u"intervju", kCase}, {u"vijesti", kCase}}},
    });
    return kTable;
}

// clang-format on

} // namespace

TVListingsCategory mapCategoryAttribute(const QString& value) {
    const auto found =
        std::ranges::find_if(kAttributes, [&](const AttributeRow& row) { return value == row.value; });
    return found == kAttributes.end() ? 0 : found->adds;
}

TVListingsCategory mapBracketCategories(const QString& text) {
    const std::uint64_t rows = bracketTable().rowsFoundIn(text);
    if (rows & kBracketDramas) {
        qCDebug(textLog, "category=movie|drama");
    }
    return bracketTable().categoriesOf(rows);
}

SubtitleCategories mapSubtitleWords(const std::optional<QString>& subtitle,
                                    const std::optional<QString>& title) {
    SubtitleCategories result;
    if (subtitle) {
        const std::uint64_t rows = subtitleTable().rowsFoundIn(*subtitle);
        result = {subtitleTable().categoriesOf(rows), rows != 0};
    }
    if (title) {
        const std::uint64_t rows = makersTable().rowsFoundIn(*title);
        result.categories |= makersTable().categoriesOf(rows);
        result.recognised = result.recognised || rows != 0;
    }
    return result;
}

TVListingsCategory mapDescriptionWords(const QString& description) {
    return descriptionTable().categoriesOf(descriptionTable().rowsFoundIn(description));
}

TVListingsCategory mapInstantDescriptionWords(const QString& instantDescription) {
    return instantDescriptionTable().categoriesOf(instantDescriptionTable().rowsFoundIn(instantDescription));
}

TVListingsCategory mapCategoryText(const QString& text) {
    std::uint64_t rows = categoryTextTable().rowsFoundIn(text);
    if (rows & kTextSF) {
        rows &= ~kTextFantasy;
    }
    return categoryTextTable().categoriesOf(rows);
}

} // namespace guide
