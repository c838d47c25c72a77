#include "platform/linux/InstanceLock.h"

#include "fakes/Files.h"
#include "platform/files/FileReplacement.h"
#include "platform/linux/LocalSocket.h"
#include "platform/queues/ThreadedQueues.h"

#include <QDir>
#include <QTemporaryDir>

#include <future>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace guide {
namespace {

using Outcome = InstanceLock::Outcome;

class InstanceLockTest : public testing::Test {
  protected:
    std::unique_ptr<InstanceLock> start(const QByteArray& request = "raise") const {
        return std::make_unique<InstanceLock>(folder.path(), sockets.path(), request);
    }

    const QTemporaryDir folder;
    // Longer than a socket address can be.
    const QTemporaryDir sockets{QDir::tempPath() + u'/' + QString(120, u's') + u"XXXXXX"_s};
    ThreadedQueues queues{[] {}};
    const std::shared_ptr<DispatchQueue> queue = queues.makeQueue("requests", QueueKind::Serial);
};

TEST_F(InstanceLockTest, TheSecondInstanceSendsItsRequestToTheFirst) {
    std::unique_ptr<InstanceLock> first = start();
    ASSERT_EQ(first->outcome(), Outcome::First);
    // Connects before the first instance listens, and waits for it.
    std::future<Outcome> early = std::async(std::launch::async, [this] { return start("early")->outcome(); });
    std::vector<QByteArray> requests;
    first->listen(queue, [&](const QByteArray& request) { requests.push_back(request); });
    EXPECT_EQ(early.get(), Outcome::HandedOver);
    EXPECT_EQ(start("open guide://abc\nč")->outcome(), Outcome::HandedOver);
    EXPECT_EQ(start("")->outcome(), Outcome::HandedOver);
    queue->sync([] {});
    EXPECT_EQ(requests, (std::vector<QByteArray>{"early", "open guide://abc č", ""}));

    // Other folders belong to another instance, even with the same socket folder.
    const QTemporaryDir otherFolder;
    EXPECT_EQ(InstanceLock(otherFolder.path(), sockets.path(), "raise").outcome(), Outcome::First);
    EXPECT_EQ(start()->outcome(), Outcome::HandedOver);
    queue->sync([] {});
}

TEST_F(InstanceLockTest, TheLockIsFreeAfterTheFirstInstance) {
    start().reset();
    std::unique_ptr<InstanceLock> ending = start();
    ASSERT_EQ(ending->outcome(), Outcome::First);
    ending->listen(queue, [](const QByteArray&) { ADD_FAILURE() << "sent to an instance that is ending"; });
    ending->stopListening();
    std::future<Outcome> next = std::async(std::launch::async, [this] { return start()->outcome(); });
    std::this_thread::sleep_for(30ms);
    ending.reset();
    EXPECT_EQ(next.get(), Outcome::First) << "waits for an instance that is ending";
}

TEST_F(InstanceLockTest, AnInstanceThatRefusesARequestMakesRoom) {
    std::unique_ptr<InstanceLock> first = start();
    std::promise<QByteArray> refused;
    first->listen(
        queue,
        [&, told = false](const QByteArray& request) mutable {
            if (request != "update" && !std::exchange(told, true)) {
                refused.set_value(request);
            }
        },
        [](const QByteArray& request) { return request == "update"; });
    EXPECT_EQ(start("update")->outcome(), Outcome::HandedOver);
    std::future<Outcome> next = std::async(std::launch::async, [this] { return start("show")->outcome(); });
    EXPECT_EQ(refused.get_future().get(), "show");
    first.reset();
    EXPECT_EQ(next.get(), Outcome::First);
}

TEST_F(InstanceLockTest, ADeadProcessHoldsNoLock) {
    const QByteArray path = QFile::encodeName(sockets.path()) + "/instance-dead.socket";
    {
        const FileDescriptor dead = listeningSocket(path);
        EXPECT_TRUE(writeLine(connectedSocket(path), "")) << "a line of one byte";
    }
    ASSERT_TRUE(replaceFile(folder.filePath(u"instance.lock"_s), path));
    std::unique_ptr<InstanceLock> first = start();
    EXPECT_EQ(first->outcome(), Outcome::First);
    first->listen(queue, [](const QByteArray&) {});
    EXPECT_EQ(start()->outcome(), Outcome::HandedOver);
}

TEST_F(InstanceLockTest, EndlessAndSilentCallersDoNotBlockOthers) {
    std::unique_ptr<InstanceLock> first = start();
    std::vector<QByteArray> requests;
    first->listen(queue, [&](const QByteArray& request) { requests.push_back(request); });
    const QByteArray path = test::contentOf(folder.filePath(u"instance.lock"_s));
    {
        const FileDescriptor chatter = connectedSocket(path);
        ASSERT_TRUE(chatter);
        writeLine(chatter, QByteArray(200'000, 'x'));
        const FileDescriptor leaving = connectedSocket(path);
    }
    EXPECT_EQ(start("after")->outcome(), Outcome::HandedOver);
    queue->sync([] {});
    EXPECT_EQ(requests, std::vector<QByteArray>{"after"});
    const FileDescriptor silent = connectedSocket(path);
    const auto begun = std::chrono::steady_clock::now();
    first.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - begun, 500ms);
}

TEST_F(InstanceLockTest, MissingFoldersAreUnavailable) {
    EXPECT_EQ(InstanceLock(folder.filePath(u"absent"_s), sockets.path(), "raise").outcome(),
              Outcome::Unavailable);
    EXPECT_EQ(InstanceLock(folder.path(), sockets.filePath(u"absent"_s), "raise").outcome(), Outcome::First);
}

} // namespace
} // namespace guide
