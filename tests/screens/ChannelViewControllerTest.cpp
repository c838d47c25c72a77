#include "screens/channel/ChannelViewController.h"

#include "ScreenWorld.h"
#include "TableReplay.h"

namespace guide::test {
namespace {

class ChannelViewControllerTest : public testing::Test {
  protected:
    void begin(const std::optional<QString>& stream = {}) {
        world.device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedKingdom);
        // 31 December, 18:30 UTC, is 1 January, 05:30, in this zone.
        world.device.zone = QTimeZone("Australia/Lord_Howe");
        channel = world.addChannel(u"Jedna"_s, true, stream);
        world.start();
    }
    std::shared_ptr<ChannelViewController> open(const std::vector<WorldShow>& shows) {
        auto screen = std::make_shared<ChannelViewController>(world.environment, u"Jedna"_s,
                                                              world.list(channel, shows), u"icon"_s, channel);
        world.show();
        world.tabs->selectedNavigationController().push(screen);
        return screen;
    }
    void reload(ChannelViewController& screen) {
        screen.reloadChannelData();
        world.queues.runAll();
    }
    using Kinds = std::vector<BarButton::Kind>;
    static Kinds buttons(const ViewController& screen) {
        Kinds kinds;
        for (const BarButton& button : screen.rightBarButtons()) {
            kinds.push_back(button.kind);
        }
        return kinds;
    }
    static constexpr auto kRefresh = BarButton::Kind::Refresh;
    static constexpr auto kActivity = BarButton::Kind::Activity;
    static constexpr auto kPlay = BarButton::Kind::Play;

