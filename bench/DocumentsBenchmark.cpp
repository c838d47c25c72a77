// The readers of JSON and XML sources against the parsers that they use.

#include "FamilyPages.h"
#include "text/categories/ShowClassifier.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <benchmark/benchmark.h>
#include <libxml/parser.h>

namespace guide::bench {
namespace {

constexpr std::size_t kMegabyte = 1'000'000;

/// The texts that a show is classified by.
struct Texts {
    std::optional<QString> sourceId, details, title, description;
};

std::vector<Texts> textsOf(const ParsedLists& lists) {
    std::vector<Texts> texts;
    for (const auto& [channel, list] : lists) {
        for (const ExtendedTVEntry& show : list) {
            texts.push_back({show.basic->sourceId(), show.basic->instantDetails1(),
                             show.basic->identificator(), show.basic->instantDescription1()});
        }
    }
    return texts;
}

void wholeReader(benchmark::State& state, const FamilyPages& family, double atMost) {
    for ([[maybe_unused]] auto pass : state) {
        ParsedLists lists = family.read();
        state.PauseTiming();
        if (showCount(lists) != family.shows || lists.size() != family.items.size()) {
            state.SkipWithError("shows are missing");
        }
        lists.clear();
        state.ResumeTiming();
    }
    state.counters["atMost"] = atMost;
}

const FamilyPages& port() {
    static const FamilyPages pages = portNetworkPages(2 * kMegabyte);
    return pages;
}

void portGuide(benchmark::State& state) {
    wholeReader(state, port(), 1.5);
}

void portFloor(benchmark::State& state) {
    const std::vector<Texts> texts = textsOf(port().read());
    for ([[maybe_unused]] auto pass : state) {
        if (!QJsonDocument::fromJson(port().pages.front()).isObject()) {
            state.SkipWithError("the document does not parse");
        }
        TVListingsCategory all = 0;
        for (const Texts& show : texts) {
            all |= classifyEntry(show.sourceId, {show.details, show.title, show.description});
        }
        if (all == 0) {
            state.SkipWithError("nothing is classified");
        }
    }
}

void parsingAlone(benchmark::State& state, const QByteArray& document, std::size_t elements) {
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = [](void* count, const xmlChar*, const xmlChar*, const xmlChar*, int,
                                const xmlChar**, int, int,
                                const xmlChar**) { ++*static_cast<std::size_t*>(count); };
    handler.endElementNs = [](void*, const xmlChar*, const xmlChar*, const xmlChar*) {};
    handler.characters = [](void*, const xmlChar*, int) {};
    for ([[maybe_unused]] auto pass : state) {
        std::size_t count = 0;
        if (xmlSAXUserParseMemory(&handler, &count, document.constData(),
                                  static_cast<int>(document.size())) != 0 ||
            count <= elements) {
            state.SkipWithError("the document does not parse");
        }
    }
}

const FamilyPages& sectioned() {
    static const FamilyPages pages = sectionedPalinsesto(4 * kMegabyte);
    return pages;
}

const FamilyPages& flat() {
    static const FamilyPages pages = flatPalinsesto(4 * kMegabyte);
    return pages;
}

void sectionedGuide(benchmark::State& state) {
    wholeReader(state, sectioned(), 3);
}
void sectionedFloor(benchmark::State& state) {
    parsingAlone(state, sectioned().pages.front(), sectioned().shows);
}
void flatGuide(benchmark::State& state) {
    wholeReader(state, flat(), 3);
}
void flatFloor(benchmark::State& state) {
    parsingAlone(state, flat().pages.front(), flat().shows);
}

BENCHMARK(portGuide)->Name("Port network, 2 MB/guide")->Unit(benchmark::kMillisecond);
BENCHMARK(portFloor)->Name("Port network, 2 MB/floor")->Unit(benchmark::kMillisecond);
BENCHMARK(sectionedGuide)->Name("Palinsesto in sections, 9 channels/guide")->Unit(benchmark::kMillisecond);
BENCHMARK(sectionedFloor)->Name("Palinsesto in sections, 9 channels/floor")->Unit(benchmark::kMillisecond);
BENCHMARK(flatGuide)->Name("Palinsesto in attributes, 9 channels/guide")->Unit(benchmark::kMillisecond);
BENCHMARK(flatFloor)->Name("Palinsesto in attributes, 9 channels/floor")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace guide::bench
