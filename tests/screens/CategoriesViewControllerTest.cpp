#include "screens/categories/CategoriesViewController.h"

#include "ScreenWorld.h"
#include "screens/kit/NavigationController.h"

namespace guide::test {
namespace {

class CategoriesViewControllerTest : public testing::Test {
  protected:
    /// A guide with one channel whose evening has a few shows, on the tab of the categories.
    void open(UserInterfaceIdiom idiom) {
        world.emplace(idiom);
        world->device.zone = QTimeZone("Europe/Prague");
        const ObjectId channel = world->addChannel(u"Jedna"_s);
        world->start();
        world->load(channel, {{-30, 30, u"Film"_s, {}, {}, 0x101},
                              {30, 60, u"News"_s, {}, {}, 0x10},
                              {60, 90, u"Drama"_s, {}, {}, 0x1001},
                              {60 * 24, 60 * 25, u"Tomorrow"_s, {}, {}, 0x101}});
        world->tabs->setSelectedIndex(currentlyTabIndex(idiom) + 1);
        world->show();
    }
    CategoriesViewController& top() { return dynamic_cast<CategoriesViewController&>(world->top()); }
    void tap(int row) {
        top().sendRowEvent(top().table().rowAt(row).id, Tapped{});
        world->queues.runAll();
    }

    std::optional<ScreenWorld> world;
};

TEST_F(CategoriesViewControllerTest, ListsTheCategoriesAndCountsTheShowsOfToday) {
    open(UserInterfaceIdiom::Phone);
    EXPECT_EQ(top().title(), u"Categories"_s);
    const QStringList phone{u"All Shows: 3 show(s) today"_s,
                            u"Most Watched: No list yet"_s,
                            u"Evening Shows: 3 show(s) today"_s,
                            u"Feature Films: 2 show(s) today"_s,
                            u"TV Series: None today"_s,
                            u"Documentaries: None today"_s,
                            u"For Children: None today"_s,
                            u"News: 1 show(s) today"_s,
                            u"Entertainment: None today"_s,
                            u"Music: None today"_s,
                            u"Sports: None today"_s};
    EXPECT_EQ(linesOf(top().table()), phone);
    EXPECT_EQ(top().table().sections()[0].layout, SectionLayout::Tiles);
    EXPECT_FALSE(top().table().sections()[0].footer.isEmpty()) << "says why there is no list";
    world->popular.shared = false;
    top().reloadData();
    world->queues.runAll();
    EXPECT_EQ(linesOf(top().table())[1], u"Most Watched: Off"_s);
    EXPECT_TRUE(top().table().sections()[0].footer.contains(u"switch it on"_s));

    open(UserInterfaceIdiom::Tablet);
    EXPECT_EQ(linesOf(top().table()), phone.mid(1));
}

TEST_F(CategoriesViewControllerTest, OpensTheGenresOfFilms) {
    open(UserInterfaceIdiom::Phone);
    tap(1);
    EXPECT_FALSE(top().table().selectedRow()) << "the row is not enabled";
    EXPECT_FALSE(CategoriesViewController::isEnabled(top().table().rowAt(1)));
    tap(3);
    ASSERT_EQ(world->tabs->selectedNavigationController().viewControllers().size(), 2U);
    EXPECT_EQ(top().title(), u"Feature Films"_s);
    EXPECT_EQ(linesOf(top().table()),
              QStringList({u"All: 2 show(s) today"_s, u"Comedies: 1 show(s) today"_s,
                           u"Adventure: None today"_s, u"Crime: None today"_s, u"Westerns: None today"_s,
                           u"Dramas: 1 show(s) today"_s, u"Thrillers: None today"_s, u"SF: None today"_s,
                           u"Fantasy: None today"_s, u"Horrors: None today"_s}));
    tap(5);
    EXPECT_EQ(world->tabs->selectedNavigationController().viewControllers().size(), 3U);
    EXPECT_EQ(world->top().title(), u"Dramas"_s);
}

TEST_F(CategoriesViewControllerTest, CountsAgainForNewListsAndWhenItAppears) {
    open(UserInterfaceIdiom::Phone);
    const auto all = [this] { return linesOf(top().table()).constFirst(); };
    world->load(ScreenWorld::channelId(1), {{-30, 30, u"Film"_s, {}, {}, 0x101}});
    EXPECT_EQ(all(), u"All Shows: 1 show(s) today"_s);
    world->tabs->setSelectedIndex(0);
    world->wait(31min);
    world->tabs->setSelectedIndex(1);
    world->queues.runAll();
    EXPECT_EQ(all(), u"All Shows: None today"_s);
}

} // namespace
} // namespace guide::test