    ScreenWorld world;
    ObjectId channel = ScreenWorld::channelId(1);
};

TEST_F(ChannelViewControllerTest, GroupsByTheDayOfTheStart) {
    begin();
    const auto screen = open({{0, 60, u"Morning"_s, u"A long text"_s},
                              {17 * 60, 19 * 60, u"Across midnight"_s},
                              {19 * 60, 20 * 60, u"After it"_s}});
    EXPECT_EQ(screen->title(), u"Jedna"_s);
    EXPECT_EQ(linesOf(screen->table()),
              QStringList({u"# Thursday, 1 January 2026"_s, u"05:30 Morning"_s, u"22:30 Across midnight"_s,
                           u"# Friday, 2 January 2026"_s, u"00:30 After it"_s}));
    EXPECT_TRUE(showAt(screen->table(), 0).allDetails);
    EXPECT_EQ(showAt(screen->table(), 0).progress, 0.0);
    world.clock.advance(60min);
    screen->notificationsSynched();
    EXPECT_FALSE(showAt(screen->table(), 0).progress) << "a show that ends now is over here";
}

TEST_F(ChannelViewControllerTest, RefreshUnloadsTheChannelAndAsksForACheck) {
    begin(u"http://x/live"_s);
    world.load(channel, {{0, 60, u"Old"_s}});
    const auto screen = open({{0, 60, u"Old"_s}});
    EXPECT_EQ(buttons(*screen), Kinds({kRefresh, kPlay}));
    screen->pressRightBarButton(1);
    screen->pressRightBarButton(0);
    EXPECT_EQ(world.app.done, QStringList({u"play http://x/live"_s, u"check"_s}));
    EXPECT_EQ(buttons(*screen), Kinds({kActivity, kPlay}));

    world.broadcast->reloadData();
    world.queues.runAll();
    EXPECT_EQ(buttons(*screen), Kinds({kActivity, kPlay})) << "the channel is still due";
    world.load(channel, {{0, 60, u"New"_s}, {60, 90, u"And more"_s}});
    EXPECT_EQ(buttons(*screen), Kinds({kRefresh, kPlay}));
    EXPECT_TRUE(linesOf(screen->table()).last().endsWith(u"And more"_s));
}

TEST_F(ChannelViewControllerTest, OpensAsRefreshingWhileTheChannelIsLoadingOrDue) {
    begin();
    EXPECT_EQ(buttons(*open({{0, 60, u"A"_s}})), Kinds{kActivity}) << "never loaded";
    world.load(channel, {{0, 60, u"A"_s}});
    world.channels->channelWithChannelId(channel)->setLoading(true);
    const auto screen = open({{0, 60, u"A"_s}});
    EXPECT_EQ(buttons(*screen), Kinds{kActivity});
    reload(*screen);
    EXPECT_EQ(buttons(*screen), Kinds{kActivity});
    world.channels->channelWithChannelId(channel)->setLoading(false);
    reload(*screen);
    EXPECT_EQ(buttons(*screen), Kinds{kRefresh});
}

TEST_F(ChannelViewControllerTest, KeepsTheIndicatorWhenTheChannelIsNoLongerSelected) {
    begin();
    world.load(channel, {{0, 60, u"A"_s}});
    const auto screen = open({{0, 60, u"A"_s}});
    world.channels->setSelected({});
    screen->pullToRefresh();
    reload(*screen);
    EXPECT_EQ(buttons(*screen), Kinds{kActivity});
    EXPECT_TRUE(screen->refreshing());
    EXPECT_TRUE(world.app.done.isEmpty());
}

TEST_F(ChannelViewControllerTest, ShowsANoteWhenTheScheduleHasRunOut) {
    begin();
    world.load(channel, {{0, 60, u"A"_s}});
    const auto screen = open({{0, 60, u"A"_s}});
    world.clock.advance(61min);
    reload(*screen);
    EXPECT_TRUE(screen->table().sections().empty());
    EXPECT_TRUE(screen->table().emptyNote());
}

TEST_F(ChannelViewControllerTest, OnlyRunningShowsChangeByTheMinute) {
    begin();
    const auto screen = open({{0, 2, u"A"_s}, {2, 60, u"B"_s}, {60, 90, u"C"_s}});
    TableReplay changes(screen->table());
    world.wait(61s);
    EXPECT_EQ(std::exchange(changes.log, {}), QStringList{u"update 0+1"_s});
    world.wait(60s);
    EXPECT_EQ(changes.log, QStringList({u"update 0+1"_s, u"update 1+1"_s}));
    EXPECT_FALSE(showAt(screen->table(), 0).running) << "it stays in the list";
    EXPECT_TRUE(showAt(screen->table(), 1).running);
}

TEST_F(ChannelViewControllerTest, ARefreshThatFailsSaysWhy) {
    begin();
    world.load(channel, {{0, 60, u"A"_s}});
    const auto screen = open({{0, 60, u"A"_s}});
    screen->pullToRefresh();
    world.fail(channel, LoadFailure{LoadFailureReason::NotASchedule, {}});
    EXPECT_FALSE(screen->refreshing());
    EXPECT_EQ(buttons(*screen), Kinds{kRefresh});
    EXPECT_EQ(linesOf(screen->table()).first(), u"Not a schedule"_s);
    world.fail(channel, std::nullopt);
    EXPECT_TRUE(linesOf(screen->table()).first().startsWith(u'#'));
}

TEST_F(ChannelViewControllerTest, RecolorsOnTheNextMainQueueTurn) {
    begin();
    const auto screen = open({{0, 60, u"A"_s}});
    EXPECT_EQ(showAt(screen->table(), 0).timeColor, ColorRole::Running);
    world.app.colorized = false;
    world.broadcast->recolor();
    EXPECT_EQ(showAt(screen->table(), 0).timeColor, ColorRole::Running);
    world.queues.runAll();
    EXPECT_EQ(showAt(screen->table(), 0).timeColor, ColorRole::SecondaryLabel);
    world.setAlarm(channel, {0, 60, u"A"_s});
    world.broadcast->favoritesUpdated();
    EXPECT_EQ(showAt(screen->table(), 0).timeColor, ColorRole::Alarm);
    EXPECT_TRUE(showAt(screen->table(), 0).alarmed && showAt(screen->table(), 0).running);
}

} // namespace
} // namespace guide::test
