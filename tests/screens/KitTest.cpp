#include "fakes/ManualQueues.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/kit/TabBarController.h"
#include "screens/kit/TableViewController.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace guide::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct Screen final : TableViewController {
    Screen(const QString& name, QStringList& events)
        : m_name(name)
        , m_events(events) {}
    void viewDidLoad() override { m_events << m_name + u" loads"_s; }
    void viewDidAppear() override { m_events << m_name + u" appears"_s; }
    void viewDidDisappear() override { m_events << m_name + u" disappears"_s; }
    void rowEvent(const RowId& id, const RowEvent& event) override {
        m_events << u"%1 %2"_s.arg(*id.name()).arg(event.index());
    }
    void refreshable() { setHasRefreshControl(true); }
    void didPullToRefresh() override { m_events << m_name + u" pulled"_s; }
    void searchable() { setSearchField(SearchField{u"placeholder"_s}); }
    void searchTextEdited(const QString& text) override { m_events << u"search "_s + text; }

    const QString m_name;
    QStringList& m_events;
};

TEST(TableViewControllerTest, PassesEventsOnlyToRowsThatAcceptThem) {
    struct Case {
        const char* name;
        Row row;
        RowEvent event;
        /// The kind of event that arrives.
        std::optional<RowEvent> arrives = {};
    };
    const auto row = [](RowContent content, bool flag = true) {
        return Row{.id = {u"s"_s, u"r"_s},
                   .content = std::move(content),
                   .selectable = flag,
                   .deletable = flag,
                   .movable = flag};
    };
    const ChoiceRow choice{.choices = {u"x"_s, u"y"_s}};
    const std::vector<Case> cases{
        {"tap", row(TextRow()), Tapped{}, Tapped{}},
        {"tap on a row that is not selectable", row(TextRow(), false), Tapped{}},
        {"the same with a play button", row(ChannelRow{.accessory = Accessory::Play}, false), Tapped{},
         AccessoryTapped{}},
        {"play button", row(ShowRow{.accessory = Accessory::Play}), AccessoryTapped{}, AccessoryTapped{}},
        {"spinner", row(ShowRow{.accessory = Accessory::Spinner}), AccessoryTapped{}},
        {"a kind without accessory", row(ButtonRow()), AccessoryTapped{}},
        {"switch", row(SwitchRow()), Toggled{true}, Toggled{}},
        {"disabled switch", row(SwitchRow{.enabled = false}), Toggled{true}},
        {"the event of another kind", row(SwitchRow()), Chosen{0}},
        {"choice", row(choice), Chosen{1}, Chosen{}},
        {"choice that does not exist", row(choice), Chosen{2}},
        {"time", row(TimeRow()), TimePicked{QTime(1, 2)}, TimePicked{}},
        {"invalid time", row(TimeRow()), TimePicked{}},
        {"input", row(InputRow()), TextEdited{u"x"_s}, TextEdited{}},
        {"delete", row(TextRow()), Deleted{}, Deleted{}},
        {"a row that is not deletable", row(TextRow(), false), Deleted{}},
        {"move to the end", row(TextRow()), MovedBefore{}, MovedBefore{}},
        {"move before a row", row(TextRow()), MovedBefore{RowId(u"s"_s, u"next"_s)}, MovedBefore{}},
        {"move into another section", row(TextRow()), MovedBefore{RowId(u"t"_s, u"other"_s)}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        QStringList events;
        Screen screen(u"screen"_s, events);
        screen.table().setSections({{.id = u"s"_s, .rows = {each.row, {.id = {u"s"_s, u"next"_s}}}},
                                    {.id = u"t"_s, .rows = {{.id = {u"t"_s, u"other"_s}}}}});
        screen.sendRowEvent(RowId(u"s"_s, u"gone"_s), each.event);
        screen.sendRowEvent(each.row.id, each.event);
        EXPECT_EQ(events, each.arrives ? QStringList(u"r %1"_s.arg(each.arrives->index())) : QStringList());
        EXPECT_EQ(screen.table().selectedRow().has_value(),
                  each.arrives && std::holds_alternative<Tapped>(*each.arrives));
    }
}

TEST(ViewControllerTest, PullsAndSearchText) {
    QStringList events;
    Screen screen(u"s"_s, events);
    screen.pressRightBarButton(7);
    screen.editSearchText(u"x"_s);
    screen.pullToRefresh();
    EXPECT_TRUE(events.isEmpty()) << "without refresh control and search field";
    screen.refreshable();
    screen.pullToRefresh();
    screen.pullToRefresh();
    EXPECT_EQ(std::exchange(events, {}), QStringList(u"s pulled"_s)) << "not again while refreshing";
    screen.searchable();
    screen.editSearchText(u"x"_s);
    screen.editSearchText(u"x"_s);
    screen.cancelSearch();
    screen.cancelSearch();
    EXPECT_EQ(events, QStringList({u"search x"_s, u"search "_s}));
}

TEST(NavigationControllerTest, OnlyTheTopOfAVisibleStackAppears) {
    QStringList events;
    NavigationController stack(std::make_shared<Screen>(u"root"_s, events), UserInterfaceIdiom::Phone);
    stack.push(std::make_shared<Screen>(u"one"_s, events));
    EXPECT_TRUE(events.isEmpty());
    stack.setVisible(true);
    EXPECT_EQ(std::exchange(events, {}), QStringList({u"one loads"_s, u"one appears"_s}));
    const auto two = std::make_shared<Screen>(u"two"_s, events);
    stack.push(two);
    EXPECT_EQ(std::exchange(events, {}),
              QStringList({u"two loads"_s, u"two appears"_s, u"one disappears"_s}));
    stack.popToRoot();
    EXPECT_EQ(std::exchange(events, {}),
              QStringList({u"root loads"_s, u"root appears"_s, u"two disappears"_s}));
    EXPECT_EQ(two->navigationController(), nullptr);
    stack.pop();
    EXPECT_EQ(stack.viewControllers().size(), 1U);
    EXPECT_TRUE(events.isEmpty());
}

TEST(NavigationControllerTest, ScreensSideBySideAreBothVisible) {
    QStringList events;
    const auto screen = [&events](const QString& name) { return std::make_shared<Screen>(name, events); };
    const auto root = screen(u"root"_s);
    const auto one = screen(u"one"_s);
    NavigationController stack(root, UserInterfaceIdiom::Tablet);
    stack.setSideBySide(true);
    stack.setVisible(true);
    root->table().setSections({{.id = u"s"_s, .rows = {{.id = {u"s"_s, u"row"_s}}}}});
    root->table().selectRow({u"s"_s, u"row"_s});
    const struct {
        const char* name;
        std::function<void()> change;
        QString events;
    } cases[] = {
        {"the lower one stays", [&] { stack.push(one); }, u"one loads, one appears"_s},
        {"a third one hides the lowest", [&] { stack.push(screen(u"two"_s)); },
         u"two loads, two appears, root disappears"_s},
        {"another one from the left", [&] { stack.pushFrom(*one, screen(u"three"_s)); },
         u"three loads, three appears, two disappears"_s},
        {"a narrower window", [&] { stack.setSideBySide(false); }, u"one disappears"_s},
        {"a wider window", [&] { stack.setSideBySide(true); }, u"one appears"_s},
        {"another tab", [&] { stack.setVisible(false); }, u"one disappears, three disappears"_s},
        {"and back", [&] { stack.setVisible(true); }, u"one appears, three appears"_s},
        {"back by one", [&] { stack.pop(); }, u"root appears, three disappears"_s},
        {"to the root", [&] { stack.pop(); }, u"one disappears"_s},
    };
    for (const auto& each : cases) {
        EXPECT_TRUE(root->table().selectedRow()) << each.name;
        events.clear();
        each.change();
        EXPECT_EQ(events.join(u", "_s), each.events) << each.name;
    }
    EXPECT_FALSE(root->table().selectedRow()) << "what it opened is closed";
}

TEST(NavigationControllerTest, PopoversAndSheetsHaveTheirOwnStacks) {
    QStringList events;
    const auto screen = [&events](const QString& name) { return std::make_shared<Screen>(name, events); };
    NavigationController phone(screen(u"root"_s), UserInterfaceIdiom::Phone);
    phone.show(screen(u"popover"_s), Presentation::Popover);
    EXPECT_EQ(phone.viewControllers().size(), 2U) << "a phone pushes popovers";

    NavigationController tablet(screen(u"root"_s), UserInterfaceIdiom::Tablet);
    tablet.setVisible(true);
    events.clear();
    tablet.show(screen(u"one"_s), Presentation::Sheet);
    tablet.show(screen(u"two"_s), Presentation::Popover, BarButtonAnchor{});
    EXPECT_EQ(std::exchange(events, {}), QStringList({u"one loads"_s, u"one appears"_s, u"one disappears"_s,
                                                      u"two loads"_s, u"two appears"_s}));
    NavigationController* inner = tablet.presentedStack();
    ASSERT_NE(inner, nullptr);
    const auto submenu = screen(u"submenu"_s);
    inner->push(submenu);
    tablet.setVisible(false);
    tablet.setVisible(true);
    EXPECT_TRUE(events.endsWith(u"submenu appears"_s));
    submenu->navigationController()->dismiss();
    EXPECT_EQ(tablet.presentedStack(), nullptr);
    EXPECT_EQ(submenu->navigationController(), nullptr);
    EXPECT_TRUE(events.endsWith(u"submenu disappears"_s));

    tablet.show(screen(u"sheet"_s), Presentation::Sheet);
    tablet.push(screen(u"next"_s));
    EXPECT_EQ(tablet.presentedStack(), nullptr) << "a push closes what is presented";
    tablet.dismiss();
    EXPECT_EQ(tablet.viewControllers().size(), 2U);
}

class TabBarControllerTest : public testing::Test {
  protected:
    ManualClock clock;
    ManualQueues queues{clock};
    TabBarController tabs{UserInterfaceIdiom::Phone, queues.mainQueue()};
};

TEST_F(TabBarControllerTest, TabsAndTheirStacks) {
    QStringList events;
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s}) {
        tabs.addTab({name}, std::make_shared<Screen>(name, events));
    }
    tabs.setSelectedIndex(1);
    EXPECT_TRUE(events.isEmpty()) << "nothing appears before the window does";
    tabs.makeVisible();
    EXPECT_EQ(std::exchange(events, {}), QStringList({u"b loads"_s, u"b appears"_s}));

    tabs.disableTabs();
    EXPECT_EQ(tabs.selectedIndex(), 2);
    EXPECT_EQ(std::exchange(events, {}), QStringList({u"b disappears"_s, u"c loads"_s, u"c appears"_s}));
    tabs.tapTab(0);
    EXPECT_EQ(tabs.selectedIndex(), 2) << "a disabled tab ignores taps";
    tabs.selectedNavigationController().push(std::make_shared<Screen>(u"d"_s, events));
    tabs.tapTab(2);
    EXPECT_EQ(tabs.selectedNavigationController().viewControllers().size(), 1U)
        << "a tap on the selected tab returns to its root";

    tabs.enableTabs();
    tabs.tapTab(0);
    EXPECT_EQ(tabs.selectedIndex(), 0);
    tabs.setSelectedIndex(9);
    tabs.tapTab(-1);
    EXPECT_EQ(tabs.selectedIndex(), 0);
}

