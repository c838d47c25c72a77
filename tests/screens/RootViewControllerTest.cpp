#include "screens/root/RootViewController.h"

#include "ScreenWorld.h"
#include "screens/channel/ChannelViewController.h"

namespace guide::test {

namespace {

struct ChangeCounter final : TableObserver {
    void tableReloaded() override { ++reloads; }
    void rowsInserted(int, int, int count) override { inserted += count; }
    void rowsRemoved(int, int, int count) override { removed += count; }
    void rowsReloaded(int, int, int count) override { changed += count; }
    void rowSelectionChanged() override {}
    void emptyNoteChanged() override {}
    int reloads = 0;
    int inserted = 0;
    int removed = 0;
    int changed = 0;
};

class RootViewControllerTest : public testing::Test {
  protected:
    RootViewController& root() {
        return dynamic_cast<RootViewController&>(
            *world.tabs->tabs()[0].navigationController->viewControllers().front());
    }
    Table& table() { return root().table(); }
    QStringList texts(int section) {
        QStringList texts;
        for (const Row& row : table().sections()[static_cast<std::size_t>(section)].rows) {
            texts << row.text.plain();
        }
        return texts;
    }
    ColorRole timeColor(int row) { return table().row({0, row})->text.runs[0].color; }

    ScreenWorld world;
};

TEST_F(RootViewControllerTest, ShowsASectionForEachSelectedChannelInOrder) {
    world.device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedStates);
    world.device.zone = QTimeZone("Europe/Prague");
    const ObjectId one = world.addChannel(u"Jedna"_s);
    const ObjectId two = world.addChannel(u"Dva"_s, true, u"http://x/a b.m3u8"_s);
    world.addChannel(u"Tri"_s);
    world.addChannel(u"Only live"_s, true, u"http://x/only"_s);
    world.addChannel(u"Unselected"_s, false);
    world.showCount = 2;
    world.start();
    world.load(one, {{-30, 30, u"Now"_s, u"Facts"_s}, {30, 60, u"Next"_s}, {60, 90, u"Later"_s}});
    world.load(two, {{-5, 5, u"Other"_s}});
    world.show();

    ASSERT_EQ(table().sections().size(), 4U);
    EXPECT_EQ(root().title(), u"Currently"_s);
    EXPECT_EQ(texts(0), QStringList({u"Jedna"_s, u"07:00pm Now"_s, u"08:00pm Next"_s}));
    EXPECT_EQ(texts(1), QStringList({u"Dva"_s, u"07:25pm Other"_s}));
    EXPECT_EQ(texts(2), QStringList({u"Tri"_s}));
    EXPECT_EQ(table().row({0, 1})->endTime.plain(), u"08:00pm"_s);
    EXPECT_EQ(table().row({0, 1})->details.plain(), u"Facts"_s);
    EXPECT_EQ(table().row({0, 0})->details.plain(), u"Updated 12/31/25 7:30 PM"_s);
    EXPECT_TRUE(table().row({2, 0})->details.empty()) << "a channel that was never loaded says nothing";

    EXPECT_EQ(table().row({0, 0})->accessory, Accessory::Disclosure);
    EXPECT_EQ(table().row({1, 0})->accessory, Accessory::Play);
    EXPECT_EQ(table().row({2, 0})->accessory, Accessory::Spinner);
    EXPECT_FALSE(table().row({2, 0})->selectable);
    EXPECT_FALSE(table().row({0, 1})->selectable) << "nothing stands behind a show yet";

    root().tapAccessory({1, 0});
    EXPECT_EQ(world.app.done, QStringList{u"play http://x/a%20b.m3u8"_s});

