// Bounds that hold for every page: its time per byte is not much above that of other pages of the family,
// and twice as many unclosed markers take at most twice the time.

#include "GeneratedShows.h"
#include "PageFormats.h"
#include "parsers/details/DetailScraper.h"
#include "parsers/formats/RecordedCall.h"

#include <QLoggingCategory>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>
#include <functional>
#include <map>
#include <memory>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

/// CPU seconds of the call, the fastest of several runs.
template <class Call>
double quickest(const Call& call) {
    constexpr int kTries = 9;
    double least = 0;
    for (int i = 0; i < kTries; ++i) {
        const std::clock_t start = std::clock();
        call();
        const double time = double(std::clock() - start) / CLOCKS_PER_SEC;
        least = i == 0 ? time : std::min(least, time);
    }
    return least;
}

std::size_t storedCount(const MergeResult& merged) {
    std::size_t count = 0;
    for (const auto& [channel, list] : merged.lists) {
        count += list->size();
    }
    return count;
}

/// Pages and how to read them.
struct Page {
    std::shared_ptr<const test::RecordedCall> call;
    QString name;
    QByteArray text;

    /// Smaller pages count as this many bytes, so that the fixed cost of a call does not count as the page's.
    double bytes() const { return double(std::max<qsizetype>(text.size(), 4096)); }
    std::size_t read() const { return storedCount(call->lists({text})); }
    /// Reads until a megabyte has been read.
    std::size_t readMegabyte() const {
        std::size_t shows = 0;
        for (double read = 0; read < 1e6; read += bytes()) {
            shows += this->read();
        }
        return shows;
    }
};

/// Every recorded page of a family and its fuzzer regressions.
std::vector<Page> pagesOf(const QString& family) {
    // Separates the pages of a regression; one choice byte follows them.
    constexpr char kSeparator = '\x1e';
    std::vector<Page> pages;
    std::shared_ptr<const test::RecordedCall> call;
    for (const QString& stem : test::recordedStems(family)) {
        call = std::make_shared<const test::RecordedCall>(stem);
        const std::vector<QByteArray> texts = call->pages();
        for (std::size_t i = 0; i < texts.size(); ++i) {
            pages.push_back({call, call->pageNames()[i], texts[i]});
        }
    }
    const QDir finds(QStringLiteral(QUELLIN_FUZZ_REGRESSIONS "/") + family);
    for (const QString& find : finds.entryList(QDir::Files, QDir::Name)) {
        for (const QByteArray& text :
             test::recordedContent(finds.filePath(find)).chopped(1).split(kSeparator)) {
            pages.push_back({call, find, QString::fromUtf8(text).toUtf8()});
        }
    }
    return pages;
}

