#pragma once

#include "app/AbsentParts.h"
#include "app/UpdateCycle.h"
#include "core/ListingsFile.h"
#include "core/TVStationIcons.h"
#include "fakes/FakeApplicationState.h"
#include "fakes/FakeBackgroundTasks.h"
#include "fakes/FakeDevice.h"
#include "fakes/FakeHTTPClient.h"
#include "platform/memory/ManualClock.h"
#include "platform/memory/MemoryKeyValueStore.h"
#include "platform/memory/MemoryUserDefaults.h"
#include "sources/SourceId.h"

#include <QDir>
#include <QTemporaryDir>

#include <stdexcept>
#include <string>

namespace guide {

struct CountedPopularShows final : PopularShows {
    ShowList popularShows() const override { return nullptr; }
    bool contains(const ShowItem&) const override { return false; }
    void refresh() override { ++refreshed; }

    std::atomic<int> refreshed = 0;
};

/// Everything that the cycle works with on top of a faked device, with a reader of its own: a page says in
/// each line a channel, how many shows of an hour it has, the first one running, and by how many hours they
/// are moved. A page "throw" throws.
class UpdateWorld {
  public:
    using Selection = std::vector<std::pair<unsigned char, QStringList>>;

    struct Parse {
        std::string items;
        std::vector<QByteArray> pages;
        ListingsType type;
        bool allLoading;
    };

    /// Channels by the last byte of their identity, with their sources; all of them selected.
    UpdateWorld(DispatchQueues& ownQueues, ManualClock& ownClock, Selection selection)
        : clock(ownClock)
        , queues(ownQueues)
        , m_selection(std::move(selection)) {}

    static ObjectId channel(unsigned char number) {
        ObjectId::Bytes bytes{};
        bytes.back() = number;
        return ObjectId(bytes);
    }

    QString listingsFile(unsigned char number) const {
        return folders.caches + u'/' + listingsFileFromChannelIdentificator(channel(number));
    }

    void answer(const QString& url, const QByteArray& page) {
        client.answer(QUrl(url), FakeHTTPClient::response(200, page));
    }
    void answerStatus(const QString& url, int status) {
        client.answer(QUrl(url), FakeHTTPClient::response(status, "<html>"));
    }
    void answerNothing(const QString& url) { client.answer(QUrl(url), FakeHTTPClient::refused()); }
    /// A packed file of no bytes: the one page that is empty and yet a page.
    void answerEmptyFile(const QString& url) {
        client.answer(QUrl(url), FakeHTTPClient::response(
                                     200, QByteArray::fromHex("1f8b080000000000000303000000000000000000"),
                                     {{"Content-Type", "application/x-gzip"}}));
    }

    /// What was asked for; attempts at once after one another count once.
    QStringList requests() const {
        QStringList urls;
        const std::vector<QUrl> all = client.requestedURLs();
        for (std::size_t i = m_requestsSeen; i < all.size(); ++i) {
            if (urls.isEmpty() || urls.last() != all[i].toString()) {
                urls << all[i].toString();
            }
        }
        return urls;
    }
    void clearLog() {
        parses.clear();
        offered.clear();
        m_requestsSeen = client.requests().size();
    }

    /// Puts "channel:shows " into the text for each channel, at most 4 shows a channel.
    void askOnAir(std::string& text) {
        listings->onAirShowsWithQueue(checkQueue, [&text](const std::vector<ObjectId>& ids,
                                                          const auto& lists) {
            for (std::size_t i = 0; i < ids.size(); ++i) {
                text += std::to_string(ids[i].bytes().back()) + ':' + std::to_string(lists[i].size()) + ' ';
            }
        });
    }

    ManualClock& clock;
    DispatchQueues& queues;

  private:
    Selection m_selection;
    QTemporaryDir m_folder;
    std::size_t m_requestsSeen = 0;

    Folders makeFolders() const {
        const QDir dir(m_folder.path());
        dir.mkpath(QStringLiteral("caches"));
        dir.mkpath(QStringLiteral("documents"));
        Folders made;
        made.caches = dir.filePath(QStringLiteral("caches"));
        made.documents = dir.filePath(QStringLiteral("documents"));
        return made;
    }
    CatalogueSnapshot listedChannels() const {
        std::vector<CatalogueChannel> listed;
        for (const auto& [number, sources] : m_selection) {
            listed.push_back({channel(number), QString::number(number), QStringLiteral("sk"),
                              QStringLiteral("Slovak"), QStringLiteral("icon"), sources});
        }
        return CatalogueSnapshot(listed);
    }

