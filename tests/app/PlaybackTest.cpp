#include "app/Playback.h"

#include "fakes/FakeMediaPlayers.h"
#include "platform/memory/MemoryUserDefaults.h"
#include "screens/ScreenWorld.h"

namespace guide::test {
namespace {

const QString kUnavailable = u"Streaming of this video is currently unavailable or your Internet connection "
                             "speed is not adequate."_s;

struct FakeSession final : MediaSession {
    void setCommands(MediaCommands given) override { commands = std::move(given); }
    void setState(const std::optional<MediaSessionState>& given) override { state = given; }
    MediaCommands commands;
    std::optional<MediaSessionState> state;
};

struct FakeIdleInhibition final : IdleInhibition {
    void setInhibited(bool given) override { inhibited = given; }
    bool inhibited = false;
};

class PlaybackTest : public testing::Test {
  protected:
    PlaybackTest() {
        world.addChannel(u"Jedna"_s, true, u"http://stream.example/1"_s);
        world.addChannel(u"Dva"_s);
        world.addChannel(u"Tři"_s, true, u"http://stream.example/3"_s);
        world.addChannel(u"Také tři"_s, true, u"http://stream.example/3"_s);
        world.addChannel(u"Kamera"_s, false, u"rtsp://camera.example/1"_s);
        world.start();
        world.show();
        playback.emplace(Playback::Surroundings{.screens = world.environment,
                                                .tabs = *world.tabs,
                                                .players = players,
                                                .session = &session,
                                                .idleInhibition = &idle,
                                                .userDefaults = defaults,
                                                .alertAnswered = [this] { ++answered; },
                                                .raise = {}});
    }

    void play(const QString& url = u"http://stream.example/1"_s) {
        playback->playURL(QUrl(url));
        world.queues.runAll();
    }
    /// Lets the time pass in the steps of a clock, with or without pictures.
    void pass(std::chrono::seconds time, bool playing) {
        for (; time > 0s; time -= 1s) {
            players.last().state.progress += playing ? 1 : 0;
            world.wait(1s);
        }
    }
    void report(MediaStatus status, MediaFailure failure = MediaFailure::None) {
        players.last().report(status, failure);
        world.queues.runAll();
    }
    QString alert() const {
        return world.tabs->presentedAlert() ? world.tabs->presentedAlert()->message : QString();
    }
    const PlayerState& state() const { return playback->player()->state(); }

