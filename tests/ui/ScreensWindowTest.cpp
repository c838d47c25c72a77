// The screens as their users work with them: by clicks, swipes and keys.
#include "GalleryShows.h"
#include "WindowTest.h"
#include "screens/SwipeActions.h"
#include "screens/kit/TableViewController.h"

#include <algorithm>
#include <utility>

namespace guide::test {
namespace {

class ScreensWindowTest : public WindowTest {
  protected:
    ScreensWindowTest() {
        for (char letter = 'A'; letter <= 'Z'; ++letter) {
            world.addChannel(QString(QChar::fromLatin1(letter)) + u" kanál"_s, false);
        }
        fillWithEvening(world);
        world.favorites.titles = {u"Híradó este"_s, u"Večerní zprávy"_s, u"Divoké rieky Slovenska"_s};
        world.app.favoritesChanged = [this](const QStringList& added, const QStringList& removed) {
            QStringList& titles = world.favorites.titles;
            titles.removeIf([&removed](const QString& title) { return removed.contains(title); });
            titles << added;
            world.broadcast->favoritesUpdated();
        };
        openWindow(*world.tabs, {.motion = false});
        proceed();
    }
    void proceed() {
        for (Notice& notice : std::exchange(world.app.notices, {})) {
            world.tabs->presentNotice(std::move(notice));
        }
        world.queues.runAll();
        settle();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        press(key, modifiers);
        proceed();
    }
    void push(const QString& button) {
        const QList<QQuickItem*> found = buttons({button});
        ASSERT_EQ(found.size(), 1) << button.toStdString();
        click(found.constFirst());
        proceed();
    }
    void clickRow(int index, Qt::KeyboardModifiers modifiers = {}) {
        ASSERT_TRUE(row(index)) << index;
        QTest::mouseClick(quickWindow, Qt::LeftButton, modifiers, middle(row(index)));
        proceed();
    }
    void swipe(int index) {
        drag(middle(row(index)), {-250, 0}, true);
        proceed();
    }
    /// By the handle of edit mode.
    void dragRow(int index, int by) {
        drag(middle(row(index)) + QPoint(int(rows()->width() / 2) - 30, 0), {0, by}, true);
        proceed();
    }
    void openTab(Symbol symbol) {
        const auto& tabs = world.tabs->tabs();
        const auto tab = std::ranges::find(tabs, symbol, [](const auto& each) { return each.item.symbol; });
        click(itemsWith("badge").at(tab - tabs.begin()));
        proceed();
    }
    TableViewController& top() const { return dynamic_cast<TableViewController&>(world.top()); }
    std::size_t depth() const { return world.tabs->selectedNavigationController().viewControllers().size(); }
    QStringList lines() const { return linesOf(top().table()); }
    QStringList selected() const {
        const SharedCatalogueSnapshot catalogue = world.catalogue.snapshot();
        QStringList titles;
        for (const ObjectId& channel : world.channels->selected()) {
            titles << catalogue->find(channel)->title;
        }
        return titles;
    }

