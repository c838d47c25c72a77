#include "StoreFloor.h"
#include "core/ListingsFile.h"
#include "fakes/FakeApplicationState.h"
#include "fakes/FakeBackgroundTasks.h"
#include "fakes/FakeDevice.h"
#include "fakes/ManualClock.h"
#include "fakes/MemoryKeyValueStore.h"
#include "fakes/MemoryUserDefaults.h"
#include "platform/FileReplacement.h"
#include "platform/ThreadedQueues.h"
#include "store/AllShows.h"
#include "store/ShowCoding.h"
#include "store/TVListings.h"
#include "text/FoldedText.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstring>
#include <future>
#include <random>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr std::size_t kMostShows = 2000;
constexpr int kShowsOfAList = 280;
constexpr Moment kNow = std::chrono::sys_days{std::chrono::year{2040} / 1 / 2};

const Alphabet& alphabet() {
    static const Alphabet alphabet;
    return alphabet;
}

ObjectId channelNumbered(int number) {
    return ObjectId::fromHex(QStringLiteral("%1").arg(number, 24, 16, QLatin1Char('0')));
}

/// Words of the lengths and letters of real descriptions; the same ones at every run.
class Words {
  public:
    explicit Words(unsigned seed)
        : m_random(seed) {
        const QString letters = u"aeiouyáéíóúabcdefghijklmnoprstuvzžščřďťňľ"_s;
        for (int i = 0; i < 6000; ++i) {
            QString word;
            for (unsigned length = 2 + m_random() % 4 + m_random() % 6; length > 0; --length) {
                word += letters[static_cast<qsizetype>(m_random() % static_cast<unsigned>(letters.size()))];
            }
            m_words += word;
        }
    }
    QString text(int words) {
        QString text;
        for (int i = 0; i < words; ++i) {
            text += (i == 0 ? u""_s : u" "_s) + word();
        }
        text[0] = text[0].toUpper();
        return text;
    }
    unsigned below(unsigned bound) { return m_random() % bound; }
    const QString& word(qsizetype number) const { return m_words[number]; }

  private:
    /// A few words are common, most are not.
    const QString& word() {
        const unsigned common = m_random() % 3;
        return m_words[static_cast<qsizetype>(m_random() % (common == 0 ? 40u : 6000u))];
    }

    std::mt19937 m_random;
    QStringList m_words;
};

std::vector<ExtendedTVEntry> madeShows(int channel, Words& words) {
    std::vector<ExtendedTVEntry> shows;
    Moment start = kNow - std::chrono::minutes(channel % 20);
    for (int i = 0; i < kShowsOfAList; ++i) {
        auto entry = std::make_shared<TVEntry>(alphabet());
        const auto length = std::chrono::minutes(20 + words.below(40));
        entry->setChannel(channelNumbered(channel));
        entry->setDateTime(start);
        entry->setEndDateTime(start + length);
        entry->setSourceId(u"Channel%1.cz"_s.arg(channel));
        entry->setLanguage(u"cs"_s);
        entry->setIdentificator(words.text(1 + static_cast<int>(words.below(4))));
        if (words.below(2) == 0) {
            entry->setSubtitle1(words.text(3));
        }
        if (words.below(3) != 0) {
            entry->setInstantDetails1(words.text(3));
        }
        auto details = std::make_shared<TVEntrySupplementalData>();
        details->description = words.text(10 + static_cast<int>(words.below(20)));
        if (words.below(4) == 0) {
            details->directedBy = words.text(2);
            details->roles = words.text(8);
        }
        shows.push_back({std::move(entry), 1u << words.below(10), std::move(details), {}});
        start += length;
    }
    return shows;
}

ShowItems itemsOf(std::vector<ExtendedTVEntry> shows) {
    ShowItems items;
    for (ExtendedTVEntry& show : shows) {
        items.emplace_back(std::move(show));
    }
    return items;
}

std::shared_ptr<const ChannelList> madeList(int channel, Words& words) {
    return std::make_shared<const ChannelList>(
        std::make_shared<const ShowItems>(itemsOf(madeShows(channel, words))));
}

// ---- searches and the list of all shows

/// The lists of 286 channels, 80,080 shows, and the same texts as the floors have them.
struct Schedule {
    static constexpr int kChannels = 286;