TEST_F(TabBarControllerTest, ShowsAlertsOneAfterAnother) {
    QStringList answers;
    tabs.presentAlert({u"1"_s, {}, {{u"OK"_s, AlertAction::Style::Default, [&] {
                                         answers << u"first"_s;
                                         tabs.presentAlert({u"3"_s, {}, {{u"OK"_s}}});
                                     }}}});
    tabs.presentAlert(
        {u"2"_s, {}, {{u"No"_s}, {u"Yes"_s, AlertAction::Style::Default, [&] { answers << u"second"_s; }}}});
    tabs.answerAlert(5);
    EXPECT_EQ(tabs.presentedAlert()->title, u"1"_s);
    tabs.answerAlert(0);
    EXPECT_EQ(tabs.presentedAlert()->title, u"2"_s);
    tabs.answerAlert(1);
    EXPECT_EQ(tabs.presentedAlert()->title, u"3"_s);
    tabs.answerAlert(0);
    EXPECT_EQ(tabs.presentedAlert(), nullptr);
    EXPECT_EQ(answers, QStringList({u"first"_s, u"second"_s}));
}

TEST_F(TabBarControllerTest, ShowsEachNoticeForItsTime) {
    int undone = 0;
    tabs.presentNotice({u"1"_s, u"Undo"_s, [&undone] { ++undone; }});
    tabs.presentNotice({u"2"_s});
    tabs.presentNotice({u"3"_s});
    const auto wait = [this](std::chrono::milliseconds time) {
        clock.advance(time);
        queues.runAll();
        return tabs.presentedNotice() ? tabs.presentedNotice()->text : u"none"_s;
    };
    EXPECT_EQ(wait(5s), u"1"_s);
    tabs.pressNoticeAction();
    EXPECT_EQ(undone, 1);
    EXPECT_EQ(wait(7999ms), u"2"_s) << "the timer of the first one does not count";
    EXPECT_EQ(wait(1ms), u"3"_s);
    EXPECT_EQ(wait(8s), u"none"_s);
    tabs.pressNoticeAction();
    tabs.dismissNotice();

    tabs.presentNotice({.text = u"1 removed"_s, .topic = u"removed"_s});
    tabs.presentNotice({.text = u"other"_s});
    EXPECT_EQ(wait(7s), u"1 removed"_s);
    tabs.presentNotice({.text = u"2 removed"_s, .topic = u"removed"_s});
    EXPECT_EQ(wait(7s), u"2 removed"_s) << "in place of the first, for the whole time";
    tabs.withdrawNotice(u"removed"_s);
    EXPECT_EQ(wait(0s), u"other"_s);
    tabs.presentNotice({.text = u"3 removed"_s, .topic = u"removed"_s});
    tabs.withdrawNotice(u"removed"_s);
    tabs.withdrawNotice({});
    EXPECT_EQ(wait(1s), u"other"_s);
    EXPECT_EQ(wait(7s), u"none"_s);
}

TEST(LatestAnswerTest, DropsSupersededAnswersAndThoseOfDestroyedOwners) {
    ManualClock clock;
    ManualQueues queues(clock);
    struct Owner {
        LatestAnswer answers;
    };
    auto owner = std::make_shared<Owner>();
    std::vector<int> received;
    const auto ask = [&]() -> MainBlock<int> {
        return owner->answers.expect(std::weak_ptr<const void>(owner),
                                     [&](int value) { received.push_back(value); });
    };
    MainBlock<int> first = ask();
    MainBlock<int> second = ask();
    second.post(queues.mainQueue(), 2);
    first.post(queues.mainQueue(), 1);
    queues.runAll();
    EXPECT_EQ(received, std::vector<int>{2});
    MainBlock<int> third = ask();
    third.post(queues.mainQueue(), 3);
    owner.reset();
    queues.runAll();
    EXPECT_EQ(received, std::vector<int>{2});
}

} // namespace
} // namespace guide::test