    ScreenWorld world;
    FakeMediaPlayers players;
    MemoryUserDefaults defaults;
    FakeSession session;
    FakeIdleInhibition idle;
    int answered = 0;
    ObjectId first = ScreenWorld::channelId(1);
    std::optional<Playback> playback;
};

TEST_F(PlaybackTest, GivesUpAStreamThatDoesNotPlay) {
    using Seconds = std::chrono::seconds;
    const struct {
        const char* name;
        std::function<void()> happens;
        /// How long the player waits.
        Seconds patience;
        QString message;
    } cases[] = {
        {"refused", [&] { report(MediaStatus::Failed, MediaFailure::Unavailable); }, 0s, kUnavailable},
        {"of an unknown format", [&] { report(MediaStatus::Failed, MediaFailure::NoDecoder); }, 0s,
         u"This device cannot decode the stream. Installing gstreamer1.0-libav, gstreamer1.0-plugins-bad, "
         "gstreamer1.0-plugins-ugly may help."_s},
        {"silent", [] {}, 25s, kUnavailable},
        {"stops growing",
         [&] {
             report(MediaStatus::Ready);
             pass(60s, true);
         },
         25s, kUnavailable},
        {"ends and does not come back",
         [&] {
             report(MediaStatus::Ready);
             pass(60s, true);
             report(MediaStatus::Ended);
             report(MediaStatus::Failed, MediaFailure::Unavailable);
         },
         25s, kUnavailable},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        play();
        each.happens();
        if (each.patience > 0s) {
            pass(each.patience - 1s, false);
            EXPECT_EQ(alert(), QString());
            EXPECT_TRUE(state().waiting);
            pass(1s, false);
        }
        EXPECT_EQ(alert(), each.message);
        EXPECT_FALSE(world.tabs->cover());
        EXPECT_FALSE(players.last().alive);
        EXPECT_FALSE(idle.inhibited);
        EXPECT_FALSE(session.state);
        world.tabs->answerAlert(0);
    }
    EXPECT_EQ(answered, int(std::size(cases)));
}

TEST_F(PlaybackTest, OpensALiveStreamAgainThatEnds) {
    play();
    report(MediaStatus::Ready);
    pass(12s, true);
    report(MediaStatus::Ended);
    EXPECT_EQ(players.last().played, 2);
    // A server that keeps closing is not asked more often than the watch looks.
    report(MediaStatus::Ended);
    report(MediaStatus::Ended);
    EXPECT_EQ(players.last().played, 2);
    pass(5s, false);
    EXPECT_EQ(players.last().played, 3);
    report(MediaStatus::Ready);
    pass(60s, true);
    EXPECT_EQ(alert(), QString());

    play(u"https://elsewhere.example/trailer.webm"_s);
    report(MediaStatus::Ready);
    pass(12s, true);
    report(MediaStatus::Ended);
    EXPECT_FALSE(playback->player()) << "what belongs to no channel is over at its end";
    EXPECT_EQ(alert(), QString());
}

TEST_F(PlaybackTest, APausedStreamIsNotGivenUp) {
    play();
    report(MediaStatus::Ready);
    session.commands.togglePaused();
    EXPECT_TRUE(players.last().paused && !idle.inhibited && session.state->paused);
    pass(120s, false);
    playback->play();
    EXPECT_TRUE(players.last().paused) << "it goes on only when the user says so";
    session.commands.setPaused(false);
    EXPECT_FALSE(players.last().paused);
    EXPECT_TRUE(idle.inhibited);
    pass(24s, false);
    EXPECT_TRUE(playback->player());
    pass(1s, false);
    EXPECT_FALSE(playback->player());
}

TEST_F(PlaybackTest, AStreamReplacesTheOneThatPlays) {
    play();
    pass(20s, false);
    play(u"http://stream.example/3"_s);
    ASSERT_EQ(players.streams.size(), 2U);
    EXPECT_FALSE(players.streams[0]->alive);
    EXPECT_EQ(world.tabs->cover(), playback->player());
    pass(24s, false);
    EXPECT_TRUE(playback->player()) << "the time of the first stream does not count";
    pass(1s, false);
    EXPECT_FALSE(playback->player());
}

TEST_F(PlaybackTest, ChangesBetweenTheChannelsThatHaveStreams) {
    play();
    EXPECT_EQ(state().channel, u"Jedna"_s);
    EXPECT_TRUE(state().hasOtherChannels);
    playback->player()->setFullScreen(true);
    playback->player()->setVolume(0.5);
    for (const auto& [by, channel] : {std::pair(1, u"Tři"_s), std::pair(1, u"Jedna"_s),
                                      std::pair(-1, u"Tři"_s), std::pair(-1, u"Jedna"_s)}) {
        session.commands.changeChannel(by);
        EXPECT_EQ(state().channel, channel);
        EXPECT_TRUE(state().fullScreen);
        EXPECT_EQ(players.last().volume, 0.5);
    }
    session.commands.stop();
    EXPECT_FALSE(playback->player());
    play();
    EXPECT_EQ(state().volume, 0.5) << "the volume is kept";
    EXPECT_FALSE(state().fullScreen);
}

TEST_F(PlaybackTest, ShowsWhatIsOn) {
    world.load(first, {{-30, 30, u"Zprávy"_s}, {30, 60, u"Počasí"_s}});
    play();
    EXPECT_EQ(state().title, u"Zprávy"_s);
    EXPECT_EQ(state().progress, 0.5);
    pass(15min + 1s, true);
    EXPECT_NEAR(state().progress, 0.75, 0.001);
    pass(15min, true);
    EXPECT_EQ(state().title, u"Počasí"_s);
    EXPECT_EQ(session.state->title, u"Počasí"_s);
    pass(30min, true);
    EXPECT_EQ(state().title, QString());
    EXPECT_LT(state().progress, 0);
}

TEST_F(PlaybackTest, RefusesWhatIsNoStream) {
    for (const QString& url : {u"file:///etc/passwd"_s, u"javascript:alert(1)"_s, u"v4l2:///dev/video0"_s,
                               u"http:///no-host"_s, u"rtsp://of-no-channel.example/1"_s, u"not an address"_s,
                               u"http://x.example/"_s + QString(5000, u'a')}) {
        play(url);
        EXPECT_TRUE(players.streams.empty()) << url.left(40).toStdString();
        ASSERT_TRUE(world.tabs->presentedNotice());
        world.tabs->dismissNotice();
    }
    play(u"rtsp://camera.example/1"_s);
    EXPECT_EQ(players.streams.size(), 1U);
}

TEST_F(PlaybackTest, TheScreensBelowAreNotVisibleMeanwhile) {
    EXPECT_FALSE(world.tabs->cover());
    play();
    EXPECT_TRUE(world.tabs->cover());
    const int tab = world.tabs->selectedIndex();
    playback->player()->leave();
    EXPECT_FALSE(world.tabs->cover());
    EXPECT_EQ(world.tabs->selectedIndex(), tab);
}

} // namespace
} // namespace guide::test
