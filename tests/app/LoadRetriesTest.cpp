#include "app/LoadRetries.h"

#include "app/UpdateWorld.h"
#include "fakes/ManualQueues.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace guide {
namespace {

const QString kFirst = u"http://n.test/epg.xml"_s;
const QString kSecond = u"http://s.test/losmij/epg.xml.gz"_s;

struct LoadRetriesTest : testing::Test {
    ManualClock clock;
    ManualQueues queues{clock};
    // The first two channels can fail; the third one has no source.
    UpdateWorld world{queues, clock, {{1, {u"n.one"_s}}, {2, {u"s.two"_s}}, {3, {u"cc.romania"_s}}}};
    LoadRetries retries{clock, queues.mainQueue(), *world.channels,
                        [this] { world.cycle.checkAndUpdateAllChannels(); }};

    LoadRetriesTest() {
        world.onLoadsEnded = [this](const LoadResults& results) { retries.loadsEnded(results); };
        world.answer(kSecond, "2 90");
    }

    void activate() {
        retries.setActive(true);
        world.cycle.checkAndUpdateAllChannels();
        queues.runAll();
    }

    /// Lets that many minutes pass and returns those in which the URL was requested.
    std::vector<int> minutesOfRequests(const QString& url, int minutes) {
        std::vector<int> found;
        for (int minute = 1; minute <= minutes; ++minute) {
            world.clearLog();
            clock.advance(1min);
            queues.runAll();
            if (world.requests().contains(url)) {
                found.push_back(minute);
            }
        }
        return found;
    }
};

TEST_F(LoadRetriesTest, WaitsLongerAfterEachFailure) {
    world.answerNothing(kFirst);
    activate();
    EXPECT_EQ(minutesOfRequests(kFirst, 120), (std::vector{1, 6, 21, 51, 81, 111}));
    // A list ends it, and the next failure begins anew.
    world.answer(kFirst, "1 5");
    EXPECT_EQ(minutesOfRequests(kFirst, 60), std::vector{21});
    world.answerNothing(kFirst);
    clock.advance(25h);
    activate();
    EXPECT_EQ(minutesOfRequests(kFirst, 10), (std::vector{1, 6}));
}

TEST_F(LoadRetriesTest, ALoadForAnotherReasonDoesNotDelayTheRetry) {
    world.answerNothing(kFirst);
    activate();
    world.answerStatus(kSecond, 500);
    world.channels->channelWithChannelId(UpdateWorld::channelNumbered(2))->requireReload();
    clock.advance(30s);
    activate(); // the second channel fails for the first time
    clock.advance(30s);
    queues.runAll();
    EXPECT_EQ(minutesOfRequests(kFirst, 6), (std::vector{1, 5, 6}))
        << "at 1:30 for the second one, then at 6:00 and at 6:30";
}

TEST_F(LoadRetriesTest, DoesNothingInTheBackgroundOrWhenAllIsLoaded) {
    world.answer(kFirst, "1 90");
    activate();
    EXPECT_TRUE(minutesOfRequests(kFirst, 60).empty());
    retries.networkAppeared();
    EXPECT_EQ(queues.runAll(), 0U);

    world.answerNothing(kFirst);
    clock.advance(25h);
    activate();
    retries.setActive(false);
    retries.networkAppeared();
    EXPECT_TRUE(minutesOfRequests(kFirst, 60).empty());
    // What became due meanwhile is left to the check of the activation.
    world.clearLog();
    activate();
    clock.advance(10s);
    queues.runAll();
    EXPECT_EQ(world.requests().count(kFirst), 1);
}

TEST_F(LoadRetriesTest, ANetworkEndsTheWait) {
    world.answerNothing(kFirst);
    activate();
    world.clearLog();
    world.answer(kFirst, "1 5");
    retries.networkAppeared();
    queues.runAll();
    EXPECT_EQ(world.requests(), QStringList{kFirst});
    EXPECT_EQ(world.offered, "1:4 ");
}

TEST_F(LoadRetriesTest, SurvivesAClockThatIsSetBack) {
    world.answerNothing(kFirst);
    activate();
    clock.set(clock.now() - 24h * 365);
    activate();
    EXPECT_EQ(minutesOfRequests(kFirst, 10), std::vector{5});
}

} // namespace
} // namespace guide
