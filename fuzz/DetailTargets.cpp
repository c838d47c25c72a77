#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "parsers/details/DetailScraper.h"
#include "parsers/details/IMDbLookup.h"
#include "parsers/details/RecordedShows.h"
#include "parsers/formats/RecordedCall.h"
#include "store/ShowCoding.h"

#include <array>

namespace guide::fuzz {

namespace {

/// A show page and two linked pages.
constexpr std::size_t kMaxPages = 3;

struct Family {
    const char* sourceId;
    const char* url;
    /// File in tests/recorded-details/.
    const char* page;
};

constexpr std::array kFamilies{
    Family{"-hbo.ro.1", "https://h.example/x", "hbo.html"},
    Family{"cc.romania", "https://cc.example/x", "comedycentral.html"},
    Family{"cinestar.hr.1", "https://c.example/x", "cinestar.html"},
    Family{"joj.cinema", "https://j.example/x", "joj.html"},
    Family{"_1", "https://p.example/x", "palinsesto.html"},
    Family{"42", "https://port.example/f?i_perf_id=99&z=1", "port.html"},
    Family{"10000", "https://tv.example/f", "hr.html"},
};

QByteArray recordedPage(const char* name) {
    return test::recordedContent(QStringLiteral(QUELLIN_TEST_DATA "/recorded-details/") +
                                 QString::fromLatin1(name));
}

/// Returns the pages in order, whatever URL is requested.
class PagesInTurn {
  public:
    explicit PagesInTurn(std::vector<QByteArray> pages)
        : m_pages(std::move(pages)) {}

    PageSource source() {
        return [this](const QUrl& url) -> std::optional<QByteArray> {
            require(url.isValid() && url.scheme().startsWith(QStringLiteral("http")),
                    "only http and https URLs are fetched");
            require(++m_asked <= kMaxPages, "a show needs at most three fetches");
            return m_asked <= m_pages.size() ? std::optional(m_pages[m_asked - 1]) : std::nullopt;
        };
    }

  private:
    std::vector<QByteArray> m_pages;
    std::size_t m_asked = 0;
};

void scrapeDetails(QByteArrayView bytes) {
    static const Alphabet alphabet;
    const FuzzInput input(bytes);
    const Family& family = kFamilies[input.choice(kFamilies.size())];
    PagesInTurn pages(input.textParts(kMaxPages));
    const auto entry = std::make_shared<TVEntry>(alphabet);
    entry->setSourceId(QString::fromLatin1(family.sourceId));
    entry->setUrl(QUrl(QString::fromLatin1(family.url)));
    entry->setIdentificator(QStringLiteral("Title"));
    entry->setDateTime(Moment(std::chrono::hours(1)));
    const DetailScraper scraper(
        {.pages = pages.source(), .hosts = test::recordedHosts(), .update = {}, .locale = QLocale::c()});
    const auto show = scraper.netDescriptionFor(entry);
    if (!show) {
        return;
    }
    for (const QUrl& picture : show->pictures().urls()) {
        require(picture.isValid() && !picture.host().isEmpty(), "a picture has a valid URL");
    }
    const auto read = unarchivedShows(archivedShows(std::array{*show}), alphabet);
    require(read && read->size() == 1, "a show with details can be archived");
}

void findRecordings(QByteArrayView bytes) {
    const FuzzInput input(bytes);
    PagesInTurn pages(input.textParts(2));
    recordedShowsWithTitle(QStringLiteral("Dnevnik"), test::recordedHosts(), pages.source());
}

void findFilm(QByteArrayView bytes) {
    static const QUrl search(QStringLiteral("https://imdb.example/find?q=x"));
    const FuzzInput input(bytes);
    const IMDbAnswer answer = imdbAnswer(input.whole(), search, input.choice(2) == 1);
    if (answer.imdbURL) {
        require(answer.imdbURL->host() == search.host(), "a film's page is on the searched site");
    }
}

void searchFilms(QByteArrayView bytes) {
    const FuzzInput input(bytes);
    const std::vector<QByteArray> texts = input.textParts(2);
    const QString title = QString::fromUtf8(texts[0]);
    const auto subtitle = texts.size() > 1 ? std::optional(QString::fromUtf8(texts[1])) : std::nullopt;
    const TVListingsCategory categories = input.choice(2) == 1 ? TVListingsCategorySeries : 0;
    const IMDbSearches searches = imdbSearches(title, subtitle, categories, test::recordedHosts());
    require(searches.urls.size() <= 2, "at most a title and a subtitle are searched");
    require(searches.urls.empty() || categories != 0, "only films and series are searched");
    if (searches.started) {
        const QByteArray query = searches.urls[0].query(QUrl::FullyEncoded).toLatin1();
        require(QByteArray::fromPercentEncoding(query.mid(query.indexOf("q=") + 2)) ==
                    title.toUtf8() + "&s=tt",
                "the search contains the whole title");
    }
}

} // namespace

std::vector<FuzzTarget> detailTargets() {
    return {
        {.name = "details",
         .run = scrapeDetails,
         .seeds =
             [] {
                 std::vector<QByteArray> seeds;
                 seeds.reserve(kFamilies.size());
                 for (std::size_t i = 0; i < kFamilies.size(); ++i) {
                     seeds.push_back(
                         fuzzInput({recordedPage(kFamilies[i].page), recordedPage("port-bottom.html"),
                                    recordedPage("port-top.html")},
                                   i));
                 }
                 return seeds;
             },
         .literals = {"parsers/details/HBODetails.cpp", "parsers/details/ComedyCentralDetails.cpp",
                      "parsers/details/CinestarDetails.cpp", "parsers/details/JojCinemaDetails.cpp",
                      "parsers/details/PalinsestoDetails.cpp", "parsers/details/PortDetails.cpp",
                      "parsers/details/PortPopups.cpp", "parsers/markers/PlainText.cpp"}},
        {.name = "recorded-shows",
         .run = findRecordings,
         .seeds =
             [] {
                 return std::vector<QByteArray>{fuzzInput(
                     {R"(<a href="/enz/a/">Jutro</a><li><a class="x" href="/enz/dnevnik/">Dnevnik</a>)",
                      R"(<select id="d"><option value="1">Ned</option><option value="2">Pon</option></select>)"})};
             },
         .literals = {"parsers/details/RecordedShows.cpp"}},
        {.name = "imdb-search",
         .run = searchFilms,
         .seeds =
             [] {
                 return std::vector<QByteArray>{
                     fuzzInput({"Žandarm & 100 % #1", "Le Gendarme à New York"}, 1),
                     fuzzInput({"Film", "A+B"}, 1)};
             },
         .literals = {"parsers/details/IMDbLookup.cpp"}},
        {.name = "imdb",
         .run = findFilm,
         .seeds =
             [] {
                 return std::vector<QByteArray>{fuzzInput(
                     {R"(<tr><td class="primary_photo"> <a href="/title/tt1/" ><img src="https://x/a._V1_UX32_CR0,0,32,44_AL_.jpg"></a>A (TV Series)</tr>)"},
                     1)};
             },
         .literals = {"parsers/details/IMDbLookup.cpp"}},
    };
}

} // namespace guide::fuzz