    Schedule() {
        Words words(1);
        for (int channel = 0; channel < kChannels; ++channel) {
            lists.push_back(madeList(channel, words));
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

    /// Shows that hold the pattern, by one memmem after another over the texts of all shows in a row.
    std::vector<const ShowItem*> search(const std::string& pattern) const {
        std::vector<const ShowItem*> found;
        const char* const begin = folded.data();
        std::size_t show = 0;
        while (found.size() < kMostShows && show + 1 < offsets.size()) {
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

/// A pattern of each sort: how it is typed, and folded.
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
        found = data.all->showsContaining(searchPattern(pattern.typed), kNow, kMostShows);
        benchmark::DoNotOptimize(found);
    }
    const bool same = std::equal(found.begin(), found.end(), expected.begin(), expected.end(),
                                 [](const ShowItem& show, const ShowItem* other) { return show == *other; });
    if (!same) {
        state.SkipWithError("other shows than the floor");
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
    data.all->showsContaining("x", kNow, 1);
    Words words(2);
    std::size_t count = 0;
    for (auto _ : state) {
        state.PauseTiming();
        AllShows::Lists lists = data.lists;
        lists[100] = madeList(100, words);
        state.ResumeTiming();
        const AllShows all(lists, Moment::min(), data.all);
        count = all.shows().size();
        benchmark::DoNotOptimize(all.shows().data());
    }
    if (count != data.all->shows().size()) {
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

// ---- a whole store on real queues

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
        , channels(folders, keyValueStore, queues, channelData(channelCount))
        , environment{clock,        device,   folders,    queues,          tasks,      applicationState,
                      userDefaults, channels, icons,      nullptr,         alphabet(), favorites,
                      popular,      alarms,   u"guide"_s, [] { return 4; }} {
        std::vector<ObjectId> selected;
        for (int channel = 0; channel < channelCount; ++channel) {
            selected.push_back(channelNumbered(channel));
        }
        channels.setSelected(selected);
        own = queues.makeQueue("own", QueueKind::Serial);
    }
    ~World() { queues.shutDown(); }

    static SharedChannelData channelData(int channelCount) {
        ChannelData rows;
        for (int channel = 0; channel < channelCount; ++channel) {
            rows.emplace(
                channelNumbered(channel),
                ChannelDictionary{{u"Title"_s, u"T"_s}, {u"Language"_s, u"cs"_s}, {u"Icon"_s, u"x/1"_s}});
        }
        return std::make_shared<const ChannelData>(std::move(rows));
    }

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
    for (int i = 0; i < kFiles; ++i) {
        const QString path = folder.filePath(QString::number(i));
        replaceFile(path, archives()[static_cast<std::size_t>(i)]);
        paths.push_back(path.toUtf8());
    }
    std::size_t shows = 0;
    for (auto _ : state) {
        std::vector<std::vector<FloorShow>> lists;
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
    ParsedLists parsed;
    for (int channel = 0; channel < kChannels; ++channel) {
        items.push_back({channelNumbered(channel), u"x"_s, u"cs"_s});
        parsed.emplace(channelNumbered(channel), madeShows(channel, words));
    }
    listings.merge(items, std::move(parsed), kNow, 1);
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
    ParsedLists parsed;
    Words words(3);
    for (int channel = 0; channel < kFiles; ++channel) {
        items.push_back({channelNumbered(channel), u"x"_s, u"cs"_s});
        parsed.emplace(channelNumbered(channel), madeShows(channel, words));
    }
    listings.merge(items, std::move(parsed), kNow, 1);
    listings.finishWriting(std::chrono::minutes(1));
    bool written = true;
    for (auto _ : state) {
        state.PauseTiming();
        for (int channel = 0; channel < kFiles; ++channel) {
            listings.addToSaveSchedule(channelNumbered(channel));
        }
        listings.isScheduledForSaving(channelNumbered(0));
        state.ResumeTiming();
        written = listings.finishWriting(std::chrono::minutes(1)) && written;
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
BENCHMARK(readGuide)->Name("read200/guide")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(readFloor)->Name("read200/floor")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(onAirGuide)->Name("onAir/guide")->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(onAirFloor)->Name("onAir/floor")->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(writeGuide)->Name("write200/guide")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeFloor)->Name("write200/floor")->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace guide::bench
