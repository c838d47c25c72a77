#include "ScreenWorld.h"
#include "screens/channels/AllChannelsViewController.h"
#include "screens/channels/ChannelListViewController.h"
#include "screens/channels/EditChannelListViewController.h"

namespace guide::test {
namespace {

class ChannelManagementTest : public testing::Test {
  protected:
    /// Titles, the first `selected` of which are selected.
    void begin(const QStringList& titles, int selected,
               UserInterfaceIdiom idiom = UserInterfaceIdiom::Phone) {
        world = std::make_unique<ScreenWorld>(idiom);
        for (int number = 0; number < titles.size(); ++number) {
            world->addChannel(titles[number], number < selected);
        }
        world->start();
        tabs().setSelectedIndex(static_cast<int>(tabs().tabs().size()) - 1);
        world->show();
        world->app.done.clear();
    }
    TabBarController& tabs() { return *world->tabs; }
    NavigationController& stack() { return *tabs().tabs().back().navigationController; }
    EditChannelListViewController& edit() {
        return dynamic_cast<EditChannelListViewController&>(*stack().viewControllers().front());
    }
    /// The topmost screen, which may be in a popover.
    AllChannelsViewController& all() {
        NavigationController& shown = stack().presentedStack() ? *stack().presentedStack() : stack();
        return dynamic_cast<AllChannelsViewController&>(*shown.topViewController());
    }
    /// Opens the catalogue's group.
    AllChannelsViewController& openGroup(int group = 0) {
        edit().showChannelListWithChannelData();
        send(all(), group, Tapped{});
        return all();
    }
    static void send(TableViewController& screen, int row, const RowEvent& event) {
        screen.sendRowEvent(screen.table().rowAt(row).id, event);
    }
    void press(const QString& button, bool left) {
        const auto& buttons = left ? edit().leftBarButtons() : edit().rightBarButtons();
        for (std::size_t index = 0; index < buttons.size(); ++index) {
            if (buttons[index].title == button) {
                return left ? edit().pressLeftBarButton(index) : edit().pressRightBarButton(index);
            }
        }
        ADD_FAILURE() << "no button " << button.toStdString();
    }
    QList<int> selected() const {
        QList<int> numbers;
        for (const ObjectId& channel : world->channels->selected()) {
            numbers << channel.bytes().back();
        }
        return numbers;
    }
    static QStringList checkedIn(const TableViewController& screen) {
        QStringList titles;
        for (int row = 0; row < screen.table().rowCount(); ++row) {
            if (const ChannelRow& channel = channelAt(screen.table(), row); channel.checked) {
                titles << channel.title;
            }
        }
        return titles;
    }
    bool tabsEnabled() {
        return std::ranges::all_of(tabs().tabs(), [](const auto& tab) { return tab.item.enabled; });
    }
    QString notice() { return tabs().presentedNotice() ? tabs().presentedNotice()->text : QString(); }
    /// What the first screen does when it appears, and whether the alarms were to be synchronised.
    QStringList whenCurrentlyAppears() {
        world->app.done.clear();
        tabs().setSelectedIndex(currentlyTabIndex(world->device.idiom));
        world->queues.runAll();
        tabs().setSelectedIndex(static_cast<int>(tabs().tabs().size()) - 1);
        return world->app.done;
    }

