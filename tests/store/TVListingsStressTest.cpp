#include "FileStoreFixture.h"
#include "platform/memory/ManualClock.h"
#include "platform/queues/ThreadedQueues.h"

#include <atomic>
#include <thread>

namespace guide::test {
namespace {

/// Runs the main queue until the condition holds.
template <class Done>
void runUntil(ThreadedQueues& queues, Done done) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!done()) {
        ASSERT_LT(std::chrono::steady_clock::now(), deadline);
        queues.runMainQueue();
        std::this_thread::yield();
    }
}

std::vector<ExtendedTVEntry> listNumbered(int number, const ObjectId& onChannel, Moment from) {
    std::vector<ExtendedTVEntry> shows;
    for (int i = 0; i < 30; ++i) {
        const Moment start = from + std::chrono::minutes(i);
        shows.push_back(
            extended({start, start + std::chrono::hours(1), QString::number(number), 1, onChannel}));
    }
    return shows;
}

/// All shows of a list must come from the same merge.
template <class Shows>
void expectOneList(const Shows& shows) {
    for (const ShowItem& show : shows) {
        ASSERT_EQ(show.entry()->identificator(), shows.begin()->entry()->identificator());
    }
}

TEST(TVListingsStressTest, ChangesQueriesAndWritesRunConcurrently) {
    constexpr int kRounds = 40;
    const ManualClock clock;
    QTemporaryDir folder;
    ThreadedQueues queues([] {});
    FileStoreFixture world(clock, queues, folder.path());
    world.writeFile(channel(1), {{clock.now(), clock.now() + std::chrono::hours(1), u"0"_s}});
    std::atomic<int> answers = 0;
    std::atomic<int> asked = 0;
    {
        TVListings& listings = world.open();
        const std::shared_ptr<DispatchQueue> own = queues.makeQueue("check", QueueKind::Serial);
        std::thread changes([&] {
            for (int round = 1; round <= kRounds; ++round) {
                ParsedLists parsed;
                std::vector<LoadItem> items;
                for (int number = 1; number <= 3; ++number) {
                    parsed[channel(number)] = listNumbered(round, channel(number), clock.now());
                    items.push_back({channel(number), u"x"_s, u"cs"_s});
                }
                const MergeResult merged =
                    listings.merge(items, std::move(parsed), clock.now(), ListingsType::XMLTV);
                listings.updateDetails(merged.lists.at(channel(1))->front().entry(),
                                       std::make_shared<const TVEntrySupplementalData>(), {});
                if (round % 4 == 0) {
                    listings.commitFiles();
                }
                if (round % 8 == 0) {
                    listings.removeListingsForChannel(channel(2));
                    listings.isScheduledForSaving(channel(2));
                }
            }
        });
        for (int round = 0; round < kRounds; ++round) {
            asked += 8;
            listings.onAirShowsWithQueue(own, [&](const auto& selected, const std::vector<ShowSpan>& shows) {
                EXPECT_EQ(selected.size(), shows.size());
                std::for_each(shows.begin(), shows.end(), [](const ShowSpan& span) { expectOneList(span); });
                ++answers;
            });
            listings.onAirShows({[&](const auto&, const auto&) { ++answers; }});
            listings.cachedListForChannel(channel(1), {[&](const ShowSpan& shows) {
                                              expectOneList(shows);
                                              ++answers;
                                          }});
            listings.showCountForSelectedChannelsForQueue(own, [&](const ShowCounts&) { ++answers; });
            listings.showsContainingPattern(QString::number(round % 10), [&](const ShowItems& shows) {
                for (const ShowItem& show : shows) {
                    show.entry()->urlDigestWithScheme(u"guide"_s);
                    show.entry()->fullInstantDetails();
                }
                ++answers;
            });
            listings.showsWithCategory(1, QueuePriority::Background, {[&](const ShowSpan&) { ++answers; }});
            listings.favoritesScheduleWithBlock([&](const ShowItems&) { ++answers; });
            listings.broadcastForTitle(u"7"_s, false, {[&](bool) { ++answers; }});
            queues.runMainQueue();
        }
        changes.join();
        runUntil(queues, [&] { return answers == asked; });
        EXPECT_TRUE(listings.finishWriting(std::chrono::seconds(30)));
    }
    for (int number : {1, 3}) {
        const auto stored = world.fileTitles(channel(number));
        ASSERT_TRUE(stored);
        EXPECT_EQ(*stored, Titles(30, std::to_string(kRounds)));
    }
    queues.shutDown();
}

TEST(TVListingsStressTest, FinishingIsBoundedInTime) {
    const ManualClock clock;
    QTemporaryDir folder;
    ThreadedQueues queues([] {});
    FileStoreFixture world(clock, queues, folder.path());
    TVListings& listings = world.open();
    std::atomic<bool> release = false;
    listings.favoritesScheduleWithBlock([&](const ShowItems&) {
        while (!release) {
            std::this_thread::yield();
        }
    });
    ParsedLists parsed;
    parsed[channel(1)] = listNumbered(1, channel(1), clock.now());
    listings.merge({{channel(1), u"x"_s, u"cs"_s}}, std::move(parsed), clock.now(), ListingsType::XMLTV);
    EXPECT_FALSE(listings.finishWriting(std::chrono::milliseconds(30)));
    release = true;
    runUntil(queues, [&] { return listings.finishWriting(std::chrono::seconds(10)); });
    EXPECT_EQ(world.fileTitles(channel(1)), Titles(30, "1"));
    queues.shutDown();
}

} // namespace
} // namespace guide::test
