// The page readers, each on two megabytes of its format. The baseline for searching is the reader itself on
// the same pages with unreadable times: it finds every field and creates no shows.

#include "PageFormats.h"
#include "parsers/markers/ZoneClock.h"
#include "text/categories/ShowClassifier.h"
#include "text/cleaning/Capitalisation.h"
#include "text/cleaning/MarkupText.h"

#include <QDateTime>

#include <benchmark/benchmark.h>
#include <cstring>
#include <memory>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr std::size_t kSize = 2'000'000;

/// The pages with the first digit of each time replaced by a letter: the reader finds every field
/// and creates no shows.
std::vector<QByteArray> withoutTimes(const PageFormat& format, std::vector<QByteArray> pages) {
    const QByteArray marker(format.time.data(), static_cast<qsizetype>(format.time.size()));
    for (QByteArray& page : pages) {
        for (qsizetype at = page.indexOf(marker); at >= 0; at = page.indexOf(marker, at + 1)) {
            qsizetype digit = at + marker.size();
            while (digit < page.size() && (page[digit] < '0' || page[digit] > '9')) {
                ++digit;
            }
            if (digit < page.size()) {
                page[digit] = 'x';
            }
        }
    }
    return pages;
}

/// Everything a reader produces, split into texts and queries.
struct Pieces {
    struct Texts {
        std::optional<QString> sourceId, details, title, description;
    };
    std::vector<Texts> classified;
    std::vector<std::pair<QDate, std::chrono::seconds>> times;
    std::vector<QByteArray> plain;
    std::vector<QByteArray> trimmed;
    std::vector<QByteArray> cased;
    std::vector<QByteArray> links;

    Pieces(const PageFormat& format, const ParsedLists& lists) {
        const QTimeZone zone(format.zone ? format.zone : "UTC");
        for (const auto& [channel, list] : lists) {
            for (const ExtendedTVEntry& show : list) {
                add(format, show, zone);
            }
        }
    }

  private:
    void add(const PageFormat& format, const ExtendedTVEntry& show, const QTimeZone& zone) {
        const TVEntry& entry = *show.basic;
        if (format.classifies) {
            classified.push_back({entry.sourceId(), entry.instantDetails1(), entry.identificator(),
                                  entry.instantDescription1()});
        }
        for (const auto& moment : {entry.dateTime(), entry.endDateTime()}) {
            if (moment) {
                const QDateTime time =
                    QDateTime::fromMSecsSinceEpoch(moment->time_since_epoch().count(), zone);
                times.emplace_back(time.date(),
                                   std::chrono::milliseconds(time.time().msecsSinceStartOfDay()) /
                                       std::chrono::seconds(1) * std::chrono::seconds(1));
                if (format.trimsTimes) {
                    trimmed.push_back(' ' + time.toString(u"HH:mm"_s).toUtf8() + ' ');
                }
            }
        }
        if (!format.zone) {
            times.clear();
        }
        addText(format.casesTitles ? cased : format.trimsTitles ? trimmed : plain, entry.identificator());
        for (const auto& text : {entry.instantDetails1(), entry.subtitle1(), entry.instantDescription1()}) {
            addText(plain, text);
        }
        if (show.extra) {
            addText(format.trimsDescriptions ? trimmed : plain, show.extra->description);
            for (const auto& text : {show.extra->details, show.extra->roles, show.extra->directedBy}) {
                addText(plain, text);
            }
        }
        addText(links, entry.encodedUrl());
        for (const QUrl& picture : show.pictures.urls()) {
            addText(links, picture.toString());
        }
    }

    static void addText(std::vector<QByteArray>& texts, const std::optional<QString>& text) {
        if (text) {
            texts.push_back(text->toUtf8());
        }
    }
};

/// The input for a format; created once.
struct Subject {
    const PageFormat& format;
    FamilyPages whole;
    std::vector<QByteArray> unreadable;
    Pieces pieces;

    explicit Subject(const PageFormat& given)
        : format(given)
        , whole(given.make(kSize))
        , unreadable(withoutTimes(given, whole.pages))
        , pieces(given, whole.read()) {}
};

const Subject& subject(std::size_t number) {
    static std::vector<std::unique_ptr<Subject>> made(pageFormats().size());
    if (!made[number]) {
        made[number] = std::make_unique<Subject>(pageFormats()[number]);
    }
    return *made[number];
}