    std::unique_ptr<ScreenWorld> world;
};

TEST_F(ChannelManagementTest, SelectedChannelsAreMovedWithoutTouchingTheAlarms) {
    begin({u"Jedna"_s, u"Dva"_s, u"Tri"_s}, 3);
    EXPECT_EQ(edit().title(), u"Selected Channels"_s);
    EXPECT_EQ(linesOf(edit().table()), QStringList({u"Jedna"_s, u"Dva"_s, u"Tri"_s}));
    send(edit(), 0, MovedBefore{});
    EXPECT_EQ(selected(), QList<int>({2, 3, 1}));
    send(edit(), 2, MovedBefore{edit().table().rowAt(1).id});
    EXPECT_EQ(selected(), QList<int>({2, 1, 3}));
    const auto actions = edit().rowActions(edit().table().rowAt(2).id);
    ASSERT_EQ(actions.size(), 2U);
    actions[1].action();
    EXPECT_EQ(selected(), QList<int>({3, 2, 1}));
    EXPECT_EQ(linesOf(edit().table()), QStringList({u"Tri"_s, u"Dva"_s, u"Jedna"_s}));
    EXPECT_EQ(edit().rowActions(edit().table().rowAt(0).id).size(), 1U) << "the first one is at the top";
    world->app.syncAlarms();
    EXPECT_EQ(world->app.done, QStringList{u"sync"_s}) << "no check, and the alarms are as they were";
    EXPECT_EQ(whenCurrentlyAppears(), QStringList({u"alarms"_s, u"check"_s}));
    EXPECT_EQ(whenCurrentlyAppears(), QStringList());
}

TEST_F(ChannelManagementTest, ARemovalIsUndoneWithOrderAndListsAndWithoutALoad) {
    begin({u"Jedna"_s, u"Dva"_s, u"Tri"_s}, 3);
    const auto shows = [this](int number) {
        qsizetype count = -1;
        world->listings->cachedListForChannel(
            ScreenWorld::channelId(number),
            {[&count](const ShowSpan& span) { count = qsizetype(span.size()); }});
        world->queues.runAll();
        return count;
    };
    for (int number : {1, 2, 3}) {
        world->load(ScreenWorld::channelId(number), {{-30, 30, u"A"_s}, {30, 60, u"B"_s}});
    }
    world->wait(2h);
    for (int number : {1, 2, 3}) {
        world->load(ScreenWorld::channelId(number), {{-30, 150, u"A"_s}, {150, 160, u"B"_s}});
    }
    const auto loaded = world->channels->channelWithChannelId(ScreenWorld::channelId(2))->timeLoaded();

    send(edit(), 1, Deleted{});
    EXPECT_EQ(selected(), QList<int>({1, 3}));
    EXPECT_EQ(linesOf(edit().table()), QStringList({u"Jedna"_s, u"Tri"_s}));
    EXPECT_EQ(notice(), u"Dva removed"_s);
    world->app.syncAlarms();
    EXPECT_EQ(world->app.done, QStringList{u"alarms"_s});
    EXPECT_EQ(shows(2), 0);
    world->wait(5s);
    send(edit(), 0, Deleted{});
    EXPECT_EQ(notice(), u"2 channel(s) removed"_s) << "one notice for both";
    world->wait(7s);
    tabs().pressNoticeAction();
    world->queues.runAll();
    EXPECT_EQ(selected(), QList<int>({1, 2, 3}));
    EXPECT_EQ(linesOf(edit().table()), QStringList({u"Jedna"_s, u"Dva"_s, u"Tri"_s}));
    EXPECT_EQ(shows(1), 2);
    EXPECT_EQ(shows(2), 2);
    EXPECT_EQ(world->channels->channelWithChannelId(ScreenWorld::channelId(2))->timeLoaded(), loaded);

    send(edit(), 1, Deleted{});
    world->wait(8s);
    EXPECT_EQ(notice(), QString());
    tabs().pressNoticeAction();
    EXPECT_EQ(selected(), QList<int>({1, 3})) << "the time is up";
}

TEST_F(ChannelManagementTest, UnselectingAllAsksFirstAndDisablesTheTabs) {
    begin({u"Jedna"_s, u"Dva"_s}, 2);
    press(u"Edit"_s, true);
    EXPECT_TRUE(edit().table().editing());
    press(u"Unselect all"_s, true);
    const Alert* alert = tabs().presentedAlert();
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->title, u"Warning"_s);
    EXPECT_EQ(alert->message, u"Unselect all selected channels?"_s);
    EXPECT_EQ(alert->actions[0].title, u"Cancel"_s);
    tabs().answerAlert(0);
    EXPECT_EQ(selected(), QList<int>({1, 2}));
    EXPECT_TRUE(world->app.done.isEmpty());