    ScreenWorld world;
};

TEST_F(ScreensWindowTest, ChannelsAreChosenSingleInRangesAndBySearch) {
    openTab(Symbol::SelectedChannels);
    push(u"Add channels"_s);
    clickRow(0);
    ASSERT_EQ(depth(), 3U);
    const QStringList before = selected();
    const auto added = [&] {
        QStringList titles = selected();
        titles.removeIf([&before](const QString& title) { return before.contains(title); });
        return titles;
    };
    clickRow(2);
    const QString first = channelAt(top().table(), 2).title;
    EXPECT_EQ(added(), QStringList{first});
    clickRow(4, Qt::ShiftModifier);
    EXPECT_EQ(added().size(), 3);
    clickRow(2);
    EXPECT_FALSE(added().contains(first));
    EXPECT_EQ(added().size(), 2);
    focus(2);
    key(Qt::Key_Space);
    EXPECT_EQ(added().size(), 3);

    // The index strip, by a tap and by a slide.
    const auto letterAtTop = [this] {
        return top().table().sectionAt(rowAtTop()->property("index").toInt()).header;
    };
    const auto mark = [this](const QString& letter) {
        QList<QQuickItem*> marks = itemsWith("lineCount");
        marks.removeIf([&letter](const QQuickItem* item) {
            return item->property("text") != letter || item->width() != 28;
        });
        return marks.value(0);
    };
    ASSERT_TRUE(mark(u"M"_s));
    QTest::mouseClick(quickWindow, Qt::LeftButton, {}, middle(mark(u"M"_s)));
    settle();
    EXPECT_EQ(letterAtTop(), u"M"_s);
    drag(middle(mark(u"M"_s)), middle(mark(u"D"_s)) - middle(mark(u"M"_s)), true);
    EXPECT_EQ(letterAtTop(), u"D"_s);

    key(Qt::Key_F, Qt::ControlModifier);
    for (const char letter : {'z', ' ', 'k'}) {
        QTest::keyClick(quickWindow, letter);
    }
    proceed();
    EXPECT_EQ(lines(), QStringList({u"# Z"_s, u"Z kanál"_s}));
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(added().last(), u"Z kanál"_s);
    key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(quickWindow, 'k');
    proceed();
    key(Qt::Key_Down);
    key(Qt::Key_A, Qt::ControlModifier);
    ASSERT_GT(top().table().rowCount(), 20);
    for (int row = 0; row < top().table().rowCount(); ++row) {
        EXPECT_TRUE(channelAt(top().table(), row).checked) << row;
    }
}

TEST_F(ScreensWindowTest, SelectedChannelsAreReorderedRemovedAndRestored) {
    openTab(Symbol::SelectedChannels);
    const QStringList all = selected();
    const auto moved = [](QStringList titles, int from, int to) {
        titles.move(from, to);
        return titles;
    };
    push(u"Edit"_s);
    dragRow(0, int(row(0)->height() + row(1)->height() * 0.8));
    EXPECT_EQ(selected(), moved(all, 0, 1));
    focus(1);
    key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(selected(), all);
    EXPECT_EQ(rows()->property("currentIndex").toInt(), 0) << "the keyboard stays with the row";
    key(Qt::Key_Down, Qt::AltModifier);
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(selected(), moved(all, 0, 2));
    push(u"Done"_s);
    swipe(2);
    push(u"Move to top"_s);
    EXPECT_EQ(selected(), all);

    swipe(1);
    push(u"Remove"_s);
    EXPECT_EQ(selected().size(), all.size() - 1);
    focus(3);
    key(Qt::Key_Delete);
    EXPECT_EQ(selected().size(), all.size() - 2);
    push(u"Undo"_s);
    EXPECT_EQ(selected(), all);
    EXPECT_TRUE(buttons({u"Undo"_s}).isEmpty());

    push(u"Edit"_s);
    push(u"Unselect all"_s);
    push(u"Unselect"_s);
    EXPECT_EQ(selected(), QStringList());
    // Both in the bar and in place of the rows.
    ASSERT_EQ(buttons({u"Add channels"_s}).size(), 2);
    click(buttons({u"Add channels"_s}).constLast());
    clickRow(0);
    clickRow(0);
    EXPECT_EQ(selected().size(), 1);
    openTab(Symbol::Currently);
    EXPECT_EQ(world.tabs->selectedIndex(), 0) << "the tabs can be used again";
}

TEST_F(ScreensWindowTest, AShowInAListIsOpenedSwipedAndAsked) {
    world.app.swipeActions = [this](const TVEntry& entry) {
        return swipeActions({world.clock, world.favorites, world.alarms, world.app, world.app,
                             [this](Alert alert) { world.tabs->presentAlert(std::move(alert)); }},
                            std::make_shared<const TVEntry>(entry));
    };
    openTab(Symbol::Schedule);
    ASSERT_EQ(top().table().rowCount(), 3);
    const QString title = showAt(top().table(), 1).title;
    clickRow(1);
    EXPECT_EQ(depth(), 2U);
    key(Qt::Key_Escape);
    EXPECT_EQ(depth(), 1U);
    swipe(1);
    push(u"✖️"_s);
    push(u"Remove favorite"_s);
    EXPECT_FALSE(world.favorites.titles.contains(title));
    EXPECT_EQ(top().table().rowCount(), 2);

    openTab(Symbol::Currently);
    focus(1);
    key(Qt::Key_Menu);
    const QString other = showAt(top().table(), 1).title;
    key(Qt::Key_End);
    key(Qt::Key_Return);
    EXPECT_TRUE(world.favorites.titles.contains(other)) << world.favorites.titles.join(u'|').toStdString();
}

TEST_F(ScreensWindowTest, FavouritesAreRemovedAndRestored) {
    openTab(Symbol::Schedule);
    push(u"Edit"_s);
    const QStringList all = lines();
    ASSERT_EQ(all.size(), 3);
    swipe(0);
    push(u"Remove"_s);
    EXPECT_EQ(lines(), all.sliced(1));
    push(u"Undo"_s);
    EXPECT_EQ(lines(), all);
    push(u"Delete "_s + all[2]);
    EXPECT_EQ(lines(), all.first(2));
    push(u"Undo"_s);

    // With keys alone: the button of the notice is reached with Tab.
    focus(1);
    key(Qt::Key_Delete);
    ASSERT_EQ(lines().size(), 2);
    const auto onUndo = [this] {
        const QQuickItem* item = quickWindow->activeFocusItem();
        return item && item->property("text") == u"Undo"_s;
    };
    for (int step = 0; step < 20 && !onUndo(); ++step) {
        key(Qt::Key_Tab);
    }
    ASSERT_TRUE(onUndo());
    key(Qt::Key_Return);
    EXPECT_EQ(lines(), all);
    ASSERT_TRUE(quickWindow->activeFocusItem());
    EXPECT_TRUE(quickWindow->activeFocusItem()->isVisible()) << "the keyboard is not lost with the notice";
}

TEST_F(ScreensWindowTest, TheKeyboardGoesFromATabToAShowAndBack) {
    // To the tabs, from there into the screen.
    const auto onTab = [this] {
        const QQuickItem* item = quickWindow->activeFocusItem();
        return item && item->property("text") == u"Categories"_s;
    };
    for (int step = 0; step < 20 && !onTab(); ++step) {
        key(Qt::Key_Tab);
    }
    ASSERT_TRUE(onTab());
    key(Qt::Key_Space);
    EXPECT_EQ(world.tabs->selectedIndex(), 1);
    for (int step = 0; step < 20 && !rows()->hasActiveFocus(); ++step) {
        key(Qt::Key_Tab, Qt::ShiftModifier);
    }
    ASSERT_TRUE(rows()->hasActiveFocus());
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    ASSERT_EQ(depth(), 2U);
    ASSERT_GT(top().table().rowCount(), 3);
    for (int step = 0; step < 3; ++step) {
        key(Qt::Key_Down);
    }
    const int place = rows()->property("currentIndex").toInt();
    EXPECT_GT(place, 0);
    key(Qt::Key_Return);
    ASSERT_EQ(depth(), 3U);
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    ASSERT_TRUE(buttons({u"Favourite"_s}).value(0)->hasActiveFocus());
    const auto favourites = world.favorites.titles;
    key(Qt::Key_Space);
    EXPECT_NE(world.favorites.titles, favourites);
    key(Qt::Key_Escape);
    EXPECT_TRUE(rows()->hasActiveFocus());
    key(Qt::Key_Escape);
    EXPECT_EQ(depth(), 2U);
    EXPECT_TRUE(rows()->hasActiveFocus());
    EXPECT_EQ(rows()->property("currentIndex").toInt(), place) << "where it was";
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(depth(), 1U);
}

} // namespace
} // namespace guide::test