    root().tapRow({3, 0});
    EXPECT_FALSE(table().selectedRow());
    EXPECT_EQ(world.app.done.value(1), u"play http://x/only"_s) << "no shows, but a stream";
}

TEST_F(RootViewControllerTest, AChannelThatTheCatalogueDoesNotKnow) {
    world.start();
    world.channels->setSelected({ScreenWorld::channelId(77)});
    world.show();
    EXPECT_EQ(texts(0), QStringList{u"?"_s});
    EXPECT_TRUE(table().row({0, 0})->icon.isNull());
}

TEST_F(RootViewControllerTest, SaysWhatToDoWithoutChannelsButNotBeforeItKnows) {
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
        {"to come", 1, 10, true, false, false, ColorRole::SecondaryLabel, {}},
        {"begins now", 0, 10, true, false, false, ColorRole::Running, 0.0},
        {"running", -5, 15, true, false, false, ColorRole::Running, 0.25},
        {"ends now: still running", -10, 0, true, false, false, ColorRole::Running, 1.0},
        {"a favourite that runs is green", -5, 15, true, true, false, ColorRole::Running, 0.25},
        {"favourite", 1, 10, true, true, false, ColorRole::Favourite, {}},
        {"an alarm wins over everything", -5, 15, true, true, true, ColorRole::Alarm, 0.25},
        {"no colours wanted", -5, 15, false, true, false, ColorRole::SecondaryLabel, 0.25},
        {"no colours wanted, but an alarm", 1, 10, false, false, true, ColorRole::Alarm, {}},
    };
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.start();
    world.show();
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        world.app.colorized = each.colorized;
        world.favorites.titles = each.favourite ? QStringList{u"show"_s} : QStringList();
        world.alarms.events.clear();
        if (each.alarm) {
            world.setAlarm(channel, {each.from, each.until, u"Show"_s});
        }
        root().reloadChannel(channel, world.list(channel, {{each.from, each.until, u"Show"_s}}));
        EXPECT_EQ(timeColor(1), each.color);
        EXPECT_EQ(table().row({0, 1})->progress, each.progress);
    }
}

TEST_F(RootViewControllerTest, PopularShowsCarryAHeart) {
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.popular.titles = {u"Loved"_s};
    world.start();
    world.load(channel, {{-5, 5, u"Loved"_s}, {5, 9, u"Other"_s}});
    world.show();
    EXPECT_EQ(table().row({0, 1})->text.runs.back().text, u"❤️"_s);
    EXPECT_EQ(table().row({0, 2})->text.runs.size(), 2U);
}

TEST_F(RootViewControllerTest, AFreshListChangesOnlyTheRowsThatItMust) {
    const ObjectId one = world.addChannel(u"Jedna"_s);
    const ObjectId two = world.addChannel(u"Dva"_s);
    world.start();
    world.show();
    ChangeCounter changes;
    table().setObserver(&changes);

    world.load(two, {{-5, 5, u"A"_s}, {5, 9, u"B"_s}, {9, 20, u"C"_s}});
    EXPECT_EQ(changes.inserted, 3);
    EXPECT_EQ(changes.changed, 1) << "the channel's row loses its spinner";
    changes = {};
    world.load(two, {{-5, 5, u"A"_s}, {5, 9, u"Changed"_s}});
    EXPECT_EQ(changes.changed, 1);
    EXPECT_EQ(changes.removed, 1);
    EXPECT_EQ(changes.reloads + changes.inserted, 0);
    changes = {};
    root().reloadChannel(one, ShowSpan());
    root().reloadChannel(ScreenWorld::channelId(50), world.list(one, {{0, 1, u"A"_s}}));
    EXPECT_EQ(changes.changed + changes.inserted + changes.removed + changes.reloads, 0);
    EXPECT_EQ(texts(1).size(), 3);
    table().setObserver(nullptr);
}

TEST_F(RootViewControllerTest, TheLoadQueueRestsWhileTheSectionsAreReplaced) {
    world.addChannel(u"Jedna"_s);
    world.start();
    root().selectedChannelsChanged();
    EXPECT_FALSE(world.queues.suspended("vorel.tv.loadQueue"))
        << "nothing happens before the screen is loaded";
    world.tabs->makeVisible();
    EXPECT_TRUE(world.queues.suspended("vorel.tv.loadQueue"));
    root().selectedChannelsChanged();
    while (table().sections().empty() && world.queues.runOne()) {
    }
    EXPECT_TRUE(world.queues.suspended("vorel.tv.loadQueue")) << "the second query is still under way";
    world.queues.runAll();
    EXPECT_FALSE(world.queues.suspended("vorel.tv.loadQueue"));
}

TEST_F(RootViewControllerTest, TheLoadQueueGoesOnWhenTheScreenIsGone) {
    world.addChannel(u"Jedna"_s);
    world.start();
    world.tabs->makeVisible();
    world.tabs.reset();
    world.queues.runAll();
    EXPECT_FALSE(world.queues.suspended("vorel.tv.loadQueue"));
}

TEST_F(RootViewControllerTest, AModifiedSelectionIsFollowedUpAtTheNextAppearance) {
    world.addChannel(u"Jedna"_s);
    world.start();
    world.broadcast->applicationDidBecomeActive();
    EXPECT_TRUE(world.app.done.isEmpty()) << "a screen that was never shown waits for its first appearance";
    world.show();
    EXPECT_EQ(world.app.done, QStringList({u"alarms"_s, u"check"_s}));
    world.tabs->setSelectedIndex(1);
    world.tabs->setSelectedIndex(0);
    EXPECT_EQ(world.app.done.size(), 2) << "once";
}