    press(u"Unselect all"_s, true);
    tabs().answerAlert(1);
    EXPECT_EQ(selected(), QList<int>());
    EXPECT_FALSE(tabsEnabled());
    EXPECT_FALSE(edit().table().editing());
    EXPECT_TRUE(edit().leftBarButtons().empty());
    tabs().pressNoticeAction();
    EXPECT_EQ(selected(), QList<int>({1, 2}));
    EXPECT_TRUE(tabsEnabled());
    EXPECT_EQ(linesOf(edit().table()), QStringList({u"Jedna"_s, u"Dva"_s}));
}

TEST_F(ChannelManagementTest, TheFirstChannelEnablesTheTabsAndTheLastOneDisablesThem) {
    begin({u"Jedna"_s, u"Dva"_s}, 0);
    tabs().disableTabs();
    ASSERT_TRUE(edit().table().emptyNote());
    edit().pressEmptyNoteButton();
    send(all(), 0, Tapped{});
    send(all(), 0, Tapped{});
    EXPECT_EQ(selected(), QList<int>{2}) << "Dva comes first in the alphabet";
    EXPECT_TRUE(tabsEnabled());
    EXPECT_EQ(world->app.done, QStringList{u"check"_s});
    send(all(), 0, Tapped{});
    EXPECT_EQ(selected(), QList<int>());
    EXPECT_FALSE(tabsEnabled());
    EXPECT_EQ(tabs().selectedIndex(), static_cast<int>(tabs().tabs().size()) - 1);
}

TEST_F(ChannelManagementTest, TheCatalogueSearchesAllChannelsWhicheverGroupIsOpen) {
    begin({u"Česká 1"_s, u"arte"_s, u"Alfa"_s, u"Cinema"_s, u"BSR News"_s}, 0);
    const auto with = [](int number, const QString& title, const QString& language) {
        return CatalogueChannel{ScreenWorld::channelId(number), title, language, u"x"_s, title, {}, {}};
    };
    const std::vector<CatalogueChannel> channels{with(1, u"Česká 1"_s, u"cs"_s), with(2, u"arte"_s, u"fr"_s),
                                                 with(3, u"Alfa"_s, u"fr"_s), with(4, u"Cinema"_s, u"sr"_s),
                                                 with(5, u"BSR News"_s, u"en"_s)};
    world->catalogue.replace(CatalogueSnapshot(channels));
    world->device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedStates);
    edit().showChannelListWithChannelData();
    EXPECT_EQ(linesOf(all().table()),
              QStringList({u"All channels"_s, u"English"_s, u"Czech"_s, u"French"_s, u"Serbian"_s}))
        << "the language of the device comes first";
    send(all(), 3, Tapped{});
    EXPECT_EQ(all().title(), u"French"_s);
    EXPECT_EQ(linesOf(all().table()), QStringList({u"# A"_s, u"Alfa"_s, u"arte"_s}))
        << "a and A have one index title";
    EXPECT_EQ(all().rightBarButtons().size(), 1U);

    const struct {
        QString text;
        QStringList lines;
    } cases[] = {
        {u"sr"_s, {u"# B"_s, u"BSR News"_s, u"# C"_s, u"Cinema"_s}},
        {u" CESKA"_s, {u"# Č"_s, u"Česká 1"_s}},
        {u"c"_s, {u"# C"_s, u"Cinema"_s, u"# Č"_s, u"Česká 1"_s}},
        {u"\n"_s,
         {u"# A"_s, u"Alfa"_s, u"arte"_s, u"# B"_s, u"BSR News"_s, u"# C"_s, u"Cinema"_s, u"# Č"_s,
          u"Česká 1"_s}},
        {u"nothing"_s, {}},
        {{},
         {u"# A"_s, u"Alfa"_s, u"arte"_s, u"# B"_s, u"BSR News"_s, u"# C"_s, u"Cinema"_s, u"# Č"_s,
          u"Česká 1"_s}},
    };
    for (const auto& each : cases) {
        all().editSearchText(each.text);
        EXPECT_EQ(linesOf(all().table()), each.lines) << each.text.toStdString();
        EXPECT_EQ(all().title(), u"All channels"_s);
    }
    stack().pop();
    all().editSearchText(u"cin"_s);
    EXPECT_EQ(linesOf(all().table()), QStringList({u"# C"_s, u"Cinema"_s}))
        << "the list of groups searches too";
    all().cancelSearch();
    EXPECT_EQ(linesOf(all().table()).size(), 5);
}

TEST_F(ChannelManagementTest, ATapChoosesAChannelAndShiftARange) {
    begin({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s}, 2);
    AllChannelsViewController& screen = openGroup();
    EXPECT_EQ(checkedIn(screen), QStringList({u"A"_s, u"B"_s}));
    send(screen, 2, Tapped{});
    EXPECT_FALSE(screen.table().selectedRow());
    send(screen, 4, Tapped{true});
    EXPECT_EQ(selected(), QList<int>({1, 2, 3, 4, 5}));
    EXPECT_EQ(checkedIn(screen).size(), 5);
    EXPECT_EQ(screen.rightBarButtons()[0].title, u"Unselect all"_s);
    send(screen, 1, Tapped{});
    send(screen, 3, Tapped{true});
    EXPECT_EQ(selected(), QList<int>({1, 5}));
    EXPECT_EQ(notice(), u"3 channel(s) removed"_s);
    send(screen, 2, Tapped{});
    EXPECT_EQ(selected(), QList<int>({1, 3, 5})) << "back in its place";
    EXPECT_EQ(notice(), u"2 channel(s) removed"_s);
    tabs().pressNoticeAction();
    EXPECT_EQ(selected(), QList<int>({1, 2, 3, 4, 5}));
    EXPECT_EQ(checkedIn(screen).size(), 5);
    screen.pressRightBarButton(0);
    EXPECT_EQ(selected(), QList<int>());
    EXPECT_TRUE(screen.selectAll());
    EXPECT_EQ(selected().size(), 5);
    EXPECT_EQ(notice(), QString()) << "there is nothing left to undo";
}

