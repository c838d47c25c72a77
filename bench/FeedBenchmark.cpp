// From the bytes of a feed to the driver's lists, against unpacking alone and against the parser alone.
//
// QUELLIN_FEED names another feed (plain, .gz or .xz) to measure instead of the generated one.

#include "GeneratedFeed.h"
#include "fakes/Packing.h"
#include "parsers/ListDriver.h"
#include "parsers/own/OwnFeedReader.h"
#include "parsers/own/SourcePreviewReader.h"
#include "parsers/xmltv/ProgrammeSkipScan.h"
#include "parsers/xmltv/XMLTVToEntries.h"
#include "platform/encoding/Decompression.h"
#include "platform/memory/ManualClock.h"
#include "sources/PageText.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <libxml/parser.h>
#include <memory>
#include <string>
#include <zlib.h>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr std::uint64_t kMemory = std::uint64_t{8} << 30;
constexpr std::size_t kFewChannels = 12;
constexpr double kMaxOfUnpacking = 1.6;
constexpr double kMaxOfParsing = 2.4;
constexpr double kMaxOfOwnLoad = 0.9;
constexpr double kMaxOfPreview = 2;

QByteArray readFeed(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s: %s", qUtf8Printable(path), qUtf8Printable(file.errorString()));
    }
    PageText page = pageText(file.readAll(), HTTPResponse(), kMemory);
    if (!page.text) {
        qFatal("%s is not text", qUtf8Printable(path));
    }
    return *std::move(page.text);
}

/// The measured feed and the expected lists.
struct Subject {
    QByteArray plain;
    QByteArray packed;
    /// The number of shows of each channel that has any.
    std::vector<QString> channels;
    std::vector<std::size_t> counts;
    /// The packed feed as a file.
    QTemporaryDir folder;
    QString path = folder.filePath(u"feed.xml.gz"_s);
    ManualClock clock{Moment{}};
    Alphabet alphabet;
    SourceHostTable hosts;
    ListDriver driver{{.clock = clock, .alphabet = alphabet, .hosts = hosts, .merge = nullptr}};

    Subject() {
        QLoggingCategory::setFilterRules(u"guide.*=false"_s);
        const QString given = qEnvironmentVariable("QUELLIN_FEED");
        plain = given.isEmpty() ? bench::generatedFeed({}) : readFeed(given);
        packed = gzipped(plain);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(packed) != packed.size()) {
            qFatal("the feed cannot be written");
        }
        XMLTVToEntries reader(plain, {}, {.shows = {.alphabet = alphabet}, .now = clock.now()});
        for (const FeedChannelEntries& channel : reader.entries()) {
            channels.push_back(channel.sourceId);
            counts.push_back(channel.entries.size());
        }
    }

    std::vector<LoadItem> items(std::size_t count) const {
        std::vector<LoadItem> items;
        const std::size_t step = std::max<std::size_t>(channels.size() / count, 1);
        for (std::size_t i = 0; i < channels.size() && items.size() < count; i += step) {
            ObjectId::Bytes id{};
            id[10] = static_cast<std::uint8_t>(i >> 8);
            id[11] = static_cast<std::uint8_t>(i);
            items.push_back({ObjectId(id), u"s."_s + channels[i], u"cs"_s});
        }
        return items;
    }

    bool isComplete(const std::vector<LoadItem>& items, const ParsedLists& lists) const {
        return std::all_of(items.begin(), items.end(), [&](const LoadItem& item) {
            const auto list = lists.find(item.channel);
            const std::size_t index = item.channel.bytes()[10] * std::size_t{256} + item.channel.bytes()[11];
            return list != lists.end() && list->second.size() == counts[index];
        });
    }
};

const Subject& subject() {
    static const Subject subject;
    return subject;
}

void fewChannelsOfPackedFeed(benchmark::State& state) {
    const Subject& feed = subject();
    const std::vector<LoadItem> items = feed.items(kFewChannels);
    for ([[maybe_unused]] auto pass : state) {
        PageText page = pageText(feed.packed, HTTPResponse(), kMemory);
        const ParsedLists lists =
            feed.driver.read(items, {*std::move(page.text)}, Moment{}, ListingsType::XMLTV);
        if (!feed.isComplete(items, lists)) {
            state.SkipWithError("shows are missing");
        }
    }
    state.counters["atMost"] = kMaxOfUnpacking;
}

void readChannelsOfOwnFeed(benchmark::State& state, std::size_t count, double atMost) {
    const Subject& feed = subject();
    const std::vector<LoadItem> items = feed.items(count);
    std::vector<OwnFeedItem> own;
    for (const LoadItem& item : items) {
        own.push_back({item.channel, item.sourceId.sliced(2), item.language});
    }
    for ([[maybe_unused]] auto pass : state) {
        OwnFeed read = readOwnFeed(
            feed.path, {}, own, {.clock = feed.clock, .alphabet = feed.alphabet, .physicalMemory = kMemory});
        if (!feed.isComplete(items, read.lists) || read.unpackedBytes != feed.plain.size()) {
            state.SkipWithError("shows are missing");
        }
        state.PauseTiming();
        read.lists.clear();
        state.ResumeTiming();
    }
    state.counters["atMost"] = atMost;
}

