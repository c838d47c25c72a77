// The list of all shows and its searches.

#include "GeneratedShows.h"
#include "store/AllShows.h"
#include "text/search/FoldedText.h"

#include <benchmark/benchmark.h>
#include <cstring>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr std::size_t kMaxShows = 2000;

/// The lists of 286 channels, 80,080 shows, and their texts for the baselines.
struct Schedule {
    static constexpr int kChannels = 286;

    Schedule() {
        Words words(1);
        for (int channel = 0; channel < kChannels; ++channel) {
            lists.push_back(generatedList(channel, words));
        }
        all = std::make_shared<const AllShows>(lists, Moment::min());
        for (const AllShows::Show& show : all->shows()) {
            offsets.push_back(folded.size());
            shows.push_back(show.item);
            const TVEntry& entry = *show.item->entry();
            const TVEntrySupplementalData& details = *show.item->details();
            for (const std::optional<QString>* text :
                 {&entry.title(), &entry.instantDetails(), &entry.subtitle(), &details.description,
                  &details.directedBy, &details.roles}) {
                if (*text) {
                    folded += foldedText(**text).toUtf8().toStdString() + '\n';
                }
            }
        }
        offsets.push_back(folded.size());
    }

    /// The first kMaxShows shows that contain the folded pattern, by memmem over the joined texts.
    std::vector<const ShowItem*> search(const std::string& pattern) const {
        std::vector<const ShowItem*> found;
        const char* const begin = folded.data();
        std::size_t show = 0;
        while (found.size() < kMaxShows && show + 1 < offsets.size()) {
            const void* hit = ::memmem(begin + offsets[show], folded.size() - offsets[show], pattern.data(),
                                       pattern.size());
            if (hit == nullptr) {
                break;
            }
            const auto at = static_cast<std::size_t>(static_cast<const char*>(hit) - begin);
            while (offsets[show] <= at) {
                ++show;
            }
            found.push_back(shows[show - 1]);
        }
        return found;
    }

    AllShows::Lists lists;
    std::shared_ptr<const AllShows> all;
    std::vector<const ShowItem*> shows;
    std::string folded;
    std::vector<std::size_t> offsets;
};

const Schedule& schedule() {
    static const Schedule schedule;
    return schedule;
}

/// A pattern as the user types it.
struct Pattern {
    const char* name;
    QString typed;
};

std::vector<Pattern> patterns() {
    const Words words(1);
    return {{"frequent", u"Ár"_s},  {"frequentWord", words.word(3).toUpper()},
            {"rareTwo", u"Ďť"_s},   {"rareWord", words.word(5000) + u' ' + words.word(7)},
            {"absentTwo", u"qx"_s}, {"absent", u"neexistující pořad"_s}};
}

void searchGuide(benchmark::State& state, const Pattern& pattern) {
    const Schedule& data = schedule();
    const auto expected = data.search(foldedText(pattern.typed).toUtf8().toStdString());
    ShowItems found;
    for (auto _ : state) {
        found = data.all->showsContaining(searchPattern(pattern.typed), kNow, kMaxShows);
        benchmark::DoNotOptimize(found);
    }
    const bool same = std::equal(found.begin(), found.end(), expected.begin(), expected.end(),
                                 [](const ShowItem& show, const ShowItem* other) { return show == *other; });
    if (!same) {
        state.SkipWithError("different shows than the baseline found");
    }
    state.counters["hits"] = static_cast<double>(found.size());
    state.counters["atMost"] = 2;
}

void searchFloor(benchmark::State& state, const Pattern& pattern) {
    const Schedule& data = schedule();
    const std::string folded = foldedText(pattern.typed).toUtf8().toStdString();
    for (auto _ : state) {
        benchmark::DoNotOptimize(data.search(folded));
    }
}

void allShowsGuide(benchmark::State& state) {
    const Schedule& data = schedule();
    // Builds the search text: a list derives its own from that of the previous list, if that has one.
    data.all->showsContaining("x", kNow, 1);
    Words words(2);
    std::optional<AllShows> all;
    AllShows::Lists lists = data.lists;
    for (auto _ : state) {
        state.PauseTiming();
        all.reset();
        lists[100] = generatedList(100, words);
        state.ResumeTiming();
        all.emplace(lists, Moment::min(), data.all);
        benchmark::DoNotOptimize(all->shows().data());
    }
    const ShowItem& changed = (*lists[100]->shows())[7];
    const ShowItems found =
        all->showsContaining(searchPattern(*changed.details()->description), kNow, kMaxShows);
    if (all->shows().size() != data.all->shows().size() || found != ShowItems{changed}) {
        state.SkipWithError("shows are missing");
    }
    state.counters["atMost"] = 3;
}

void allShowsFloor(benchmark::State& state) {
    const Schedule& data = schedule();
    for (auto _ : state) {
        const std::vector<const ShowItem*> shows = data.shows;
        const std::string folded = data.folded;
        benchmark::DoNotOptimize(shows.data());
        benchmark::DoNotOptimize(folded.data());
        benchmark::ClobberMemory();
    }
}

int registerAll() {
    for (const Pattern& pattern : patterns()) {
        const std::string row = std::string("search/") + pattern.name;
        benchmark::RegisterBenchmark((row + "/guide").c_str(), searchGuide, pattern)
            ->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark((row + "/floor").c_str(), searchFloor, pattern)
            ->Unit(benchmark::kMicrosecond);
    }
    return 0;
}
const int kRegistered = registerAll();

BENCHMARK(allShowsGuide)->Name("allShows/guide")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(allShowsFloor)->Name("allShows/floor")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace guide::bench
