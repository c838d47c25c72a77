#include "MadeShows.h"
#include "StoreFloor.h"
#include "core/ListingsFile.h"
#include "fakes/FakeApplicationState.h"
#include "fakes/FakeBackgroundTasks.h"
#include "fakes/FakeDevice.h"
#include "platform/files/FileReplacement.h"
#include "platform/memory/ManualClock.h"
#include "platform/memory/MemoryKeyValueStore.h"
#include "platform/memory/MemoryUserDefaults.h"
#include "platform/queues/ThreadedQueues.h"
#include "store/ShowCoding.h"
#include "store/TVListings.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <future>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

class NoFavorites final : public FavoriteQuestions {
  public:
    bool containsFavoriteNamed(const QString&) const override { return false; }
    bool hasFavorites() const override { return false; }
};

class NoPopularShows final : public PopularShows {
  public:
    ShowList popularShows() const override { return nullptr; }
    bool contains(const ShowItem&) const override { return false; }
    void refresh() override {}
};

class NoAlarms final : public AlarmSynchronisation {
  public:
    void setSynchronized(bool) override {}
    void syncAlarms() override {}
};

struct World {
    World(int channelCount, const QString& folder)
        : folders{folder, folder, folder, folder, folder, folder}
        , queues([] {})
        , icons(folder, 1)
        , channels(folders, keyValueStore, queues, catalogue)
        , environment{clock,        device,   folders,    queues,          tasks,      applicationState,
                      userDefaults, channels, icons,      catalogue,       alphabet(), favorites,
                      popular,      alarms,   u"guide"_s, [] { return 4; }} {
        std::vector<ObjectId> selected;
        std::vector<CatalogueChannel> listed;
        for (int channel = 0; channel < channelCount; ++channel) {
            selected.push_back(channelNumbered(channel));
            listed.push_back({selected.back(), u"T"_s, u"cs"_s, u"x"_s, u"1"_s});
        }
        catalogue.replace(CatalogueSnapshot(listed));
        channels.setSelected(selected);
        own = queues.makeQueue("own", QueueKind::Serial);
    }
    ~World() { queues.shutDown(); }

    QString path(int channel) const {
        return folders.caches + u'/' + listingsFileFromChannelIdentificator(channelNumbered(channel));
    }

    /// Waits for the answer on a queue of its own.
    std::vector<ShowSpan> onAir(TVListings& listings) {
        std::promise<std::vector<ShowSpan>> answer;
        listings.onAirShowsWithQueue(own,
                                     [&answer](const std::vector<ObjectId>&, std::vector<ShowSpan> shows) {
                                         answer.set_value(std::move(shows));
                                     });
        return answer.get_future().get();
    }

    Folders folders;
    ManualClock clock{kNow};
    FakeDevice device;
    ThreadedQueues queues;
    FakeBackgroundTasks tasks;
    FakeApplicationState applicationState;
    MemoryUserDefaults userDefaults;
    MemoryKeyValueStore keyValueStore;
    TVStationIcons icons;
    Catalogue catalogue;
    TVChannels channels;
    NoFavorites favorites;
    NoPopularShows popular;
    NoAlarms alarms;
    TVListingsEnvironment environment;
    std::shared_ptr<DispatchQueue> own;
};

std::vector<QByteArray> madeArchives(int count) {
    Words words(3);
    std::vector<QByteArray> archives;
    archives.reserve(static_cast<std::size_t>(count));
    for (int channel = 0; channel < count; ++channel) {
        archives.push_back(archivedShows(itemsOf(madeShows(channel, words))));
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
    World world(kFiles, folder.path());
    for (int i = 0; i < kFiles; ++i) {
        replaceFile(world.path(i), archives()[static_cast<std::size_t>(i)]);
    }
    std::size_t shows = 0;
    for (auto _ : state) {
        auto listings = std::make_unique<TVListings>(world.environment);
        const std::vector<ShowSpan> onAir = world.onAir(*listings);
        state.PauseTiming();
        shows = 0;
        for (const ShowSpan& span : onAir) {
            shows += span.size();
        }
        listings.reset();
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
    if (shows != kFiles * kShowsOfAList) {
        state.SkipWithError("shows are missing");
    }
}

void onAirGuide(benchmark::State& state) {
    constexpr int kChannels = 300;
    QTemporaryDir folder;
    World world(kChannels, folder.path());
    TVListings listings(world.environment);
    Words words(4);
    std::vector<LoadItem> items;
    items.reserve(kChannels);
    ParsedLists parsed;
    for (int channel = 0; channel < kChannels; ++channel) {
        items.push_back({channelNumbered(channel), u"x"_s, u"cs"_s});
        parsed.emplace(channelNumbered(channel), madeShows(channel, words));
    }
    listings.merge(items, std::move(parsed), kNow, ListingsType::XMLTV);
    std::vector<ShowSpan> onAir;
    for (auto _ : state) {
        onAir = world.onAir(listings);
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
        lists.push_back(itemsOf(madeShows(channel, words)));
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

void writeGuide(benchmark::State& state) {
    QTemporaryDir folder;
    World world(kFiles, folder.path());
    TVListings listings(world.environment);
    std::vector<LoadItem> items;
    items.reserve(kFiles);
    ParsedLists parsed;
    Words words(3);
    for (int channel = 0; channel < kFiles; ++channel) {
        items.push_back({channelNumbered(channel), u"x"_s, u"cs"_s});
        parsed.emplace(channelNumbered(channel), madeShows(channel, words));
    }
    listings.merge(items, std::move(parsed), kNow, ListingsType::XMLTV);
    listings.finishWriting(std::chrono::minutes(1));
    bool written = true;
    for (auto _ : state) {
        state.PauseTiming();
        for (int channel = 0; channel < kFiles; ++channel) {
            // Whatever stands there in the end was written in the last pass.
            QFile::remove(world.path(channel));
            listings.addToSaveSchedule(channelNumbered(channel));
        }
        listings.isScheduledForSaving(channelNumbered(0));
        state.ResumeTiming();
        written = listings.finishWriting(std::chrono::minutes(1)) && written;
        state.PauseTiming();
        for (int channel = 0; channel < kFiles; ++channel) {
            written = written && QFile::exists(world.path(channel));
        }
        state.ResumeTiming();
    }
    for (int channel = 0; channel < kFiles; ++channel) {
        QFile file(world.path(channel));
        written = written && file.open(QIODevice::ReadOnly) &&
                  file.readAll() == archives()[static_cast<std::size_t>(channel)];
    }
    if (!written) {
        state.SkipWithError("files are not what was to be written");
    }
    state.counters["atMost"] = 2;
}

void writeFloor(benchmark::State& state) {
    QTemporaryDir folder;
    std::vector<QByteArray> paths;
    paths.reserve(kFiles);
    for (int i = 0; i < kFiles; ++i) {
        paths.push_back(folder.filePath(QString::number(i)).toUtf8());
    }
    bool written = true;
    for (auto _ : state) {
        for (std::size_t i = 0; i < paths.size(); ++i) {
            written = floorReplace(paths[i], archives()[i]) && written;
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
BENCHMARK(writeGuide)->Name("write200/guide")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeFloor)->Name("write200/floor")->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace guide::bench