bool walk(const Subject& of) {
    return showCount(of.whole.read(of.unreadable)) == 0;
}

void walkGuide(benchmark::State& state, std::size_t number) {
    const Subject& of = subject(number);
    for ([[maybe_unused]] auto pass : state) {
        if (!walk(of)) {
            state.SkipWithError("a show without a time");
        }
    }
    state.counters["atMost"] = 2;
}

/// One pass over the pages for each marker.
void walkFloor(benchmark::State& state, std::size_t number) {
    const Subject& of = subject(number);
    for ([[maybe_unused]] auto pass : state) {
        for (const std::string& marker : of.format.markers) {
            std::size_t count = 0;
            for (const QByteArray& page : of.unreadable) {
                const char* const end = page.constData() + page.size();
                const char* at = page.constData();
                while (const void* place =
                           memmem(at, static_cast<std::size_t>(end - at), marker.data(), marker.size())) {
                    at = static_cast<const char*>(place) + marker.size();
                    ++count;
                }
            }
            if (count == 0) {
                state.SkipWithError(("not found: " + marker).c_str());
            }
        }
    }
}

void readerGuide(benchmark::State& state, std::size_t number) {
    const Subject& of = subject(number);
    for ([[maybe_unused]] auto pass : state) {
        ParsedLists lists = of.whole.read();
        state.PauseTiming();
        if (showCount(lists) != of.whole.shows) {
            state.SkipWithError(
                (std::to_string(showCount(lists)) + " shows of " + std::to_string(of.whole.shows)).c_str());
        }
        lists.clear();
        state.ResumeTiming();
    }
    state.counters["atMost"] = 1.5;
}

void readerFloor(benchmark::State& state, std::size_t number) {
    const Subject& of = subject(number);
    const Pieces& pieces = of.pieces;
    const QLocale locale(QLocale::Czech, QLocale::CzechRepublic);
    std::vector<QString> texts;
    for ([[maybe_unused]] auto pass : state) {
        if (!walk(of)) {
            state.SkipWithError("a show without a time");
        }
        for (const QByteArray& text : pieces.plain) {
            texts.push_back(QString::fromUtf8(text));
        }
        for (const QByteArray& text : pieces.trimmed) {
            texts.push_back(trimmedListingText(QString::fromUtf8(text)).value_or(QString()));
        }
        for (const QByteArray& text : pieces.cased) {
            texts.push_back(
                sentenceCase(trimmedListingText(QString::fromUtf8(text)).value_or(QString()), locale));
        }
        for (const QByteArray& text : pieces.links) {
            texts.push_back(QUrl(QString::fromUtf8(text)).toString(QUrl::FullyEncoded));
        }
        if (!pieces.times.empty()) {
            ZoneClock clock{QTimeZone(of.format.zone)};
            for (const auto& [date, time] : pieces.times) {
                benchmark::DoNotOptimize(clock.momentAt(date, time));
            }
        }
        for (const Pieces::Texts& show : pieces.classified) {
            benchmark::DoNotOptimize(
                classifyEntry(show.sourceId, {show.details, show.title, show.description}));
        }
        state.PauseTiming();
        if (texts.size() < of.whole.shows) {
            state.SkipWithError("too few texts");
        }
        texts.clear();
        state.ResumeTiming();
    }
}

using Benchmark = void (*)(benchmark::State& state, std::size_t number);

void add(const std::string& row, const char* side, Benchmark measured, std::size_t number) {
    benchmark::RegisterBenchmark((row + '/' + side).c_str(),
                                 [measured, number](benchmark::State& state) { measured(state, number); })
        ->Unit(benchmark::kMillisecond)
        ->MinTime(0.2);
}

const bool added = [] {
    for (std::size_t i = 0; i < pageFormats().size(); ++i) {
        const std::string name = pageFormats()[i].name;
        add("walk, " + name, "guide", walkGuide, i);
        add("walk, " + name, "floor", walkFloor, i);
        add("reader, " + name, "guide", readerGuide, i);
        add("reader, " + name, "floor", readerFloor, i);
    }
    return true;
}();

} // namespace
} // namespace guide::bench
