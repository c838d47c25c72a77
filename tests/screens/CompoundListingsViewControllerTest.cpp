#include "screens/compound/CompoundListingsViewController.h"

#include "ScreenWorld.h"
#include "TableReplay.h"
#include "screens/detail/DetailViewController.h"
#include "screens/favorites/FavoritesViewController.h"

#include <QImage>

namespace guide::test {
namespace {

class CompoundListingsViewControllerTest : public testing::Test {
  protected:
    using Screen = std::shared_ptr<CompoundListingsViewController>;

    explicit CompoundListingsViewControllerTest(UserInterfaceIdiom idiom = UserInterfaceIdiom::Phone)
        : world(idiom) {}

    /// A selected channel with an icon.
    ObjectId channel(const QString& title) {
        QImage icon(2, 2, QImage::Format_ARGB32);
        icon.fill(Qt::red);
        EXPECT_TRUE(icon.save(world.folder.filePath(title + u".png"_s)));
        return world.addChannel(title);
    }
    void begin() {
        world.device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedKingdom);
        world.device.zone = QTimeZone::utc();
        one = channel(u"Jedna"_s);
        two = channel(u"Dva"_s);
        iconless = world.addChannel(u"Tri"_s);
        world.start();
        world.show();
    }
    Screen push(const CompoundListings& listings) {
        auto screen = std::make_shared<CompoundListingsViewController>(world.environment, listings);
        world.tabs->selectedNavigationController().push(screen);
        return screen;
    }
    Screen open(const CompoundListings& listings) {
        Screen screen = push(listings);
        world.queues.runAll();
        return screen;
    }
    CompoundListingsViewController& rootOfTab(int index) {
        return dynamic_cast<CompoundListingsViewController&>(
            *world.tabs->tabs()[std::size_t(index)].navigationController->viewControllers().front());
    }
    static QStringList buttons(const ViewController& screen) {
        QStringList titles;
        for (const BarButton& button : screen.rightBarButtons()) {
            titles << button.title;
        }
        return titles;
    }

