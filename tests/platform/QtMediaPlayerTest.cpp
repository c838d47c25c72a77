#include "platform/linux/QtMediaPlayer.h"

#include "fakes/Files.h"
#include "fakes/ScriptedServer.h"
#include "platform/linux/EventLoopQueues.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QVideoFrame>
#include <QVideoSink>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

constexpr int kLongestWait = 60'000;

/// Half a second of pictures.
QByteArray shortFilm() {
    return contentOf(QStringLiteral(QUELLIN_TEST_DATA "/platform/short.mkv"));
}

/// Without a length, so that the player does not seek in it.
ServerReply streamOf(const QByteArray& bytes) {
    return ServerReply::raw(ServerReply::head(200) + bytes);
}

class QtMediaPlayerTest : public testing::Test {
  protected:
    std::unique_ptr<MediaPlayer> player(const QString& path) {
        return players.makePlayer(server.url(path), [this] { ++changes; });
    }

    int count = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    const QCoreApplication application{count, arguments};
    ScriptedServer server;
    EventLoopQueues queues;
    QtMediaPlayers players{queues.mainQueue()};
    int changes = 0;
};

TEST_F(QtMediaPlayerTest, PlaysAStreamToItsEndAndAgain) {
    server.serve("/film", streamOf(shortFilm()));
    QVideoSink sink;
    int drawn = 0;
    QObject::connect(
        &sink, &QVideoSink::videoFrameChanged, &sink,
        [&drawn](const QVideoFrame& frame) { drawn += frame.width() == 64; }, Qt::DirectConnection);
    const auto stream = player(u"/film"_s);
    stream->setVideoOutput(&sink);
    for (int turn = 1; turn <= 2; ++turn) {
        changes = 0;
        stream->play();
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return changes > 0 && stream->state().status == MediaStatus::Ended; }, kLongestWait));
        EXPECT_GE(stream->state().progress, 6U * unsigned(turn));
        EXPECT_GE(drawn, 6 * turn);
    }
}

TEST_F(QtMediaPlayerTest, SaysWhyAStreamCannotBePlayed) {
    const struct {
        const char* name;
        ServerReply reply;
        MediaFailure failure;
    } cases[] = {
        {"missing", ServerReply::answer(404, {}), MediaFailure::Unavailable},
        {"broken off", ServerReply::raw("HTTP/1.1 200 OK\r\n", ServerReply::End::Reset),
         MediaFailure::Unavailable},
        {"a text", streamOf(QByteArray(5000, 'x')), MediaFailure::Unavailable},
        {"a codec that nobody knows", streamOf(shortFilm().replace("MJPG", "ZZZZ")), MediaFailure::NoDecoder},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        server.serve("/stream", each.reply);
        const auto stream = player(u"/stream"_s);
        changes = 0;
        stream->play();
        EXPECT_TRUE(QTest::qWaitFor([&] { return changes > 0; }, kLongestWait));
        EXPECT_EQ(stream->state().status, MediaStatus::Failed);
        EXPECT_EQ(stream->state().failure, each.failure);
    }
}

TEST_F(QtMediaPlayerTest, LeavesASilentStreamAtOnce) {
    server.serve("/silent", ServerReply::raw(ServerReply::head(200), ServerReply::End::Stall));
    auto stream = player(u"/silent"_s);
    stream->play();
    ASSERT_TRUE(server.waitForRequests(1));
    EXPECT_EQ(stream->state().status, MediaStatus::Opening);
    QElapsedTimer time;
    time.start();
    stream.reset();
    EXPECT_LT(time.elapsed(), 500) << "the main thread waits for a stream that is stuck";
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace guide::test
