#include "GeneratedShows.h"
#include "StoreFloor.h"
#include "fakes/StoreFixture.h"
#include "platform/files/FileReplacement.h"
#include "platform/memory/ManualClock.h"
#include "platform/memory/MemoryKeyValueStore.h"
#include "platform/memory/MemoryUserDefaults.h"
#include "platform/queues/ThreadedQueues.h"
#include "store/ShowCoding.h"
#include "store/TVListings.h"

#include <QFile>

#include <benchmark/benchmark.h>
#include <future>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// Whether the guide waits for the disk.
bool flushes = true;

} // namespace

// These take the place of the C library's functions in this program.
extern "C" {
int syncfs(int file) noexcept {
    return flushes ? int(::syscall(SYS_syncfs, file)) : 0;
}
int fsync(int file) {
    return flushes ? int(::syscall(SYS_fsync, file)) : 0;
}
}

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

/// A store on real queues.
struct StoreSetup {
    StoreSetup(int channelCount, const QString& folder)
        : store(clock, queues, folder) {
        for (int channel = 0; channel < channelCount; ++channel) {
            store.addChannel(channel);
        }
        store.makeChannels();
    }
    ~StoreSetup() { queues.shutDown(); }

    QString path(int channel) const { return store.listingsFile(channelNumbered(channel)); }

    /// Runs on a separate queue and waits for the answer.
    std::vector<ShowSpan> onAir() {
        std::promise<std::vector<ShowSpan>> answer;
        store.listings->onAirShowsWithQueue(
            own, [&answer](const std::vector<ObjectId>&, std::vector<ShowSpan> shows) {
                answer.set_value(std::move(shows));
            });
        return answer.get_future().get();
    }

    ManualClock clock{kNow};
    ThreadedQueues queues{[] {}};
    test::StoreFixture store;
    std::shared_ptr<DispatchQueue> own = queues.makeQueue("own", QueueKind::Serial);
};

std::vector<QByteArray> madeArchives(int count) {
    Words words(3);
    std::vector<QByteArray> archives;
    archives.reserve(static_cast<std::size_t>(count));
    for (int channel = 0; channel < count; ++channel) {
        archives.push_back(archivedShows(itemsOf(generatedShows(channel, words))));
    }
    return archives;
}

constexpr int kFiles = 200;

const std::vector<QByteArray>& archives() {
    static const std::vector<QByteArray> kArchives = madeArchives(kFiles);
    return kArchives;
}

void readGuide(benchmark::State& state) {
    QTemporaryDir folder;
    StoreSetup setup(kFiles, folder.path());
    for (int i = 0; i < kFiles; ++i) {
        replaceFile(setup.path(i), archives()[static_cast<std::size_t>(i)]);
    }
    std::size_t shows = 0;
    for (auto _ : state) {
        setup.store.open();
        const std::vector<ShowSpan> onAir = setup.onAir();
        state.PauseTiming();
        shows = 0;
        for (const ShowSpan& span : onAir) {
            shows += span.size();
        }
        setup.store.listings.reset();
        state.ResumeTiming();
    }
    if (shows != kFiles * 4) {
        state.SkipWithError("shows are missing");
    }
    state.counters["atMost"] = 2;
}

void readFloor(benchmark::State& state) {
    QTemporaryDir folder;
    std::vector<QByteArray> paths;
    paths.reserve(kFiles);
    for (int i = 0; i < kFiles; ++i) {
        const QString path = folder.filePath(QString::number(i));
        replaceFile(path, archives()[static_cast<std::size_t>(i)]);
        paths.push_back(path.toUtf8());
    }
    std::size_t shows = 0;
    for (auto _ : state) {
        std::vector<std::vector<FloorShow>> lists;
        lists.reserve(paths.size());
        for (const QByteArray& path : paths) {
            lists.push_back(floorShows(path));
        }
        state.PauseTiming();
        shows = 0;
        for (const auto& list : lists) {
            shows += list.size();
        }
        lists.clear();
        state.ResumeTiming();
    }
    if (shows != kFiles * kShowsPerList) {
        state.SkipWithError("shows are missing");
    }
}