    ScreenWorld world;
    ObjectId one = ScreenWorld::channelId(1);
    ObjectId two = ScreenWorld::channelId(2);
    ObjectId iconless = ScreenWorld::channelId(3);
};

struct CompoundListingsOnTabletTest : CompoundListingsViewControllerTest {
    CompoundListingsOnTabletTest()
        : CompoundListingsViewControllerTest(UserInterfaceIdiom::Tablet) {}
};

TEST_F(CompoundListingsViewControllerTest, GroupsTheShowsOfAllChannelsByDay) {
    begin();
    world.popular.titles = {u"News"_s};
    world.load(one, {{0, 60, u"News"_s, u"Facts"_s}, {6 * 60, 7 * 60, u"Late"_s}});
    world.load(two, {{30, 90, u"Film"_s}});
    world.load(iconless, {{0, 60, u"Unseen"_s}});
    const Screen screen = open(CategoryListings{});
    EXPECT_EQ(linesOf(screen->table()),
              QStringList({u"# Wednesday, 31 December 2025"_s, u"18:30 News"_s, u"19:00 Film"_s,
                           u"# Thursday, 1 January 2026"_s, u"00:30 Late"_s}));
    const ShowRow& row = showAt(screen->table(), 0);
    EXPECT_EQ(row.endTime, u"19:30"_s);
    EXPECT_EQ(row.details, u"Facts"_s);
    EXPECT_EQ(row.channelIcon, (PictureKey{PictureKey::Kind::ChannelIcon, u"Jedna"_s}));
    EXPECT_TRUE(row.running && row.progress == 0.0 && !row.popular);
    EXPECT_EQ(row.timeColor, ColorRole::Running);
    EXPECT_FALSE(screen->progress());
    EXPECT_TRUE(world.app.alerts.empty());
}

TEST_F(CompoundListingsViewControllerTest, EachTypeAsksItsQuery) {
    begin();
    world.load(one, {{0, 60, u"News"_s}, {60, 120, u"Film"_s}, {120, 180, u"news"_s}});
    world.favorites.titles = {u"Film"_s};
    world.alerts.shows = world.list(two, {{5, 10, u"Alerted"_s}});
    const struct {
        CompoundListings listings;
        QString title;
        QStringList shows;
    } cases[] = {
        {FavoriteListings{}, u"Schedule"_s, {u"Film"_s}},
        {CategoryListings{}, u"All Shows"_s, {u"News"_s, u"Film"_s, u"news"_s}},
        {CategoryListings{TVListingsCategoryEveningShows}, u"Evening Shows"_s, {u"Film"_s, u"news"_s}},
        {CategoryListings{TVListingsCategoryMostWatched}, u"Most Watched"_s, {}},
        {CategoryListings{TVListingsCategoryAllFilm}, u"All"_s, {}},
        {CategoryListings{TVListingsCategorySports}, u"Sports"_s, {}},
        {TitleListings{u"News"_s}, u"News"_s, {u"News"_s}},
        {AlertListings{}, u"Alerts"_s, {u"Alerted"_s}},
    };
    for (const auto& each : cases) {
        const Screen screen = open(each.listings);
        EXPECT_EQ(screen->title(), each.title);
        QStringList shows;
        for (int row = 0; row < screen->table().rowCount(); ++row) {
            shows << showAt(screen->table(), row).title;
        }
        EXPECT_EQ(shows, each.shows) << each.title.toStdString();
    }
}

TEST_F(CompoundListingsViewControllerTest, AnEmptyListSaysWhyOnce) {
    begin();
    const Screen category = open(CategoryListings{TVListingsCategorySports});
    const Screen alerts = open(AlertListings{});
    ASSERT_EQ(world.app.alerts.size(), 2U);
    EXPECT_EQ(world.app.alerts[0].title, u"No TV shows in this category"_s);
    EXPECT_TRUE(world.app.alerts[0].message.endsWith(u".\nTV Shows are categorized heuristically."_s));
    EXPECT_EQ(world.app.alerts[1].message,
              u"There is nothing to show currently.\nPlease wait until TV listings have loaded."_s);
    world.broadcast->reloadData();
    world.queues.runAll();
    EXPECT_EQ(world.app.alerts.size(), 2U);
    category->pressEmptyNoteButton();
    EXPECT_EQ(world.app.done, QStringList{u"tab %1"_s.arg(int(Symbol::SelectedChannels))});

    world.tabs->setSelectedIndex(3);
    world.queues.runAll();
    EXPECT_EQ(world.app.alerts.size(), 2U) << "not on the first screen of a tab";
    EXPECT_EQ(rootOfTab(3).table().emptyNote()->title, u"No favourites yet"_s);
    world.favorites.titles = {u"News"_s};
    world.broadcast->favoritesUpdated();
    world.queues.runAll();
    EXPECT_EQ(rootOfTab(3).table().emptyNote()->title, u"No favourite is broadcast soon"_s);
}

TEST_F(CompoundListingsViewControllerTest, FollowsTheClock) {
    begin();
    world.load(one, {{0, 2, u"A"_s}, {2, 60, u"B"_s}, {60, 90, u"C"_s}});
    world.load(two, {{0, 2, u"X"_s}});
    const Screen screen = open(CategoryListings{});
    TableReplay changes(screen->table());
    world.wait(61s);
    EXPECT_EQ(std::exchange(changes.log, {}), QStringList{u"update 0+2"_s});
    world.wait(60s);
    EXPECT_EQ(changes.log, QStringList({u"remove 0+2"_s, u"update 0+1"_s}));
    EXPECT_TRUE(showAt(screen->table(), 0).running);
    world.wait(90min);
    EXPECT_TRUE(screen->table().sections().empty());
    EXPECT_TRUE(screen->table().emptyNote());
}

TEST_F(CompoundListingsViewControllerTest, AVisibleScreenAsksAtAHigherPriority) {
    begin();
    world.load(one, {{0, 60, u"A"_s}});
    const Screen screen = open(CategoryListings{});
    const auto asksOn = [this](const char* queue) {
        world.broadcast->reloadData();
        for (const char* each : {"vorel.listings.access", queue, "main", queue, "main"}) {
            world.queues.run(each);
        }
        return world.queues.runAll() == 0;
    };
    EXPECT_TRUE(asksOn("global.user-initiated"));
    world.tabs->setSelectedIndex(1);
    world.queues.runAll();
    EXPECT_TRUE(asksOn("global.background"));

    world.broadcast->reloadData();
    world.load(two, {{0, 60, u"B"_s}});
    world.broadcast->reloadData();
    world.tabs->setSelectedIndex(0);
    for (const char* each :
         {"vorel.listings.access", "global.user-initiated", "main", "global.user-initiated", "main"}) {
        world.queues.run(each);
    }
    EXPECT_EQ(screen->table().rowCount(), 2) << "does not wait for the slow answer";
}

TEST_F(CompoundListingsViewControllerTest, ManyLoadsCostFewQueries) {
    begin();
    world.load(one, {{0, 60, u"A"_s}});
    const Screen screen = open(CategoryListings{});
    world.broadcast->reloadData();
    const std::size_t single = world.queues.runAll();
    for (int load = 0; load < 50; ++load) {
        world.broadcast->offerTopShows({});
    }
    EXPECT_LE(world.queues.runAll(), 2 * single);
}

TEST_F(CompoundListingsViewControllerTest, AnswersForAScreenThatIsGoneAreDropped) {
    begin();
    world.load(one, {{0, 60, u"A"_s}});
    std::weak_ptr<CompoundListingsViewController> gone;
    gone = push(TitleListings{u"A"_s, true});
    world.tabs->selectedNavigationController().pop();
    EXPECT_TRUE(gone.expired());
    world.archive.requests[0].second.post(world.queues.mainQueue(), {{u"Monday"_s, {}}});
    world.queues.runAll();
    EXPECT_TRUE(world.app.alerts.empty());
}

TEST_F(CompoundListingsViewControllerTest, PastShowsComeFirstAndOpenTheirPage) {
    begin();
    const Screen screen = open(TitleListings{u"News"_s, true});
    EXPECT_TRUE(screen->progress() && world.app.alerts.empty()) << "the archive has not answered";
    ASSERT_EQ(world.archive.requests.size(), 1U);
    world.archive.requests[0].second.post(world.queues.mainQueue(),
                                          {{u"Monday"_s, QUrl(u"https://x/1"_s)}, {u"Sunday"_s, {}}});
    world.queues.runAll();
    EXPECT_FALSE(screen->progress());
    EXPECT_TRUE(world.app.alerts.empty());
    world.load(one, {{0, 60, u"News"_s}});
    EXPECT_EQ(linesOf(screen->table()), QStringList({u"# Past shows"_s, u"Monday"_s, u"Sunday"_s,
                                                     u"# Wednesday, 31 December 2025"_s, u"18:30 News"_s}));
    for (int row : {0, 1}) {
        screen->sendRowEvent(screen->table().rowAt(row).id, Tapped{});
    }
    EXPECT_EQ(world.app.done, QStringList{u"open https://x/1 News"_s});
    world.wait(2h);
    EXPECT_EQ(linesOf(screen->table()).size(), 3) << "they stay when the shows have ended";

    open(TitleListings{u"News"_s});
    EXPECT_EQ(world.archive.requests.size(), 1U) << "asked only when wanted";
}

TEST_F(CompoundListingsViewControllerTest, ScheduleLeadsToFavouritesAndAlerts) {
    begin();
    world.tabs->setSelectedIndex(3);
    world.queues.runAll();
    CompoundListingsViewController& schedule = rootOfTab(3);
    EXPECT_EQ(schedule.title(), u"Schedule"_s);
    EXPECT_EQ(buttons(schedule), QStringList{u"Edit"_s});
    world.setAlarm(one, {0, 60, u"A"_s});
    world.app.synchronising = true;
    world.broadcast->notificationsSynched();
    EXPECT_EQ(buttons(schedule), QStringList({u"Edit"_s, u"Alerts"_s, u"Updating alerts"_s}));
    schedule.pressRightBarButton(1);
    EXPECT_EQ(world.top().title(), u"Alerts"_s);
    EXPECT_EQ(buttons(world.top()), QStringList{u"Updating alerts"_s});
    world.app.synchronising = false;
    world.broadcast->notificationsSynched();
    EXPECT_TRUE(buttons(world.top()).isEmpty());
    world.tabs->selectedNavigationController().pop();
    schedule.pressRightBarButton(0);
    EXPECT_EQ(world.top().title(), u"Favorites"_s);
}

TEST_F(CompoundListingsViewControllerTest, IsBusyFromTheBackgroundToTheNextAnswer) {
    begin();
    world.load(one, {{0, 60, u"A"_s}});
    const Screen screen = open(CategoryListings{});
    world.broadcast->applicationDidEnterBackground();
    EXPECT_TRUE(screen->progress());
    EXPECT_EQ(screen->table().rowCount(), 1);
    world.broadcast->applicationDidBecomeActive();
    EXPECT_TRUE(screen->progress());
    world.queues.runAll();
    EXPECT_FALSE(screen->progress());
}

TEST_F(CompoundListingsViewControllerTest, OpensAShowAndOffersItsActions) {
    begin();
    world.load(one, {{0, 60, u"A"_s}, {60, 90, u"B"_s}});
    QStringList asked;
    world.app.swipeActions = [&asked](const TVEntry& entry) {
        asked << *entry.title();
        return std::vector<RowAction>(1);
    };
    const Screen screen = open(CategoryListings{});
    EXPECT_EQ(screen->rowActions(screen->table().rowAt(1).id).size(), 1U);
    EXPECT_EQ(asked, QStringList{u"B"_s});
    screen->sendRowEvent(screen->table().rowAt(1).id, Tapped{});
    const auto& detail = dynamic_cast<const DetailViewController&>(world.top());
    EXPECT_EQ(detail.show().entry()->title(), u"B"_s);
}

TEST_F(CompoundListingsOnTabletTest, AllShowsIsTheFirstTab) {
    begin();
    world.load(one, {{0, 60, u"A"_s}});
    world.tabs->setSelectedIndex(0);
    world.queues.runAll();
    EXPECT_EQ(rootOfTab(0).title(), u"Schedule"_s);
    EXPECT_TRUE(linesOf(rootOfTab(0).table()).last().endsWith(u"A"_s));
}

class FavoritesViewControllerTest : public CompoundListingsViewControllerTest {
  protected:
    std::shared_ptr<FavoritesViewController> openFavorites() {
        auto screen = std::make_shared<FavoritesViewController>(world.environment);
        world.tabs->selectedNavigationController().push(screen);
        return screen;
    }
};

TEST_F(FavoritesViewControllerTest, ListsTheTitlesWithoutRegardToCase) {
    begin();
    world.favorites.titles = {u"news"_s, u"Zoo"_s, u"Film"_s, u"film"_s, u"Film"_s};
    const auto screen = openFavorites();
    EXPECT_EQ(linesOf(screen->table()), QStringList({u"Film"_s, u"film"_s, u"news"_s, u"Zoo"_s}));
    EXPECT_TRUE(screen->table().editing());
    EXPECT_EQ(buttons(*screen), QStringList{u"Remove all"_s});
    screen->sendRowEvent(screen->table().rowAt(3).id, Tapped{});
    EXPECT_EQ(world.top().title(), u"Zoo"_s);
    world.favorites.titles.clear();
    world.broadcast->favoritesUpdated();
    EXPECT_TRUE(buttons(*screen).isEmpty());
    EXPECT_EQ(screen->table().rowCount(), 0);
}

TEST_F(FavoritesViewControllerTest, EveryRemovalCanBeUndone) {
    begin();
    world.favorites.titles = {u"A"_s, u"B"_s};
    const auto screen = openFavorites();
    screen->sendRowEvent(screen->table().rowAt(1).id, Deleted{});
    screen->rowActions(screen->table().rowAt(0).id).at(0).action();
    screen->pressRightBarButton(0);
    ASSERT_EQ(world.app.alerts.size(), 1U);
    EXPECT_EQ(world.app.alerts[0].message, u"Remove all favorite shows?"_s);
    world.app.alerts[0].actions[1].action();
    EXPECT_EQ(world.app.done, QStringList({u"remove B"_s, u"remove A"_s, u"remove A, B"_s}));
    ASSERT_EQ(world.app.notices.size(), 3U);
    world.tabs->selectedNavigationController().pop();
    world.app.done.clear();
    for (const Notice& notice : world.app.notices) {
        notice.action();
    }
    EXPECT_EQ(world.app.done, QStringList({u"restore B"_s, u"restore A"_s, u"restore A, B"_s}))
        << "after the screen has closed";
}

} // namespace
} // namespace guide::test