void fewChannelsOfOwnFeed(benchmark::State& state) {
    readChannelsOfOwnFeed(state, kFewChannels, kMaxOfOwnLoad);
}

void allChannelsOfOwnFeed(benchmark::State& state) {
    readChannelsOfOwnFeed(state, subject().channels.size(), kMaxOfParsing);
}

void previewOfOwnFeed(benchmark::State& state) {
    const Subject& feed = subject();
    // Within the feed, so that shows are running.
    constexpr Moment kNow = bench::FeedShape{}.start + std::chrono::hours(34);
    for ([[maybe_unused]] auto pass : state) {
        const SourcePreview preview = sourcePreview(
            feed.path, {.now = kNow, .zone = QTimeZone("Europe/Prague"), .physicalMemory = kMemory});
        if (preview.channelsWithShows < static_cast<int>(feed.channels.size()) || !preview.news) {
            state.SkipWithError("channels are missing");
        }
    }
    state.counters["atMost"] = kMaxOfPreview;
}

void allChannelsOfPlainFeed(benchmark::State& state) {
    const Subject& feed = subject();
    const std::vector<LoadItem> items = feed.items(feed.channels.size());
    for ([[maybe_unused]] auto pass : state) {
        const ParsedLists lists = feed.driver.read(items, {feed.plain}, Moment{}, ListingsType::XMLTV);
        if (!feed.isComplete(items, lists)) {
            state.SkipWithError("shows are missing");
        }
        state.PauseTiming();
        {
            const ParsedLists gone = std::move(const_cast<ParsedLists&>(lists));
        }
        state.ResumeTiming();
    }
    state.counters["atMost"] = kMaxOfParsing;
}

/// Into fresh memory.
bool unpack(const Subject& feed) {
    const auto size = static_cast<std::size_t>(feed.plain.size());
    const std::unique_ptr<char[]> plain(new char[size]);
    z_stream stream{};
    constexpr int kGzipWindowBits = 31;
    inflateInit2(&stream, kGzipWindowBits);
    stream.next_in =
        const_cast<Bytef*>(reinterpret_cast<const Bytef*>(feed.packed.constData())); // NOLINT: zlib reads
    stream.avail_in = static_cast<uInt>(feed.packed.size());
    stream.next_out = reinterpret_cast<Bytef*>(plain.get());
    stream.avail_out = static_cast<uInt>(size);
    const bool isWhole = inflate(&stream, Z_FINISH) == Z_STREAM_END && stream.total_out == size;
    inflateEnd(&stream);
    benchmark::DoNotOptimize(plain.get());
    return isWhole;
}

bool parse(const Subject& feed) {
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = [](void*, const xmlChar*, const xmlChar*, const xmlChar*, int, const xmlChar**,
                                int, int, const xmlChar**) {};
    handler.endElementNs = [](void*, const xmlChar*, const xmlChar*, const xmlChar*) {};
    handler.characters = [](void*, const xmlChar*, int) {};
    return xmlSAXUserParseMemory(&handler, nullptr, feed.plain.constData(),
                                 static_cast<int>(feed.plain.size())) == 0;
}

void unpackingAlone(benchmark::State& state) {
    for ([[maybe_unused]] auto pass : state) {
        if (!unpack(subject())) {
            state.SkipWithError("the feed does not unpack");
        }
    }
}

void parsingAlone(benchmark::State& state) {
    for ([[maybe_unused]] auto pass : state) {
        if (!parse(subject())) {
            state.SkipWithError("the feed does not parse");
        }
    }
}

void unpackingAndParsing(benchmark::State& state) {
    for ([[maybe_unused]] auto pass : state) {
        if (!unpack(subject()) || !parse(subject())) {
            state.SkipWithError("the feed does not parse");
        }
    }
}

BENCHMARK(fewChannelsOfPackedFeed)->Name("feed, 12 channels, packed/guide")->Unit(benchmark::kMillisecond);
BENCHMARK(fewChannelsOfOwnFeed)->Name("own feed, 12 channels, packed/guide")->Unit(benchmark::kMillisecond);
BENCHMARK(unpackingAlone)->Name("own feed, 12 channels, packed/floor")->Unit(benchmark::kMillisecond);
BENCHMARK(previewOfOwnFeed)->Name("own feed, preview, packed/guide")->Unit(benchmark::kMillisecond);
BENCHMARK(unpackingAlone)->Name("own feed, preview, packed/floor")->Unit(benchmark::kMillisecond);
BENCHMARK(unpackingAlone)->Name("feed, 12 channels, packed/floor")->Unit(benchmark::kMillisecond);
BENCHMARK(allChannelsOfOwnFeed)->Name("own feed, all channels, packed/guide")->Unit(benchmark::kMillisecond);
BENCHMARK(unpackingAndParsing)->Name("own feed, all channels, packed/floor")->Unit(benchmark::kMillisecond);
BENCHMARK(allChannelsOfPlainFeed)->Name("feed, all channels, plain/guide")->Unit(benchmark::kMillisecond);
BENCHMARK(parsingAlone)->Name("feed, all channels, plain/floor")->Unit(benchmark::kMillisecond);

} // namespace

} // namespace guide
