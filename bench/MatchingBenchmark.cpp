// Matching a large playlist with a large feed, against folding each name once.

#include "parsers/playlists/ChannelMatching.h"
#include "parsers/playlists/ChannelNames.h"

#include <QSet>

#include <benchmark/benchmark.h>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr int kChannels = 10'000;
constexpr double kAtMost = 6;

struct Subject {
    std::vector<PlaylistEntry> entries;
    std::vector<FeedChannel> channels;

    Subject() {
        for (int i = 0; i < kChannels; ++i) {
            PlaylistEntry entry;
            entry.name = u"CZ| Kanál Ščřž %1 HD"_s.arg(i);
            entry.id = i % 2 == 0 ? u"Kanal%1.cz@SD"_s.arg(i) : QString();
            entries.push_back(std::move(entry));
            channels.push_back({u"kanal%1.cz"_s.arg(i), {u"%1"_s.arg(i), u"Kanál Ščřž %1"_s.arg(i)}, 0});
        }
    }
};

const Subject& subject() {
    static const Subject subject;
    return subject;
}

void matching(benchmark::State& state) {
    for ([[maybe_unused]] auto pass : state) {
        const std::vector<ChannelMatch> matches = matchChannels(subject().entries, subject().channels);
        for (std::size_t i = 0; i < matches.size(); ++i) {
            if (matches[i].channel != static_cast<int>(i)) {
                state.SkipWithError("an entry has no channel or the wrong one");
                break;
            }
        }
    }
    state.counters["atMost"] = kAtMost;
}

void foldingAlone(benchmark::State& state) {
    for ([[maybe_unused]] auto pass : state) {
        QSet<QString> keys;
        for (const PlaylistEntry& entry : subject().entries) {
            keys.insert(channelNameKeys(entry.name).exact);
        }
        for (const FeedChannel& channel : subject().channels) {
            for (const QString& name : channel.names) {
                keys.insert(channelNameKeys(name).exact);
            }
        }
        benchmark::DoNotOptimize(keys);
    }
}

BENCHMARK(matching)->Name("matching, 10,000 entries and channels/guide")->Unit(benchmark::kMillisecond);
BENCHMARK(foldingAlone)->Name("matching, 10,000 entries and channels/floor")->Unit(benchmark::kMillisecond);

} // namespace

} // namespace guide