TEST_F(RootViewControllerTest, OffersReachNoScreenInTheBackground) {
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.start();
    world.show();
    world.state.state = ApplicationState::Background;
    world.load(channel, {{-5, 5, u"A"_s}});
    EXPECT_EQ(texts(0).size(), 1);
    world.state.state = ApplicationState::Active;
    world.broadcast->applicationDidBecomeActive();
    world.queues.runAll();
    EXPECT_EQ(texts(0).size(), 2);
}

TEST_F(RootViewControllerTest, AChannelOpensItsSchedule) {
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.start();
    world.load(channel, {{-5, 5, u"A"_s}});
    world.show();
    root().tapRow({0, 0});
    root().tapRow({0, 0});
    world.queues.runAll();
    ASSERT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 2U)
        << "two taps, one screen";
    EXPECT_EQ(world.top().title(), u"Jedna"_s);
    EXPECT_FALSE(table().selectedRow());

    world.tabs->selectedNavigationController().pop();
    world.clock.advance(10min);
    root().tapRow({0, 0});
    world.queues.runAll();
    EXPECT_EQ(&world.top(), &root()) << "a schedule that has run out opens nothing";
}

// ---- pictures

TEST_F(RootViewControllerTest, PicturesAreLoadedOnceForTheRowsInSight) {
    const QUrl url(u"http://x/p.jpg"_s);
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.start();
    world.load(channel, {{-5, 5, u"A"_s, u""_s, {url}}, {5, 9, u"B"_s}, {9, 19, u"A"_s}});
    world.show();
    for (int times = 0; times < 3; ++times) {
        root().willDisplayRow({0, 1});
        root().willDisplayRow({0, 2});
    }
    world.clock.advance(199ms);
    world.queues.runAll();
    EXPECT_TRUE(world.pictures.pictures.empty());
    world.clock.advance(1ms);
    world.queues.runAll();
    ASSERT_EQ(world.pictures.pictures.size(), 1U);
    ASSERT_EQ(world.pictures.details.size(), 1U) << "one detail pass a channel";

    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    world.pictures.pictures.begin()->second.post(world.queues.mainQueue(), image);
    world.queues.runAll();
    EXPECT_FALSE(table().row({0, 1})->picture.isNull());
    EXPECT_TRUE(table().row({0, 2})->picture.isNull());
    EXPECT_FALSE(table().row({0, 3})->picture.isNull()) << "a picture is for every show of its title";

    world.load(channel, {{-5, 5, u"A"_s}});
    EXPECT_TRUE(table().row({0, 1})->picture.isNull()) << "a fresh list forgets the pictures of the old one";
}

TEST_F(RootViewControllerTest, DetailsOfAnOldListDoNotReplaceANewOne) {
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.start();
    world.load(channel, {{-5, 5, u"Old"_s}});
    world.show();
    root().willDisplayRow({0, 1});
    world.clock.advance(200ms);
    world.queues.runAll();
    ASSERT_EQ(world.pictures.details.size(), 1U);
    world.load(channel, {{-5, 5, u"New"_s}});
    auto& [shows, block] = world.pictures.details.front();
    block.post(world.queues.mainQueue(), shows, {QImage()});
    world.queues.runAll();
    EXPECT_TRUE(texts(0).last().endsWith(u"New"_s));
}

TEST_F(RootViewControllerTest, WithoutPicturesOrWhileDueNothingIsFetched) {
    const QUrl url(u"http://x/p.jpg"_s);
    const ObjectId channel = world.addChannel(u"Jedna"_s);
    world.start();
    world.load(channel, {{-5, 5000, u"A"_s, u""_s, {url}}});
    world.show();
    world.app.images = false;
    root().willDisplayRow({0, 1});
    world.clock.advance(1s);
    world.queues.runAll();
    EXPECT_TRUE(world.pictures.pictures.empty() && world.pictures.details.empty());

    const ObjectId& due = channel;
    world.app.images = true;
    world.channels->channelWithChannelId(due)->unload();
    root().setShowImage(QImage(), due, u"other"_s);
    root().willDisplayRow({0, 1});
    world.clock.advance(1s);
    world.queues.runAll();
    EXPECT_TRUE(world.pictures.details.empty()) << "a channel that is due has no details to be looked for";
}

} // namespace

} // namespace guide::test
