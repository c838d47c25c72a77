// What a screen reader gets that starts while the window is open.
#include "AccessibleTree.h"
#include "GalleryShows.h"
#include "WindowTest.h"
#include "fakes/FakeMediaPlayers.h"
#include "screens/player/PlayerViewController.h"

namespace guide::test {
namespace {

class ScreenReaderTest : public WindowTest {
  public:
    ~ScreenReaderTest() override { QAccessible::setActive(false); }

  protected:
    ScreenReaderTest() {
        fillWithEvening(world);
        world.app.swipeActions = [this](const TVEntry&) {
            return std::vector<RowAction>{
                {u"⭐"_s, u"Favourite"_s, ColorRole::Favourite, [this] { ++favourites; }}};
        };
        openWindow(*world.tabs, {.motion = false});
        proceed();
        QAccessible::setActive(true);
        settle();
    }
    void proceed() {
        world.queues.runAll();
        settle();
    }
    /// The first visible item with the role and a name that begins so.
    QAccessibleInterface* find(QAccessible::Role role, const QString& name) const {
        QList<QAccessibleInterface*> open{QAccessible::queryAccessibleInterface(quickWindow)};
        while (!open.isEmpty()) {
            QAccessibleInterface* item = open.takeFirst();
            if (item->state().invisible) {
                continue;
            }
            if (item->role() == role && item->text(QAccessible::Name).startsWith(name)) {
                return item;
            }
            for (int child = 0; child < item->childCount(); ++child) {
                open << item->child(child);
            }
        }
        return nullptr;
    }
    bool press(QAccessible::Role role, const QString& name) {
        QAccessibleInterface* item = find(role, name);
        if (!item || !item->actionInterface()) {
            return false;
        }
        item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        proceed();
        return true;
    }
    std::size_t depth() const { return world.tabs->selectedNavigationController().viewControllers().size(); }

    ScreenWorld world;
    int favourites = 0;
};

TEST_F(ScreenReaderTest, ControlsHaveTheirRolesAndCanBePressed) {
    ASSERT_TRUE(press(QAccessible::PageTab, u"Categories"_s));
    EXPECT_EQ(world.tabs->selectedIndex(), 1);
    EXPECT_TRUE(find(QAccessible::PageTab, u"Categories"_s)->state().selected);
    ASSERT_TRUE(press(QAccessible::Button, u"Feature Films"_s));
    EXPECT_EQ(depth(), 2U);
    ASSERT_TRUE(press(QAccessible::Button, u"Back, Categories"_s));
    EXPECT_EQ(depth(), 1U);

    press(QAccessible::PageTab, u"Currently"_s);
    focus(1);
    WindowTest::press(Qt::Key_Menu);
    ASSERT_TRUE(press(QAccessible::MenuItem, u"Favourite"_s));
    EXPECT_EQ(favourites, 1);

    ASSERT_TRUE(press(QAccessible::ListItem, u"19:30–20:35"_s));
    EXPECT_EQ(depth(), 2U);
    EXPECT_TRUE(find(QAccessible::CheckBox, u"Favourite"_s));
    ASSERT_TRUE(press(QAccessible::Button, u"More broadcasts"_s));
    EXPECT_EQ(depth(), 3U);
}

TEST_F(ScreenReaderTest, WhatIsBehindIsNotUsed) {
    world.tabs->presentAlert({u"Alert"_s, u"Text"_s, {{u"OK"_s}}});
    settle();
    press(QAccessible::PageTab, u"Categories"_s);
    press(QAccessible::ListItem, u"19:30–20:35"_s);
    EXPECT_EQ(world.tabs->selectedIndex(), 0);
    EXPECT_EQ(depth(), 1U);
    ASSERT_TRUE(press(QAccessible::Button, u"OK"_s));
    EXPECT_FALSE(world.tabs->presentedAlert());

    FakeMediaPlayers players;
    const auto player = std::make_shared<PlayerViewController>(
        world.environment, players, QUrl(u"http://127.0.0.1/kino"_s), PlayerSettings{},
        PlayerViewController::Events{[](const QString&) {}, [this] { world.tabs->dismissCover(); },
                                     [](const QUrl&) {}, [] {}});
    world.tabs->presentCover(player);
    player->play();
    players.last().report(MediaStatus::Ready);
    settle();
    EXPECT_FALSE(find(QAccessible::PageTab, u"Categories"_s));
    EXPECT_TRUE(find(QAccessible::Button, u"Pause"_s));
    ASSERT_TRUE(press(QAccessible::Button, u"Back"_s));
    EXPECT_TRUE(find(QAccessible::PageTab, u"Categories"_s));
}

} // namespace
} // namespace guide::test