/// The pages of a family by their time per byte.
const std::vector<Page>& pagesByTime(const QString& family) {
    static std::map<QString, std::vector<Page>> known;
    std::vector<Page>& pages = known[family];
    if (pages.empty()) {
        std::vector<std::pair<double, Page>> timed;
        for (Page& page : pagesOf(family)) {
            const double time = quickest([&page] { page.readMegabyte(); });
            timed.emplace_back(time, std::move(page));
        }
        std::sort(timed.begin(), timed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
        for (auto& [time, page] : timed) {
            pages.push_back(std::move(page));
        }
    }
    return pages;
}

void readRecorded(benchmark::State& state, const Page& page) {
    const std::size_t shows = page.readMegabyte();
    for ([[maybe_unused]] auto pass : state) {
        if (page.readMegabyte() != shows) {
            state.SkipWithError("different shows than before");
        }
    }
    state.SetLabel(page.name.toStdString());
}

void slowestRecorded(benchmark::State& state, const QString& family) {
    readRecorded(state, pagesByTime(family).back());
    state.counters["atMost"] = 20;
}

void medianRecorded(benchmark::State& state, const QString& family) {
    const std::vector<Page>& pages = pagesByTime(family);
    readRecorded(state, pages[pages.size() / 2]);
}

/// A format whose pages are flooded with a marker.
struct Flooded {
    std::string name;
    /// Valid pages, so that the markers are reached.
    std::vector<QByteArray> pages;
    std::vector<std::string> markers;
    /// The number of shows found, or the length of the texts.
    std::function<std::size_t(const std::vector<QByteArray>& pages)> read;
};

Flooded floodedFamily(std::string name, FamilyPages family, std::vector<std::string> markers) {
    std::vector<QByteArray> pages = family.pages;
    return {std::move(name), std::move(pages), std::move(markers),
            [family = std::move(family)](const auto& others) { return showCount(family.read(others)); }};
}

/// A show's page, scraped for details; every linked page is the same page.
Flooded floodedDetails(const char* page, const char* sourceId, const char* url,
                       std::vector<std::string> markers) {
    auto entry = std::make_shared<TVEntry>(alphabet());
    entry->setSourceId(QString::fromLatin1(sourceId));
    entry->setUrl(QUrl(QString::fromLatin1(url)));
    const auto read = [entry](const std::vector<QByteArray>& pages) -> std::size_t {
        const DetailScraper scraper({.pages = [&pages](const QUrl&) { return std::optional(pages.front()); },
                                     .hosts = test::recordedHosts(),
                                     .update = {},
                                     .locale = QLocale(QLocale::Italian)});
        const auto show = scraper.netDescriptionFor(entry);
        std::size_t length = show->pictures().size();
        for (const auto& text :
             {show->details()->description, show->details()->episodeDescription, show->details()->details,
              show->details()->directedBy, show->details()->roles}) {
            length += static_cast<std::size_t>(text.value_or(QString()).size());
        }
        return length;
    };
    const QByteArray text = test::recordedContent(QStringLiteral(QUELLIN_TEST_DATA "/recorded-details/") +
                                                  QLatin1StringView(page));
    return {std::string("details, ") + page, {text}, std::move(markers), read};
}

/// One channel and its show.
FamilyPages feedPages() {
    return {ListingsType::XMLTV,
            {{ObjectId(ObjectId::Bytes{1}), u"s.one"_s, u"cs"_s}},
            {"<tv><channel id=\"one\"><display-name>One</display-name></channel>"
             "<programme channel=\"one\" start=\"20261118200000 +0100\" stop=\"20261118210000 +0100\">"
             "<title lang=\"cs\">Two</title><sub-title>[three] (4)</sub-title><desc>five: &amp;</desc>"
             "<category>film</category><credits><actor>six</actor></credits></programme></tv>"},
            1};
}

constexpr std::size_t kGoodPages = 10'000;

const std::vector<Flooded>& floodedFormats() {
    static const std::vector<Flooded> all = [] {
        std::vector<Flooded> formats{
            floodedFamily("XMLTV", feedPages(),
                          {"<programme channel=\"one\" start=\"20261118200000 +0100\" "
                           "stop=\"20261118210000 +0100\">",
                           "<title lang=\"cs\">", "<sub-title>", "<desc>", "<category>", "<actor>", "[", "(",
                           "&amp;"}),
            floodedFamily("Port network", portNetworkPages(kGoodPages),
                          {"{\"2026-11-18\":", "{\"title\":", "[", "\"", "{\"programs\":[{"}),
            floodedFamily("Palinsesto", sectionedPalinsesto(kGoodPages),
                          {"<giorno ", "<canale id=\"", "<prg ", "<titolo>", "<descrizione>", "\""}),
            floodedFamily("Palinsesto, flat", flatPalinsesto(kGoodPages),
                          {"<programma ", "<programma idref=\"", " id=\"", "\""}),
            floodedDetails(
                "hbo.html", "-hbo.ro.1", "https://h.example/x",
                {"<div class=\"rich-snippet\"><script type=\"application/ld+json\">", "{\"image\":["}),
            floodedDetails("comedycentral.html", "cc.romania", "https://cc.example/x",
                           {":image\" content=\"", " class=\"subject-copy\">", "<p>"}),
            floodedDetails("cinestar.html", "cinestar.hr.1", "https://c.example/x",
                           {"\"value\">", "<div class=\"country\">", "<div class=\"actors\">", "<p>", "</p>",
                            "<div class=\"entry-content col-xs-11 col-md-10 col-lg-8\">"}),
            floodedDetails("joj.html", "joj.cinema", "https://j.example/x",
                           {" class=\"perex\">", "<p>", "<br>", "<br>Hrají: ", "<br>Režie: "}),
            floodedDetails("palinsesto.html", "_1", "https://p.example/x",
                           {"<div class=\"textParagrafo\">", "Regia: ", " - Cast: ", "<meta content=\"http",
                            "\" property=\"og:image\">"}),
            floodedDetails("port.html", "42", "https://port.example/f?i_perf_id=99&z=1",
                           {"url(", "/title/tt", "/title/tt1", ">IMDb<", " href=\"", "itemprop=\"name\">",
                            "<!-- actors -->", "<span itemprop=\"name\">", "<span>", "<!-- summary -->",
                            "<div>", "<label>rendező:</label>", "i_object_id=", "i_is_picture=2",
                            "<strong>A műsor"}),
            floodedDetails("hr.html", "10000", "https://tv.example/f",
                           {"<strong>Opis filma:", ">redatelj:", ">uloge:", "<!-- summary -->", "<div>",
                            "<span class=\"txt\"> ", "</a></span>", "\""}),
        };
        for (const PageFormat& format : pageFormats()) {
            formats.push_back(floodedFamily(format.name, format.make(kGoodPages), format.markers));
        }
        return formats;
    }();
    return all;
}

/// The pages up to the first occurrence of the marker, and after it only the marker, repeated.
std::vector<QByteArray> flood(const std::vector<QByteArray>& good, const std::string& marker,
                              qsizetype count) {
    const QByteArray text = QByteArray::fromStdString(marker);
    std::vector<QByteArray> pages;
    for (const QByteArray& page : good) {
        const qsizetype place = page.indexOf(text);
        pages.push_back(place < 0 ? page : page.first(place) + text.repeated(count));
        if (place >= 0) {
            return pages;
        }
    }
    return {text.repeated(count)};
}

constexpr qsizetype kHalf = 10'000;
constexpr qsizetype kMostMarkers = 640'000;
/// In seconds.
constexpr double kLongEnough = 1e-3;

/// The flooded pages of a format whose time grows most with twice the markers: `whole` has twice as many as
/// `half`.
struct Flood {
    std::string marker;
    std::vector<QByteArray> half;
    std::vector<QByteArray> whole;
};

const Flood& worstFlood(const Flooded& format) {
    static std::map<std::string, Flood> known;
    const auto place = known.find(format.name);
    if (place != known.end()) {
        return place->second;
    }
    Flood worst;
    double worstGrowth = 0;
    for (const std::string& marker : format.markers) {
        std::vector<QByteArray> half = flood(format.pages, marker, kHalf);
        std::vector<QByteArray> whole = flood(format.pages, marker, 2 * kHalf);
        // Too short to measure growth.
        const double growth =
            quickest([&] { format.read(whole); }) / (quickest([&] { format.read(half); }) + 1e-5);
        if (growth > worstGrowth) {
            worstGrowth = growth;
            worst = {marker, std::move(half), std::move(whole)};
        }
    }
    // Long enough for a ratio of times, if a reader goes through all of it.
    for (qsizetype count = 4 * kHalf;
         count <= kMostMarkers && quickest([&] { format.read(worst.half); }) < kLongEnough; count *= 4) {
        worst.half = flood(format.pages, worst.marker, count);
        worst.whole = flood(format.pages, worst.marker, 2 * count);
    }
    return known.emplace(format.name, std::move(worst)).first->second;
}

void readFlood(benchmark::State& state, const Flooded& format, const std::vector<QByteArray>& pages,
               const std::string& marker) {
    const std::size_t found = format.read(pages);
    for ([[maybe_unused]] auto pass : state) {
        if (format.read(pages) != found) {
            state.SkipWithError("a different result than before");
        }
    }
    state.SetLabel(marker);
}

void add(const std::string& name, const std::function<void(benchmark::State&)>& measured) {
    benchmark::RegisterBenchmark(name.c_str(), measured)->Unit(benchmark::kMillisecond)->MinTime(0.1);
}

const bool added = [] {
    QLoggingCategory::setFilterRules(u"guide.*=false"_s);
    for (const QString& family : test::recordedFolder().entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const std::string row = "1 MB of a recorded page, " + family.toStdString();
        add(row + "/guide", [family](benchmark::State& state) { slowestRecorded(state, family); });
        add(row + "/floor", [family](benchmark::State& state) { medianRecorded(state, family); });
    }
    for (const Flooded& format : floodedFormats()) {
        const std::string row = "unclosed markers, " + format.name;
        add(row + "/guide", [&format](benchmark::State& state) {
            const Flood& flood = worstFlood(format);
            readFlood(state, format, flood.whole, flood.marker);
            state.counters["atMost"] = 2.5;
        });
        add(row + "/floor", [&format](benchmark::State& state) {
            const Flood& flood = worstFlood(format);
            readFlood(state, format, flood.half, flood.marker);
        });
    }
    return true;
}();

} // namespace
} // namespace guide::bench
