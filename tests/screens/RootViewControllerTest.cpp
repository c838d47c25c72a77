#include "RootScreen.h"
#include "TableReplay.h"
#include "screens/channel/ChannelViewController.h"
#include "screens/detail/DetailViewController.h"

namespace guide::test {
namespace {

TEST_F(RootViewControllerTest, ShowsASectionForEachSelectedChannelInOrder) {
    world.device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedStates);
    world.device.zone = QTimeZone("Europe/Prague");
    const ObjectId one = world.addChannel(u"Jedna"_s);
    const ObjectId two = world.addChannel(u"Dva"_s, true, u"http://x/a b.m3u8"_s);
    world.addChannel(u"Tri"_s);
    world.addChannel(u"Only live"_s, true, u"http://x/only"_s);
    world.addChannel(u"Unselected"_s, false);
    world.showCount = 2;
    world.popular.titles = {u"Next"_s};
    world.start();
    world.load(one, {{-30, 30, u"Now"_s, u"Facts"_s}, {30, 60, u"Next"_s}, {60, 90, u"Later"_s}});
    world.load(two, {{-5, 5, u"Other"_s}});
    world.show();

    EXPECT_EQ(root().title(), u"Currently"_s);
    EXPECT_EQ(linesOf(table()), QStringList({u"Jedna"_s, u"07:00pm Now"_s, u"08:00pm Next"_s, u"Dva"_s,
                                             u"07:25pm Other"_s, u"Tri"_s, u"Only live"_s}));
    EXPECT_EQ(table().rowAt(1).id.section, one.hex());
    EXPECT_EQ(showAt(table(), 1).endTime, u"08:00pm"_s);
    EXPECT_EQ(showAt(table(), 1).details, u"Facts"_s);
    EXPECT_TRUE(showAt(table(), 2).popular && !showAt(table(), 1).popular);
    EXPECT_EQ(channelAt(table(), 0).subtitle, u"Updated 12/31/25 7:30 PM"_s);
    EXPECT_EQ(channelAt(table(), 5).subtitle, QString()) << "never loaded";
    EXPECT_EQ(channelAt(table(), 0).accessory, Accessory::Disclosure);
    EXPECT_EQ(channelAt(table(), 3).accessory, Accessory::Play);
    EXPECT_EQ(channelAt(table(), 5).accessory, Accessory::Spinner);
    EXPECT_FALSE(table().rowAt(5).selectable);

    send(3, AccessoryTapped{});
    send(6, Tapped{});
    EXPECT_EQ(world.app.done, QStringList({u"play http://x/a%20b.m3u8"_s, u"play http://x/only"_s}))
        << "a channel without shows plays when tapped";
    EXPECT_FALSE(table().selectedRow());
}

TEST_F(RootViewControllerTest, ShowsAChannelThatIsNotInTheCatalogueAsAQuestionMark) {
    world.start();
    world.channels->setSelected({ScreenWorld::channelId(77)});
    world.show();
    EXPECT_EQ(linesOf(table()), QStringList{u"?"_s});
    EXPECT_TRUE(channelAt(table(), 0).icon.empty());
}

TEST_F(RootViewControllerTest, ShowsANoteWithoutChannelsOnceTheQueryIsAnswered) {
    world.start();
    world.tabs->makeVisible();
    EXPECT_FALSE(table().emptyNote());
    world.queues.runAll();
    EXPECT_TRUE(table().emptyNote());
}

TEST_F(RootViewControllerTest, TimeColoursAndProgress) {
    struct Case {
        const char* name;
        int from, until;
        bool colorized, favourite, alarm;
        ColorRole color;
        std::optional<double> progress;
    };
    const std::vector<Case> cases{
        {"upcoming", 1, 10, true, false, false, ColorRole::SecondaryLabel, {}},
        {"begins now", 0, 10, true, false, false, ColorRole::Running, 0.0},
        {"running", -5, 15, true, false, false, ColorRole::Running, 0.25},
        {"ends now: still running", -10, 0, true, false, false, ColorRole::Running, 1.0},
        {"a running favourite is green", -5, 15, true, true, false, ColorRole::Running, 0.25},
        {"favourite", 1, 10, true, true, false, ColorRole::Favourite, {}},
        {"an alarm wins over everything", -5, 15, true, true, true, ColorRole::Alarm, 0.25},
        {"colours off", -5, 15, false, true, false, ColorRole::SecondaryLabel, 0.25},
        {"colours off, but an alarm", 1, 10, false, false, true, ColorRole::Alarm, {}},
    };
    const ObjectId channel = begin();
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        world.app.colorized = each.colorized;
        world.favorites.titles = each.favourite ? QStringList{u"show"_s} : QStringList();
        world.alarms.events.clear();
        if (each.alarm) {
            world.setAlarm(channel, {each.from, each.until, u"Show"_s});
        }
        root().reloadChannel(channel, world.list(channel, {{each.from, each.until, u"Show"_s}}));
        EXPECT_EQ(showAt(table(), 1).timeColor, each.color);
        EXPECT_EQ(showAt(table(), 1).progress, each.progress);
    }
}