    std::unique_ptr<TVListings> makeListings() {
        catalogue.replace(listedChannels());
        std::vector<ObjectId> selected;
        for (const auto& [number, sources] : m_selection) {
            selected.push_back(channel(number));
        }
        channels.setSelected(std::move(selected));
        return std::make_unique<TVListings>(TVListingsEnvironment{clock,
                                                                  device,
                                                                  folders,
                                                                  queues,
                                                                  tasks,
                                                                  state,
                                                                  defaults,
                                                                  channels,
                                                                  icons,
                                                                  catalogue,
                                                                  alphabet,
                                                                  favorites,
                                                                  popular,
                                                                  alarms,
                                                                  {},
                                                                  [] { return 4; }});
    }

    MergeResult netList(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages, Moment now,
                        ListingsType type) {
        Parse parse{{}, pages, type, true};
        ParsedLists lists;
        for (const LoadItem& item : items) {
            const unsigned number = item.channel.bytes().back();
            parse.items += (parse.items.empty() ? "" : ", ") + std::to_string(number) + ' ' +
                           item.sourceId.toStdString() + ' ' + item.language.toStdString();
            const auto record = channels.channelWithChannelId(item.channel);
            parse.allLoading = parse.allLoading && record && record->loading();
            for (const QByteArray& page : pages) {
                for (const QByteArray& line : page.split('\n')) {
                    const QList<QByteArray> words = line.split(' ');
                    for (int i = 0; words[0].toUInt() == number && i < words.value(1).toInt(); ++i) {
                        const Moment start =
                            now + std::chrono::minutes(60 * (i + words.value(2).toInt()) - 10);
                        auto entry = std::make_shared<TVEntry>(alphabet);
                        entry->setChannel(item.channel);
                        entry->setIdentificator(QString::number(i));
                        entry->setDateTime(start);
                        entry->setEndDateTime(start + std::chrono::hours(1));
                        lists[item.channel].push_back({std::move(entry), {}, nullptr, {}});
                    }
                }
            }
        }
        parses.push_back(std::move(parse));
        if (pages.front() == "throw") {
            throw std::runtime_error("reader");
        }
        return listings->merge(items, std::move(lists), now, type);
    }

    void offer(const TopLists& top) {
        for (const auto& [id, shows] : top) {
            offered += std::to_string(id.bytes().back()) + ':' + std::to_string(shows.size()) + ' ';
        }
    }

    static SourceHostTable hosts() {
        return SourceHostTable::fromJson(R"({"NFeedHost": "http://n.test", "SFeedHost": "http://s.test",
                                             "JojCinemaHost": "http://joj.test"})")
            .value();
    }

  public:
    FakeDevice device;
    const Folders folders = makeFolders();
    FakeBackgroundTasks tasks;
    FakeApplicationState state;
    MemoryUserDefaults defaults;
    MemoryKeyValueStore keyValueStore;
    Catalogue catalogue;
    TVChannels channels{folders, keyValueStore, queues, catalogue};
    TVStationIcons icons{folders.caches, 1.0};
    Alphabet alphabet;
    NoFavorites favorites;
    CountedPopularShows popular;
    NoAlarms alarms;
    std::unique_ptr<TVListings> listings = makeListings();
    Settings settings{defaults};
    FakeHTTPClient client;
    NetworkActivity activity{queues, [](bool) {}};
    URLPlanner planner{hosts(), [](unsigned) { return 0U; }};
    HTTPUserAgent userAgent{[](unsigned) { return 0U; }};
    PageFetcher fetcher{
        {client, activity, device.physicalMemory(), [](std::chrono::milliseconds) { return true; }, {}}};
    std::shared_ptr<DispatchQueue> checkQueue =
        queues.makeQueue("vorel.tv.checkAndUpdateAllChannels", QueueKind::Serial, QueuePriority::Background);
    std::shared_ptr<DispatchQueue> loadQueue =
        queues.makeQueue("vorel.tv.loadQueue", QueueKind::Serial, QueuePriority::Background);

    SourceHealthRecords sourceHealth{folders.caches + QStringLiteral("/source-health.json")};

    std::vector<Parse> parses;
    /// "channel:shows " for each list that the screens were offered.
    std::string offered;

    UpdateCycle cycle{UpdateCycleEnvironment{
        clock, device, queues, checkQueue, loadQueue, tasks, state, channels, catalogue, settings, planner,
        fetcher, userAgent, *listings, sourceHealth,
        [this](const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages, Moment now,
               ListingsType type) { return netList(items, pages, now, type); },
        [] { return 4; }, [this](const TopLists& top) { offer(top); }}};
};

} // namespace guide