TEST_F(ChannelManagementTest, ManyChannelsAreSelectedAfterAQuestion) {
    QStringList titles;
    for (int number = 0; number < 60; ++number) {
        titles << u"Channel %1"_s.arg(number);
    }
    begin(titles, 0);
    AllChannelsViewController& screen = openGroup(1);
    EXPECT_EQ(channelAt(screen.table(), 10).title, u"Channel 10"_s) << "numbers are in order";
    EXPECT_EQ(screen.table().sectionAt(0).indexTitle, u"C"_s);
    EXPECT_TRUE(screen.selectAll());
    EXPECT_TRUE(selected().isEmpty());
    ASSERT_TRUE(tabs().presentedAlert());
    EXPECT_EQ(tabs().presentedAlert()->message, u"Select 60 channel(s)?"_s);
    tabs().answerAlert(1);
    EXPECT_EQ(selected().size(), 60);
    EXPECT_EQ(checkedIn(screen).size(), 60);
}

TEST_F(ChannelManagementTest, ScreensFollowTheSelectionAndTheCatalogueAlsoInAPopover) {
    begin({u"A"_s, u"B"_s}, 1, UserInterfaceIdiom::Tablet);
    openGroup();
    ASSERT_TRUE(stack().presentedStack()) << "a tablet opens the group in a popover";
    AllChannelsViewController& groups =
        dynamic_cast<AllChannelsViewController&>(*stack().viewControllers().back());
    const auto count = [&] { return std::get<TextRow>(groups.table().rowAt(0).content).detail; };
    EXPECT_EQ(count(), u"1 of 2"_s);
    send(all(), 1, Tapped{});
    EXPECT_EQ(count(), u"2 of 2"_s);
    send(edit(), 0, Deleted{});
    EXPECT_EQ(checkedIn(all()), QStringList{u"B"_s});

    world->catalogue.replace(
        CatalogueSnapshot({{ScreenWorld::channelId(2), u"New B"_s, u"cs"_s, u"x"_s, u"x"_s, {}, {}},
                           {ScreenWorld::channelId(3), u"C"_s, u"cs"_s, u"x"_s, u"x"_s, {}, {}}}));
    world->broadcast->reloadData();
    EXPECT_EQ(linesOf(all().table()), QStringList({u"# C"_s, u"C"_s, u"# N"_s, u"New B"_s}));
    EXPECT_EQ(count(), u"1 of 2"_s);
    EXPECT_EQ(linesOf(edit().table()), QStringList{u"New B"_s});
}

TEST_F(ChannelManagementTest, ARowTellsTheSourceAndTheAgeOfTheSchedule) {
    begin({u"A"_s, u"B"_s, u"C"_s}, 3);
    world->sources = {{ScreenWorld::channelId(1), u"feeds.example"_s}};
    const auto subtitle = [this](int row) { return channelAt(edit().table(), row).subtitle; };
    EXPECT_EQ(subtitle(0), u"No schedule yet"_s);
    EXPECT_EQ(channelAt(edit().table(), 0).accessory, Accessory::Spinner);
    world->load(ScreenWorld::channelId(1), {{0, 6000, u"A"_s}});
    world->fail(ScreenWorld::channelId(2), LoadFailure{LoadFailureReason::NoAnswer, u"slow.example"_s, 0});
    EXPECT_EQ(subtitle(0), u"feeds.example · updated just now"_s);
    EXPECT_EQ(channelAt(edit().table(), 0).accessory, Accessory::None);
    EXPECT_EQ(subtitle(1), u"No answer from slow.example"_s);
    const std::pair<std::chrono::minutes, QString> ages[] = {{4min, u"updated 5 min ago"_s},
                                                             {179min, u"updated 3 hour(s) ago"_s},
                                                             {72h, u"updated 3 day(s) ago"_s}};
    for (const auto& [age, text] : ages) {
        world->channels->channelWithChannelId(ScreenWorld::channelId(1))
            ->setTimeLoaded(world->clock.now() - age);
        world->wait(1min);
        EXPECT_EQ(subtitle(0), u"feeds.example · "_s + text);
    }
}

TEST_F(ChannelManagementTest, TheListButtonOpensTheChannelsWithTheirStreams) {
    world = std::make_unique<ScreenWorld>();
    world->addChannel(u"Jedna"_s, true, u"http://x/1"_s);
    world->addChannel(u"Dva"_s);
    world->start();
    world->show();
    ASSERT_EQ(world->top().rightBarButtons().size(), 1U);
    world->top().pressRightBarButton(0);
    auto& list = dynamic_cast<ChannelListViewController&>(world->top());
    EXPECT_EQ(linesOf(list.table()), QStringList({u"Jedna"_s, u"Dva"_s}));
    send(list, 0, Tapped{});
    send(list, 1, Tapped{});
    EXPECT_EQ(world->app.done, QStringList{u"play http://x/1"_s});
}

} // namespace
} // namespace guide::test