TEST_F(RootViewControllerTest, AFreshListChangesOnlyTheRowsThatDiffer) {
    const ObjectId one = world.addChannel(u"Jedna"_s);
    const ObjectId two = world.addChannel(u"Dva"_s);
    world.start();
    world.show();
    TableReplay changes(table());

    world.load(two, {{-5, 5, u"A"_s}, {5, 9, u"B"_s}, {9, 20, u"C"_s}});
    EXPECT_EQ(std::exchange(changes.log, {}), QStringList({u"insert 2+3"_s, u"update 1+1"_s}))
        << "the channel's row loses its spinner";
    world.load(two, {{-5, 5, u"A"_s}, {5, 9, u"Changed"_s}});
    EXPECT_EQ(std::exchange(changes.log, {}), QStringList({u"remove 4+1"_s, u"update 3+1"_s}));
    root().reloadChannel(one, ShowSpan());
    root().reloadChannel(ScreenWorld::channelId(50), world.list(one, {{0, 1, u"A"_s}}));
    EXPECT_EQ(changes.log, QStringList());

    world.setAlarm(two, {5, 9, u"Changed"_s});
    world.broadcast->notificationsSynched();
    EXPECT_EQ(std::exchange(changes.log, {}), QStringList({u"update 3+1"_s}));
    world.app.colorized = false;
    world.broadcast->recolor();
    world.queues.runAll();
    EXPECT_EQ(changes.log, QStringList({u"update 2+1"_s})) << "only the running show had a colour";
}

TEST_F(RootViewControllerTest, SuspendsTheLoadQueueWhileTheSectionsAreReplaced) {
    world.addChannel(u"Jedna"_s);
    world.start();
    root().selectedChannelsChanged();
    EXPECT_FALSE(world.queues.suspended("vorel.tv.loadQueue"))
        << "nothing happens before the screen is loaded";
    world.tabs->makeVisible();
    EXPECT_TRUE(world.queues.suspended("vorel.tv.loadQueue"));
    root().selectedChannelsChanged();
    while (world.queues.suspended("vorel.tv.loadQueue")) {
        EXPECT_TRUE(table().sections().empty());
        ASSERT_TRUE(world.queues.runOne());
    }
    EXPECT_EQ(table().sections().size(), 1U) << "the answer to the second query, which was asked last";
}

TEST_F(RootViewControllerTest, ResumesTheLoadQueueWhenTheScreenIsDestroyed) {
    world.addChannel(u"Jedna"_s);
    world.start();
    world.tabs->makeVisible();
    world.tabs.reset();
    world.queues.runAll();
    EXPECT_FALSE(world.queues.suspended("vorel.tv.loadQueue"));
}

TEST_F(RootViewControllerTest, ChecksAModifiedSelectionOnceAtTheNextAppearance) {
    world.addChannel(u"Jedna"_s);
    world.start();
    world.broadcast->applicationDidBecomeActive();
    EXPECT_TRUE(world.app.done.isEmpty()) << "a screen that was never shown waits until it appears";
    world.show();
    EXPECT_EQ(world.app.done, QStringList({u"alarms"_s, u"check"_s}));
    world.tabs->setSelectedIndex(1);
    world.tabs->setSelectedIndex(0);
    EXPECT_EQ(world.app.done.size(), 2) << "once";
}