void onAirGuide(benchmark::State& state) {
    constexpr int kChannels = 300;
    QTemporaryDir folder;
    StoreSetup setup(kChannels, folder.path());
    TVListings& listings = setup.store.open();
    Words words(4);
    std::vector<LoadItem> items;
    items.reserve(kChannels);
    ParsedLists parsed;
    for (int channel = 0; channel < kChannels; ++channel) {
        items.push_back({channelNumbered(channel), u"x"_s, u"cs"_s});
        parsed.emplace(channelNumbered(channel), generatedShows(channel, words));
    }
    listings.merge(items, std::move(parsed), kNow, ListingsType::XMLTV);
    std::vector<ShowSpan> onAir;
    for (auto _ : state) {
        onAir = setup.onAir();
    }
    if (onAir.size() != kChannels || !std::all_of(onAir.begin(), onAir.end(), [](const ShowSpan& span) {
            return span.size() == 4 && !span[0].entry()->overAt(kNow);
        })) {
        state.SkipWithError("shows are missing");
    }
    state.counters["atMost"] = 5;
}

void onAirFloor(benchmark::State& state) {
    std::vector<ShowItems> lists;
    lists.reserve(300);
    Words words(4);
    for (int channel = 0; channel < 300; ++channel) {
        lists.push_back(itemsOf(generatedShows(channel, words)));
    }
    for (auto _ : state) {
        std::vector<ShowItems> onAir;
        onAir.reserve(lists.size());
        for (const ShowItems& list : lists) {
            onAir.emplace_back(list.begin(), list.begin() + 4);
        }
        benchmark::DoNotOptimize(onAir.data());
    }
}

void writeGuide(benchmark::State& state, Flush flush) {
    flushes = flush == Flush::Yes;
    QTemporaryDir folder;
    StoreSetup setup(kFiles, folder.path());
    TVListings& listings = setup.store.open();
    std::vector<LoadItem> items;
    items.reserve(kFiles);
    ParsedLists parsed;
    Words words(3);
    for (int channel = 0; channel < kFiles; ++channel) {
        items.push_back({channelNumbered(channel), u"x"_s, u"cs"_s});
        parsed.emplace(channelNumbered(channel), generatedShows(channel, words));
    }
    listings.merge(items, std::move(parsed), kNow, ListingsType::XMLTV);
    listings.finishWriting(std::chrono::minutes(1));
    bool written = true;
    for (auto _ : state) {
        state.PauseTiming();
        for (int channel = 0; channel < kFiles; ++channel) {
            // The final content was written in the last pass.
            QFile::remove(setup.path(channel));
            listings.addToSaveSchedule(channelNumbered(channel));
        }
        listings.isScheduledForSaving(channelNumbered(0));
        state.ResumeTiming();
        written = listings.finishWriting(std::chrono::minutes(1)) && written;
        state.PauseTiming();
        for (int channel = 0; channel < kFiles; ++channel) {
            written = written && QFile::exists(setup.path(channel));
        }
        state.ResumeTiming();
    }
    for (int channel = 0; channel < kFiles; ++channel) {
        QFile file(setup.path(channel));
        written = written && file.open(QIODevice::ReadOnly) &&
                  file.readAll() == archives()[static_cast<std::size_t>(channel)];
    }
    if (!written) {
        state.SkipWithError("the files do not contain what was written");
    }
    state.counters["atMost"] = 2;
}

void writeFloor(benchmark::State& state, Flush flush) {
    QTemporaryDir folder;
    std::vector<QByteArray> paths;
    paths.reserve(kFiles);
    for (int i = 0; i < kFiles; ++i) {
        paths.push_back(folder.filePath(QString::number(i)).toUtf8());
    }
    bool written = true;
    for (auto _ : state) {
        for (std::size_t i = 0; i < paths.size(); ++i) {
            written = floorReplace(paths[i], archives()[i], flush) && written;
        }
    }
    if (!written) {
        state.SkipWithError("files were not written");
    }
}

BENCHMARK(readGuide)->Name("read200/guide")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(readFloor)->Name("read200/floor")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(onAirGuide)->Name("onAir/guide")->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(onAirFloor)->Name("onAir/floor")->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(writeGuide, unflushed, Flush::No)
    ->Name("write200/guide")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writeFloor, unflushed, Flush::No)
    ->Name("write200/floor")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writeGuide, flushed, Flush::Yes)
    ->Name("write200Flushed/guide")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writeFloor, flushed, Flush::Yes)
    ->Name("write200Flushed/floor")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace guide::bench
