#include "platform/linux/EventLoopQueues.h"
#include "platform/queues/MainBlock.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>
#include <thread>

using namespace std::chrono_literals;

namespace guide {
namespace {

struct MainInboxTest : testing::Test {
    int wakeUps = 0;
    std::string log;
    const std::shared_ptr<MainInbox> inbox =
        std::make_shared<MainInbox>([this] { ++wakeUps; }, MainInbox::Later());

    Block note(char letter) {
        return [this, letter] { log += letter; };
    }
};

TEST_F(MainInboxTest, RunsPendingBlocksAndWakesUpForLaterOnes) {
    inbox->async([&] {
        log += 'a';
        inbox->async(note('c'));
        // A nested event loop must run neither the remaining blocks nor this one.
        inbox->runPending();
    });
    inbox->async(note('b'));
    EXPECT_EQ(wakeUps, 1);
    inbox->runPending();
    EXPECT_EQ(log, "ab");
    EXPECT_EQ(wakeUps, 2);
    inbox->runPending();
    EXPECT_EQ(log, "abc");
    EXPECT_EQ(wakeUps, 2);
    inbox->async(note('d'));
    EXPECT_EQ(wakeUps, 3);
}

TEST_F(MainInboxTest, ResumingWakesUpForPendingBlocks) {
    SuspensionToken token;
    inbox->async([&] { token = inbox->suspend(); });
    inbox->async(note('a'));
    inbox->runPending();
    inbox->runPending();
    EXPECT_EQ(log, "");
    EXPECT_EQ(wakeUps, 1);
    token.release();
    EXPECT_EQ(wakeUps, 2);
    inbox->runPending();
    EXPECT_EQ(log, "a");
}

TEST_F(MainInboxTest, DiscardingDropsTheRestOfARun) {
    inbox->async([&] { inbox->discardAll(); });
    inbox->async(note('a'));
    inbox->runPending();
    inbox->async(note('b'));
    inbox->runPending();
    EXPECT_EQ(log, "");
    EXPECT_EQ(wakeUps, 1);
}

TEST_F(MainInboxTest, MainBlockIsCalledOnceAndOnlyForALivingOwner) {
    auto screen = std::make_shared<std::string>();
    const auto held = std::make_shared<int>();
    const auto answer = [&] {
        return MainBlock<int>(screen,
                              [text = screen.get(), held](int value) { *text += std::to_string(value); });
    };
    MainBlock<int> block = answer();
    MainBlock<int> copy = block;
    block.post(*inbox, 1);
    copy.post(*inbox, 2);
    block.post(*inbox, 3);
    inbox->runPending();
    EXPECT_EQ(*screen, "1");
    EXPECT_EQ(held.use_count(), 1) << "released after the call";

    MainBlock<int> late = answer();
    late.post(*inbox, 4);
    screen.reset();
    inbox->runPending();
    EXPECT_EQ(held.use_count(), 1) << "released even though it was never called";
}

TEST(EventLoopQueuesTest, WorkersReachTheMainThreadThroughTheEventLoop) {
    int argc = 1;
    std::string name = "test";
    char* argv[] = {name.data(), nullptr};
    const QCoreApplication application(argc, argv);
    EventLoopQueues queues;
    const std::thread::id mainThread = std::this_thread::get_id();
    std::string log;
    QEventLoop outer;
    queues.globalQueue(QueuePriority::Background).async([&] {
        queues.mainQueue().async([&] {
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
            log += 'a';
            outer.quit();
        });
    });
    outer.exec();
    queues.mainQueue().asyncAfter(1ms, [&] { outer.quit(); });
    outer.exec();
    queues.shutDown();
    queues.mainQueue().async([&] { log += 'b'; });
    QCoreApplication::processEvents();
    EXPECT_EQ(log, "a");
}

} // namespace
} // namespace guide