TEST_F(RootViewControllerTest, IgnoresFreshListsInTheBackground) {
    const ObjectId channel = begin();
    world.state.state = ApplicationState::Background;
    world.load(channel, {{-5, 5, u"A"_s}});
    EXPECT_EQ(table().rowCount(), 1);
    world.state.state = ApplicationState::Active;
    world.broadcast->applicationDidBecomeActive();
    world.queues.runAll();
    EXPECT_EQ(table().rowCount(), 2);
}

TEST_F(RootViewControllerTest, AShowOpensItsPage) {
    begin({{-5, 5, u"A"_s}, {5, 9, u"B"_s}});
    send(2, Tapped{});
    const auto* page = dynamic_cast<const DetailViewController*>(&world.top());
    ASSERT_TRUE(page);
    EXPECT_EQ(page->show().entry()->title(), u"B"_s);
}

TEST_F(RootViewControllerTest, AChannelOpensItsSchedule) {
    begin({{-5, 5, u"A"_s}});
    send(0, Tapped{});
    send(0, Tapped{});
    world.queues.runAll();
    ASSERT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 2U)
        << "two taps, one screen";
    EXPECT_EQ(world.top().title(), u"Jedna"_s);
    EXPECT_FALSE(table().selectedRow());

    world.tabs->selectedNavigationController().pop();
    world.clock.advance(10min);
    send(0, Tapped{});
    world.queues.runAll();
    EXPECT_EQ(&world.top(), &root()) << "a schedule that has run out opens nothing";
}

// ---- time

