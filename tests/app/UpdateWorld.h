#pragma once

#include "app/UpdateCycle.h"
#include "fakes/FakeHTTPClient.h"
#include "fakes/StoreFixture.h"
#include "platform/memory/ManualClock.h"
#include "sources/SourceId.h"

#include <set>
#include <string>

namespace guide {

/// A store whose channels are all selected.
struct UpdateStore : test::StoreFixture {
    using Selection = std::vector<std::pair<int, QStringList>>;

    UpdateStore(const Clock& ownClock, DispatchQueues& ownQueues, const Selection& selection)
        : StoreFixture(ownClock, ownQueues) {
        for (const auto& [number, sources] : selection) {
            addChannel(number, {.language = QStringLiteral("sk"), .sourceIds = sources});
        }
        open();
    }
};

/// An update cycle over a store, with its own reader. Each line of a page gives a channel, its number of
/// one-hour shows, the first of which is running, and an optional shift of all shows in hours.
class UpdateWorld : public UpdateStore {
  public:
    struct Parse {
        std::string items;
        std::vector<QByteArray> pages;
        ListingsType type;
        bool allLoading;
    };

    UpdateWorld(DispatchQueues& ownQueues, const Clock& ownClock, const Selection& selection)
        : UpdateStore(ownClock, ownQueues, selection) {}

    void answer(const QString& url, const QByteArray& page) {
        client.answer(QUrl(url), FakeHTTPClient::response(200, page));
    }
    void answerStatus(const QString& url, int status) {
        client.answer(QUrl(url), FakeHTTPClient::response(status, "<html>"));
    }
    void answerNothing(const QString& url) { client.answer(QUrl(url), FakeHTTPClient::refused()); }
    /// An empty file, packed: the only way to get an empty page that is not a failure.
    void answerEmptyFile(const QString& url) {
        client.answer(QUrl(url), FakeHTTPClient::response(
                                     200, QByteArray::fromHex("1f8b080000000000000303000000000000000000"),
                                     {{"Content-Type", "application/x-gzip"}}));
    }

    /// The requested URLs; consecutive attempts count once.
    QStringList requests() const {
        QStringList urls;
        const std::vector<HTTPRequest> all = client.requests();
        for (std::size_t i = m_requestsSeen; i < all.size(); ++i) {
            if (urls.isEmpty() || urls.last() != all[i].url.toString()) {
                urls << all[i].url.toString();
            }
        }
        return urls;
    }
    void clearLog() {
        parses.clear();
        offered.clear();
        announced.clear();
        m_requestsSeen = client.requests().size();
    }

    /// Appends "channel:shows " for each channel, with at most 4 shows per channel.
    void askOnAir(std::string& text) {
        listings->onAirShowsWithQueue(checkQueue, [&text](const std::vector<ObjectId>& ids,
                                                          const auto& lists) {
            for (std::size_t i = 0; i < ids.size(); ++i) {
                text += std::to_string(ids[i].bytes().back()) + ':' + std::to_string(lists[i].size()) + ' ';
            }
        });
    }

  private:
    std::size_t m_requestsSeen = 0;

    MergeResult netList(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages, Moment now,
                        ListingsType type) {
        Parse parse{{}, pages, type, true};
        ParsedLists lists;
        for (const LoadItem& item : items) {
            const unsigned number = item.channel.bytes().back();
            parse.items += (parse.items.empty() ? "" : ", ") + std::to_string(number) + ' ' +
                           item.sourceId.toStdString() + ' ' + item.language.toStdString();
            const auto record = channels->channelWithChannelId(item.channel);
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
        return listings->merge(items, std::move(lists), now, type);
    }

    /// Reads the lines of this test's pages.
    struct Reader final : ListDriver {
        explicit Reader(UpdateWorld& ownWorld)
            : ListDriver({.clock = ownWorld.clock,
                          .alphabet = ownWorld.alphabet,
                          .hosts = ownWorld.planner.hosts(),
                          .merge = {}})
            , world(ownWorld) {}
        MergeResult netList(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages,
                            Moment now, ListingsType type, bool) const override {
            return world.netList(items, pages, now, type);
        }
        UpdateWorld& world;
    };

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
    Settings settings{userDefaults};
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
    /// "channel " for each changed load failure, in the order of the announcements.
    std::string announced;
    /// "channel:shows " for each list offered to the screens.
    std::string offered;
    std::function<void(const LoadResults&)> onLoadsEnded;

    const Reader reader{*this};
    UpdateCycle cycle{
        UpdateCycleEnvironment{clock, device, queues, checkQueue, loadQueue, tasks, state, *channels,
                               catalogue, settings, planner, fetcher, userAgent, *listings, sourceHealth,
                               reader, [] { return 4; }, [this](const TopLists& top) { offer(top); },
                               [this](const LoadResults& results) {
                                   if (onLoadsEnded) {
                                       onLoadsEnded(results);
                                   }
                                   const auto& ids = results.failureChanged;
                                   for (const ObjectId& id : std::set<ObjectId>(ids.begin(), ids.end())) {
                                       announced += std::to_string(id.bytes().back()) + ' ';
                                   }
                               }}};
};

} // namespace guide
