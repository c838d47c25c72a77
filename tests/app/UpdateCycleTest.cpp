#include "app/UpdateCycle.h"

#include "app/UpdateWorld.h"
#include "fakes/ManualQueues.h"
#include "platform/queues/ThreadedQueues.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace guide {
namespace {

const QString kShared = u"http://n.test/epg.xml"_s;
const QString kSecond = u"http://s.test/losmij/epg.xml.gz"_s;

struct UpdateCycleTest : testing::Test {
    ManualClock clock;
    ManualQueues queues{clock};

    void check(UpdateWorld& world) {
        world.cycle.checkAndUpdateAllChannels();
        queues.runAll();
    }
    std::string onAir(UpdateWorld& world) {
        std::string text;
        world.askOnAir(text);
        queues.runAll();
        return text;
    }
};

TEST_F(UpdateCycleTest, ChannelsOfOneFeedAreLoadedByOneRequest) {
    UpdateWorld world(queues, clock, {{1, {u"n.one"_s, u"s.one"_s}}, {2, {u"n.two"_s, u"s.two"_s}}});
    world.answer(kShared, "1 6\n2 2");
    check(world);
    EXPECT_EQ(world.requests(), QStringList{kShared});
    ASSERT_EQ(world.parses.size(), 1U);
    EXPECT_EQ(world.parses[0].items, "1 n.one sk, 2 n.two sk");
    EXPECT_TRUE(world.parses[0].allLoading);
    EXPECT_EQ(world.offered, "1:4 2:2 ") << "at most showCount shows";
    EXPECT_EQ(world.popular.refreshes, 1);
    EXPECT_EQ(world.tasks.begun(), 1U);
    EXPECT_EQ(world.tasks.running(), 0U);

    world.clearLog();
    check(world);
    EXPECT_EQ(world.requests(), QStringList{kShared}) << "the second channel has too few shows";
    EXPECT_EQ(world.parses.at(0).items, "2 n.two sk");
}

TEST_F(UpdateCycleTest, ItsListsAreWrittenSoonAfterwards) {
    UpdateWorld world(queues, clock, {{1, {u"n.one"_s}}});
    world.answer(kShared, "1 6");
    check(world);
    const QString file = world.listingsFile(UpdateWorld::channelNumbered(1));
    EXPECT_FALSE(QFile::exists(file));
    clock.advance(20s);
    queues.runAll();
    EXPECT_TRUE(QFile::exists(file));
}

TEST_F(UpdateCycleTest, ALaterSourceIsAskedOnlyForChannelsWithoutShows) {
    UpdateWorld world(queues, clock,
                      {{1, {u"http://one.test/"_s, u"s.one"_s, u"http://third.test/"_s}},
                       {2, {u"n.two"_s, u"s.two"_s}},
                       {3, {u"n.three"_s, u"s.three"_s}}});
    world.answer(kShared, "2 6"); // nothing for 3, and nothing at all for 1
    world.answer(kSecond, "1 5\n2 5\n3 5");
    check(world);
    EXPECT_EQ(world.requests(), (QStringList{u"http://one.test/"_s, kShared, kSecond}));
    ASSERT_EQ(world.parses.size(), 2U);
    EXPECT_EQ(world.parses[1].items, "1 s.one sk, 3 s.three sk");
    EXPECT_EQ(world.offered, "2:4 1:4 3:4 ");
}

TEST_F(UpdateCycleTest, AShortListIsReloadedAtEachCheckAndKeptOnFailure) {
    UpdateWorld world(queues, clock, {{1, {u"n.one"_s}}});
    world.answer(kShared, "1 3");
    check(world);
    world.listings->commitFiles();
    queues.runAll();
    world.clearLog();
    world.answerNothing(kShared);
    for (const int round : {1, 2}) {
        check(world);
        EXPECT_EQ(world.requests(), QStringList{kShared}) << round;
        EXPECT_TRUE(world.parses.empty());
        EXPECT_EQ(world.tasks.running(), 0U);
        EXPECT_EQ(onAir(world), "1:3 ");
        EXPECT_TRUE(QFile::exists(world.listingsFile(UpdateWorld::channelNumbered(1))))
            << "a failed load removes nothing";
        EXPECT_EQ(world.popular.refreshes, 1) << "only a check that parsed something refreshes it";
    }
}

TEST_F(UpdateCycleTest, PagesBeforeTheFirstFailureAreParsedEvenEmptyOnes) {
    UpdateWorld world(queues, clock, {{1, {u"joj.one"_s}}});
    const auto urls = world.planner.urlsForSourceId(u"joj.one"_s, clock.now(), world.device.timeZone());
    ASSERT_EQ(urls->size(), 7);
    world.answer(urls->at(0).toString(), "1 5");
    world.answerEmptyFile(urls->at(1).toString());
    world.answer(urls->at(2).toString(), "third");
    world.answer(urls->at(4).toString(), "fifth");
    check(world);
    ASSERT_EQ(world.parses.size(), 1U);
    EXPECT_EQ(world.parses[0].pages, (std::vector<QByteArray>{"1 5", "", "third"}));
    EXPECT_EQ(world.parses[0].type, ListingsType::JojCinema);
    EXPECT_EQ(onAir(world), "1:4 ");

    // After a failed first page nothing is parsed; an empty first page is parsed.
    world.clearLog();
    clock.advance(30 * 24h);
    check(world);
    EXPECT_TRUE(world.parses.empty());
    const auto later = world.planner.urlsForSourceId(u"joj.one"_s, clock.now(), world.device.timeZone());
    world.answerEmptyFile(later->at(0).toString());
    check(world);
    ASSERT_EQ(world.parses.size(), 1U);
    EXPECT_EQ(world.parses[0].pages, std::vector<QByteArray>{QByteArray()});
    EXPECT_EQ(world.offered, "");
}

TEST_F(UpdateCycleTest, ACheckAcrossMidnightPlansDayPagesAgain) {
    const Moment midnight = std::chrono::sys_days(std::chrono::year(2026) / 3 / 28) + 23h; // in Bratislava
    clock.set(midnight - 1min);
    UpdateWorld world(queues, clock, {{1, {u"joj.one"_s}}, {2, {u"n.two"_s}}});
    world.answer(kShared, "2 6");
    const auto planned = [&] {
        return *world.planner.urlsForSourceId(u"joj.one"_s, clock.now(), world.device.timeZone());
    };
    const QList<QUrl> before = planned();
    for (const QUrl& url : before) {
        world.answer(url.toString(), "1 2");
    }
    world.client.onRequest([&](const HTTPRequest& request) {
        if (request.url == before[6]) {
            clock.set(midnight + 1min);
            for (const QUrl& url : planned()) {
                world.answer(url.toString(), "1 7");
            }
        }
    });
    check(world);
    // The feed comes from another host and does not wait.
    const QList<QUrl> urls = before + QList<QUrl>{QUrl(kShared)} + planned();
    const std::vector<HTTPRequest> requests = world.client.requests();
    ASSERT_EQ(requests.size(), static_cast<std::size_t>(urls.size()));
    for (std::size_t i = 0; i < requests.size(); ++i) {
        EXPECT_EQ(requests[i].url, urls[static_cast<qsizetype>(i)]) << i;
    }
    ASSERT_EQ(world.parses.size(), 2U);
    EXPECT_EQ(world.parses[1].pages, std::vector<QByteArray>(7, "1 7"));
    // Day pages must be of today; a feed with dates may be older.
    EXPECT_EQ(requests[7].cachedSince, Moment::min());
    EXPECT_EQ(requests[8].cachedSince, midnight);
}

TEST_F(UpdateCycleTest, AnUnreadablePageLeavesNoChannelMarkedAsLoading) {
    UpdateWorld world(queues, clock, {{1, {u"n.one"_s}}, {2, {u"s.two"_s}}});
    world.answer(kShared, "unreadable");
    world.answer(kSecond, "2 5");
    check(world);
    EXPECT_EQ(world.offered, "2:4 ");
    world.answer(kShared, "1 5");
    check(world);
    EXPECT_EQ(world.offered, "2:4 1:4 ");
}

TEST_F(UpdateCycleTest, TheNextCheckDoesNotLoadAgainWhatTheRunningOneLoads) {
    UpdateWorld world(queues, clock, {{1, {u"n.one"_s}}});
    world.answer(kShared, "1 6");
    world.client.onRequest([&](const HTTPRequest&) {
        for (int i = 0; world.parses.empty() && i < 3; ++i) {
            world.cycle.checkAndUpdateAllChannels();
        }
    });
    world.cycle.checkAndUpdateAllChannels();
    check(world);
    EXPECT_EQ(world.parses.size(), 1U);
    EXPECT_EQ(world.tasks.begun(), 2U) << "the first one ended while the shows were being counted";
}

TEST_F(UpdateCycleTest, AChannelThatIsSelectedAgainDuringItsLoadIsLoaded) {
    UpdateWorld world(queues, clock, {{1, {u"n.one"_s}}});
    world.answer(kShared, "1 6");
    const std::vector<ObjectId> all = world.channels->selected();
    bool deselected = false;
    world.client.onRequest([&](const HTTPRequest&) {
        if (!std::exchange(deselected, true)) {
            world.channels->setSelected({});
            world.cycle.checkAndUpdateAllChannels();
            world.loadQueue->async([&] { world.channels->setSelected(all); });
        }
    });
    check(world);
    check(world);
    EXPECT_EQ(onAir(world), "1:4 ");
    EXPECT_EQ(world.parses.size(), 1U);
}

TEST_F(UpdateCycleTest, AChannelDeselectedDuringTheLoadIsNotStored) {
    UpdateWorld world(queues, clock, {{1, {u"n.one"_s}}, {2, {u"n.two"_s}}, {3, {u"s.three"_s}}});
    world.answer(kShared, "1 5\n2 5");
    world.answer(kSecond, "3 5");
    world.client.onRequest([&](const HTTPRequest& request) {
        world.channels->setSelected(
            request.url == QUrl(kShared)
                ? std::vector{UpdateWorld::channelNumbered(2), UpdateWorld::channelNumbered(3)}
                : std::vector{UpdateWorld::channelNumbered(2)});
    });
    check(world);
    ASSERT_EQ(world.parses.size(), 1U);
    EXPECT_EQ(world.parses[0].items, "2 n.two sk");
    EXPECT_EQ(world.offered, "2:4 ");
}

TEST_F(UpdateCycleTest, InTheBackgroundListsAreStoredButNotOffered) {
    UpdateWorld world(queues, clock, {{1, {u"n.one"_s}}});
    world.answer(kShared, "1 5");
    world.state.state = ApplicationState::Background;
    check(world);
    EXPECT_EQ(world.offered, "");
    EXPECT_EQ(onAir(world), "1:4 ");
}

TEST_F(UpdateCycleTest, AnExpiredTaskEndsOnceAndTheCheckGoesOn) {
    UpdateWorld world(queues, clock, {{1, {u"n.one"_s}}});
    world.answer(kShared, "1 5");
    world.client.onRequest([&](const HTTPRequest&) {
        world.tasks.expireAll();
        queues.run("main");
        EXPECT_EQ(world.tasks.running(), 0U);
    });
    check(world);
    EXPECT_EQ(onAir(world), "1:4 ");
    EXPECT_EQ(world.tasks.running(), 0U);
}

TEST_F(UpdateCycleTest, AShutdownDuringATransferParsesNothing) {
    UpdateWorld world(queues, clock, {{1, {u"joj.one"_s}}, {2, {u"s.two"_s}}});
    const auto urls = world.planner.urlsForSourceId(u"joj.one"_s, clock.now(), world.device.timeZone());
    world.answer(urls->at(0).toString(), "1 5");
    world.client.onRequest([&](const HTTPRequest&) { world.client.cancelAll(); });
    check(world);
    EXPECT_EQ(world.requests().size(), 2);
    EXPECT_TRUE(world.parses.empty());
    EXPECT_EQ(world.tasks.running(), 0U);
    EXPECT_TRUE(world.cycle.finish(1s));
    world.clearLog();
    check(world);
    EXPECT_EQ(world.tasks.begun(), 1U) << "no check starts after the shutdown";
}

TEST_F(UpdateCycleTest, RecordsTheResultOfEverySource) {
    const QString third = u"http://third.test/"_s;
    UpdateWorld world(queues, clock,
                      {{1, {u"cc.romania"_s, u"n.one"_s, u"s.one"_s, third}}, // the first one has no host
                       {2, {u"n.two"_s, u"s.two"_s}},
                       {3, {u"n.three"_s, third}},
                       {4, {third, u"s.four"_s}}});
    world.answer(kShared, "2 6\n1 5 -48");
    world.answer(kSecond, "1 5\n4 0");
    world.answerStatus(third, 404);
    check(world);
    const auto health = [&](int channel) {
        return world.sourceHealth.healthFor(UpdateWorld::channelNumbered(channel)).value_or(SourceHealth());
    };
    const auto used = [&](const QString& sourceId, int shows) {
        return UsedSource{.sourceId = sourceId,
                          .at = clock.now(),
                          .pages = 1,
                          .shows = shows,
                          .coveredUntil = clock.now() + 60min * shows - 10min,
                          .host = QUrl(sourceId.startsWith(u"s."_s) ? kSecond : kShared).host()};
    };
    const PassedOverSource missing{third, PassedOverReason::NoPage, 404, PageReason::Status};
    using Sources = std::vector<PassedOverSource>;
    EXPECT_EQ(health(1), (SourceHealth{clock.now(), used(u"s.one"_s, 5),
                                       Sources{{u"cc.romania"_s, PassedOverReason::NoPlan},
                                               {u"n.one"_s, PassedOverReason::OnlyPastShows}}}));
    EXPECT_EQ(health(2), (SourceHealth{clock.now(), used(u"n.two"_s, 6), {}}));
    EXPECT_EQ(health(3), (SourceHealth{clock.now(), std::nullopt,
                                       Sources{{u"n.three"_s, PassedOverReason::NoShows}, missing}}));
    EXPECT_EQ(health(4), (SourceHealth{clock.now(), std::nullopt,
                                       Sources{missing, {u"s.four"_s, PassedOverReason::NoShows}}}));

    // A failed load is recorded, together with the source of the shows that are still stored.
    const Moment before = clock.now();
    const SourceHealth earlier = health(2);
    clock.advance(30 * 24h);
    world.answerNothing(kShared);
    world.answer(kSecond, "unreadable");
    check(world);
    EXPECT_EQ(health(2),
              (SourceHealth{clock.now(), earlier.used,
                            Sources{{u"n.two"_s, PassedOverReason::NoPage, 0, PageReason::Transfer},
                                    {u"s.two"_s, PassedOverReason::NoShows}}}));
    EXPECT_FALSE(health(2).hasLoaded());
    EXPECT_EQ(health(2).used->at, before);

    // The file has the same records, but only of selected channels.
    world.channels->setSelected({UpdateWorld::channelNumbered(2), UpdateWorld::channelNumbered(3)});
    check(world);
    SourceHealthRecords read(world.folders.caches + u"/source-health.json"_s);
    read.read();
    EXPECT_EQ(read.all(), world.sourceHealth.all());
    EXPECT_EQ(read.all().size(), 2U);
}

TEST_F(UpdateCycleTest, TellsWhyALoadStoredNothing) {
    const QString third = u"http://third.test/"_s;
    UpdateWorld world(queues, clock,
                      {{1, {u"cc.romania"_s}}, // has no host
                       {2, {u"cc.romania"_s, u"n.two"_s, third}},
                       {3, {third, u"n.three"_s}},
                       {4, {u"s.four"_s}},
                       {5, {third, u"n.five"_s}}});
    world.answer(kShared, "2 5 -48\n5 6");
    world.answerStatus(third, 404);
    using Reason = LoadFailureReason;
    const auto failure = [&](int channel) {
        return world.channels->channelWithChannelId(UpdateWorld::channelNumbered(channel))->loadFailure();
    };
    world.client.onRequest([&](const HTTPRequest& request) {
        if (request.url == QUrl(kSecond)) {
            EXPECT_EQ(failure(4), std::nullopt) << "while the load runs";
        }
    });
    for (const bool again : {false, true}) {
        check(world);
        EXPECT_EQ(failure(1), LoadFailure{});
        EXPECT_EQ(failure(2), (LoadFailure{Reason::OnlyPastShows, u"n.test"_s, 0}));
        EXPECT_EQ(failure(3), (LoadFailure{Reason::Status, u"third.test"_s, 404})) << "of the first source";
        EXPECT_EQ(failure(4), (LoadFailure{Reason::NoAnswer, u"s.test"_s, 0}));
        EXPECT_EQ(failure(5), std::nullopt) << "its second source has shows";
        EXPECT_EQ(world.announced, again ? "2 3 4 4 2 3 " : "1 4 2 3 ");
        world.clearLog();
    }
    world.answer(kSecond, "4 5");
    check(world);
    EXPECT_EQ(failure(4), std::nullopt);
}

TEST_F(UpdateCycleTest, AShutdownIsNotRecordedAsAFailureOfTheSource) {
    UpdateWorld world(queues, clock, {{1, {u"n.one"_s, u"s.one"_s}}, {2, {u"s.two"_s}}});
    world.answerNothing(kShared);
    world.answer(kSecond, "1 5\n2 5");
    const ObjectId one = UpdateWorld::channelNumbered(1);
    SourceHealthRecords earlier(world.folders.caches + u"/source-health.json"_s);
    earlier.record(one, {clock.now(), UsedSource{u"s.one"_s, clock.now(), 1, 5, std::nullopt}, {}});
    earlier.write({one});
    world.client.onRequest([&](const HTTPRequest&) {
        EXPECT_EQ(world.sourceHealth.all(), earlier.all()) << "read before the first page arrives";
        world.client.cancelAll();
    });
    check(world);
    EXPECT_EQ(world.sourceHealth.all(), earlier.all());
}

TEST(UpdateCycleThreadsTest, NewAndFailedChannelsDoNotWaitForASlowHost) {
    ManualClock clock;
    ThreadedQueues queues([] {});
    {
        UpdateWorld world(queues, clock,
                          {{1, {u"n.one"_s}}, {2, {u"s.two"_s}}, {3, {u"http://third.test/"_s}}});
        const std::vector<ObjectId> all = world.channels->selected();
        world.channels->setSelected({all[0], all[1]});
        world.answer(kShared, "1 5");
        world.answerNothing(kSecond);
        world.answer(u"http://third.test/"_s, "3 5");
        std::atomic<bool> slow = true;
        world.client.onRequest([&](const HTTPRequest& request) {
            while (slow && request.url == QUrl(kShared)) {
                std::this_thread::yield();
            }
        });
        const auto runUntil = [&](const auto& condition) {
            for (const auto end = std::chrono::steady_clock::now() + 60s;
                 !condition() && std::chrono::steady_clock::now() < end;) {
                queues.runMainQueue();
                std::this_thread::yield();
            }
            EXPECT_TRUE(condition());
        };
        const auto record = [&](int place) { return world.channels->channelWithChannelId(all[place]); };
        world.cycle.checkAndUpdateAllChannels();
        runUntil([&] { return record(1)->loadFailure().has_value(); });
        world.answer(kSecond, "2 5");
        world.cycle.checkAndUpdateAllChannels();
        runUntil([&] { return record(1)->timeLoaded().has_value(); });
        world.channels->setSelected(all);
        world.cycle.checkAndUpdateAllChannels();
        runUntil([&] { return record(2)->timeLoaded().has_value(); });
        EXPECT_FALSE(record(0)->timeLoaded());
        slow = false;
        runUntil([&] { return record(0)->timeLoaded().has_value(); });
        EXPECT_TRUE(world.cycle.finish(10s));
        EXPECT_EQ(world.client.requests().size(), 5U) << "two attempts where nothing answered";
        EXPECT_TRUE(world.listings->finishWriting(10s));
        queues.shutDown();
    }
}

TEST(UpdateCycleThreadsTest, ASuspendedLoadQueueDelaysTheCheck) {
    ManualClock clock;
    ThreadedQueues queues([] {});
    {
        UpdateWorld world(queues, clock, {{1, {u"n.one"_s}}});
        world.answer(kShared, "1 5");
        SuspensionToken screen = world.loadQueue->suspend();
        world.cycle.checkAndUpdateAllChannels();
        DispatchGroup check;
        check.async(*world.checkQueue, [] {});
        check.wait(50ms);
        queues.runMainQueue();
        EXPECT_TRUE(world.requests().isEmpty());
        screen.release();
        while (world.offered.empty()) {
            queues.runMainQueue();
            std::this_thread::yield();
        }
        EXPECT_EQ(world.offered, "1:4 ");
        EXPECT_TRUE(world.cycle.finish(10s));
        EXPECT_TRUE(world.listings->finishWriting(10s));
        queues.shutDown();
    }
}

} // namespace
} // namespace guide