TEST_F(RootViewControllerTest, ShowsMoveOnByTheMinute) {
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.showCount = 2;
    world.start();
    world.load(channel, {{-5, 5, u"A"_s}, {5, 9, u"B"_s}, {9, 19, u"C"_s}});
    world.show();
    world.wait(1ms);
    TableReplay changes(table());
    world.wait(59'999ms);
    EXPECT_EQ(changes.log, QStringList()) << "not before the minute";
    world.wait(1ms);
    EXPECT_NEAR(showAt(table(), 1).progress.value(), 0.6, 1e-3);
    EXPECT_EQ(std::exchange(changes.log, {}), QStringList{u"update 1+1"_s});

    world.clock.advance(4min);
    world.queues.run("main");
    EXPECT_EQ(linesOf(table()).size(), 2) << "without an answer of the store";
    EXPECT_TRUE(linesOf(table())[1].endsWith(u'B'));
    EXPECT_TRUE(showAt(table(), 1).running);
    EXPECT_FALSE(world.queues.suspended("vorel.tv.loadQueue"));
    world.queues.runAll();
    EXPECT_TRUE(linesOf(table()).last().endsWith(u'C'));
    EXPECT_EQ(changes.log, QStringList({u"remove 1+1"_s, u"update 1+1"_s, u"insert 2+1"_s}));
}

TEST_F(RootViewControllerTest, AChannelThatRunsOutOfShowsIsLoaded) {
    const ObjectId channel = begin({{-5, 5, u"A"_s}});
    world.wait(5min);
    EXPECT_EQ(world.app.done, QStringList());
    world.wait(1min);
    EXPECT_EQ(linesOf(table()), QStringList{u"Jedna"_s});
    EXPECT_EQ(std::exchange(world.app.done, {}), QStringList{u"check"_s});
    // What the check finds.
    world.channels->channelWithChannelId(channel)->requireReload();
    world.fail(channel, LoadFailure{LoadFailureReason::OnlyPastShows, u"feeds.example"_s, 0});
    root().selectedChannelsChanged();
    world.wait(1min);
    EXPECT_EQ(world.app.done, QStringList()) << "it is tried again with the other failed ones";
    EXPECT_EQ(linesOf(table()).last(), u"[Try again]"_s);
}

TEST_F(RootViewControllerTest, FollowsAClockThatIsSet) {
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.start();
    world.load(channel, {{0, 60, u"A"_s}, {60, 120, u"B"_s}});
    world.show();
    world.wait(61min);
    EXPECT_TRUE(linesOf(table())[1].endsWith(u'B'));
    world.clock.advance(1min);
    world.clock.set(world.begin + 30s);
    world.queues.runAll();
    EXPECT_TRUE(linesOf(table())[1].endsWith(u'A')) << "shows that are no longer over come back";
    world.wait(30'001ms);
    world.wait(1min);
    EXPECT_NEAR(showAt(table(), 1).progress.value(), 2 / 60.0, 1e-3) << "on the minute again";
}

TEST_F(RootViewControllerTest, StandsStillInTheBackgroundAndWhenCovered) {
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.start();
    world.load(channel, {{0, 600, u"A"_s}});
    world.show();
    const auto progress = [this] { return showAt(table(), 1).progress.value(); };
    world.state.state = ApplicationState::Background;
    world.wait(2min);
    EXPECT_EQ(progress(), 0);
    EXPECT_FALSE(world.queues.hasTimers("main")) << "nothing wakes up in the background";
    world.state.state = ApplicationState::Active;
    world.broadcast->applicationDidBecomeActive();
    world.queues.runAll();
    const double now = progress();
    EXPECT_GT(now, 0);
    world.wait(61s);
    EXPECT_GT(progress(), now);

    world.tabs->setSelectedIndex(1);
    world.wait(61s);
    EXPECT_FALSE(world.queues.hasTimers("main"));
    world.tabs->setSelectedIndex(0);
    world.wait(1ms);
    EXPECT_NEAR(progress(), 4 / 600.0, 1e-3);
}

TEST_F(RootViewControllerTest, NothingMovesWhileTheListIsTouched) {
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.start();
    world.load(channel, {{-5, 5, u"A"_s}, {0, 10, u"B"_s}, {9, 19, u"C"_s}});
    world.show();
    table().setHeld(true);
    TableReplay changes(table());
    world.wait(6min);
    EXPECT_EQ(changes.log, QStringList{u"update 2+1"_s}) << "progress goes on";
    EXPECT_NEAR(showAt(table(), 2).progress.value(), 0.6, 1e-3);
    table().setHeld(false);
    EXPECT_TRUE(changes.log.contains(u"remove 1+1"_s)) << changes.log.join(u'|').toStdString();
    EXPECT_TRUE(linesOf(table())[1].endsWith(u'B'));
}

TEST_F(RootViewControllerTest, ShowsWithWrongEndsGiveWayToTheNextOne) {
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.device.zone = QTimeZone("UTC");
    world.device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedKingdom);
    world.start();
    world.load(channel,
               {{-600, 1'000'000, u"Always"_s}, {5, -1380, u"Backwards"_s}, {10, 40'000, u"Endless"_s}});
    world.show();
    EXPECT_EQ(linesOf(table()),
              QStringList({u"Jedna"_s, u"08:30 Always"_s, u"18:35 Backwards"_s, u"18:40 Endless"_s}));
    EXPECT_TRUE(showAt(table(), 1).running);
    EXPECT_EQ(showAt(table(), 2).endTime, u"18:40"_s);
    EXPECT_EQ(showAt(table(), 3).endTime, QString()) << "nobody knows";
    world.wait(6min);
    EXPECT_EQ(linesOf(table()).size(), 3);
    EXPECT_EQ(showAt(table(), 1).startTime, u"18:35"_s);
    EXPECT_NEAR(showAt(table(), 1).progress.value(), 0.2, 1e-3);
}

TEST_F(RootViewControllerTest, ShowsTheDayOfShowsThatAreNotOfToday) {
    world.device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedKingdom);
    world.device.zone = QTimeZone("Europe/Prague");
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.showCount = 5;
    world.start();
    // It is 19:30 on a Wednesday.
    world.load(channel, {{-1200, 10, u"Since yesterday"_s},
                         {10, 20, u"Today"_s},
                         {270, 280, u"After midnight"_s},
                         {6 * 1440, 6 * 1440 + 5, u"In six days"_s},
                         {7 * 1440, 7 * 1440 + 5, u"In a week"_s}});
    world.show();
    const QStringList days{{}, {}, u"Thu"_s, u"Tue"_s, u"07/01/2026"_s};
    for (int show = 0; show < days.size(); ++show) {
        EXPECT_EQ(showAt(table(), show + 1).day, days[show]) << show;
    }
    world.wait(271min);
    EXPECT_EQ(showAt(table(), 1).day, QString()) << "today is another day now";
}

// ---- loads that fail

TEST_F(RootViewControllerTest, APullChecksForNewSchedulesAndTriesFailedOnesAgain) {
    const ObjectId failing = world.addChannel(u"Jedna"_s);
    const ObjectId filled = world.addChannel(u"Dva"_s);
    world.start();
    world.load(filled, {{-5, 500, u"A"_s}});
    world.show();
    world.fail(failing, LoadFailure{LoadFailureReason::NoAnswer, u"feeds.example"_s});
    root().pullToRefresh();
    EXPECT_EQ(world.app.done, QStringList{u"check"_s});
    EXPECT_EQ(channelAt(table(), 0).accessory, Accessory::Spinner);
    world.wait(10s);
    EXPECT_TRUE(root().refreshing()) << "until the load ends";
    world.load(failing, {{-5, 500, u"B"_s}});
    world.fail(failing, std::nullopt);
    EXPECT_FALSE(root().refreshing());

    root().pullToRefresh();
    EXPECT_EQ(world.app.done.size(), 2);
    EXPECT_TRUE(root().refreshing());
    world.wait(1s);
    EXPECT_FALSE(root().refreshing()) << "nothing was due";
}

TEST_F(RootViewControllerTest, SaysWhyALoadFailedAndTriesAgain) {
    world.device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedStates);
    world.device.zone = QTimeZone("UTC");
    const ObjectId empty = world.addChannel(u"Jedna"_s);
    const ObjectId filled = world.addChannel(u"Dva"_s);
    world.start();
    world.load(filled, {{-5, 500, u"A"_s}});
    world.show();
    const LoadFailure failure{LoadFailureReason::NoAnswer, u"feeds.example"_s};
    world.fail(empty, failure);
    world.fail(filled, LoadFailure{LoadFailureReason::Status, u"feeds.example"_s, 404});
    const QStringList failed{u"Jedna"_s, u"[Try again]"_s, u"Dva"_s};
    EXPECT_EQ(linesOf(table()).first(3), failed);
    EXPECT_EQ(channelAt(table(), 0).subtitle, u"No answer from feeds.example"_s);
    EXPECT_EQ(channelAt(table(), 0).accessory, Accessory::None);
    EXPECT_EQ(channelAt(table(), 2).subtitle, u"Updated 12/31/25 6:30 PM · Status 404 from feeds.example"_s);
    EXPECT_EQ(channelAt(table(), 2).accessory, Accessory::Disclosure);

    const auto expectLoading = [this] {
        EXPECT_EQ(channelAt(table(), 0).accessory, Accessory::Spinner);
        EXPECT_EQ(linesOf(table())[1], u"Dva"_s) << "no button";
    };
    send(1, Tapped{});
    EXPECT_EQ(world.app.done, QStringList{u"check"_s});
    expectLoading();
    world.fail(empty, std::nullopt);
    expectLoading();
    world.fail(empty, failure);
    EXPECT_EQ(linesOf(table()).first(3), failed);

    send(1, Tapped{});
    world.wait(61s);
    EXPECT_EQ(linesOf(table()).first(3), failed) << "no load has begun";
    world.fail(empty, std::nullopt);
    world.load(empty, {{-5, 5, u"B"_s}});
    EXPECT_EQ(channelAt(table(), 0).accessory, Accessory::Disclosure);
    EXPECT_TRUE(linesOf(table())[1].endsWith(u'B'));
}

// ---- pictures

} // namespace
} // namespace guide::test
