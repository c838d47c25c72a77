#include "screens/kit/TabBarController.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace guide::test {

using namespace Qt::StringLiterals;

namespace {

Row row(const QString& title) {
    Row row;
    row.text.append(title, TextStyle::Title, ColorRole::Label);
    row.selectable = true;
    return row;
}

std::vector<Row> rows(const QStringList& titles) {
    std::vector<Row> rows;
    for (const QString& title : titles) {
        rows.push_back(row(title));
    }
    return rows;
}

// Follows a table the way a list on a screen does: by the changes alone.
struct Follower final : TableObserver {
    explicit Follower(Table& followed)
        : table(followed) {
        table.setObserver(this);
    }
    void tableReloaded() override {
        shown.clear();
        for (const Section& section : table.sections()) {
            shown.push_back({});
            for (const Row& row : section.rows) {
                shown.back() << row.text.plain();
            }
        }
        log << u"reload"_s;
    }
    void rowsInserted(int section, int first, int count) override {
        for (int index = first; index < first + count; ++index) {
            shown[static_cast<std::size_t>(section)].insert(index, text(section, index));
        }
        log << u"insert %1+%2"_s.arg(first).arg(count);
    }
    void rowsRemoved(int section, int first, int count) override {
        shown[static_cast<std::size_t>(section)].remove(first, count);
        log << u"remove %1+%2"_s.arg(first).arg(count);
    }
    void rowsReloaded(int section, int first, int count) override {
        for (int index = first; index < first + count; ++index) {
            shown[static_cast<std::size_t>(section)][index] = text(section, index);
        }
        log << u"change %1+%2"_s.arg(first).arg(count);
    }
    void rowSelectionChanged() override { log << u"selection"_s; }
    void emptyNoteChanged() override { log << u"note"_s; }

    QString text(int section, int row) const { return table.row({section, row})->text.plain(); }

    Table& table;
    std::vector<QStringList> shown;
    QStringList log;
};

struct Screen final : ViewController {
    Screen(const QString& name, QStringList& events)
        : m_name(name)
        , m_events(events) {}
    void viewDidLoad() override { m_events << m_name + u" loads"_s; }
    void viewDidAppear() override { m_events << m_name + u" appears"_s; }
    void viewDidDisappear() override { m_events << m_name + u" disappears"_s; }
    void didSelectRow(IndexPath path) override { m_events << u"%1 row %2"_s.arg(m_name).arg(path.row); }
    void refreshable() { setHasRefreshControl(true); }
    void didPullToRefresh() override { m_events << m_name + u" pulled"_s; }

    const QString m_name;
    QStringList& m_events;
};

TEST(TableTest, UpdatesASectionWithTheFewestChanges) {
    struct Case {
        const char* name;
        QStringList before;
        QStringList after;
        QStringList changes;
    };
    const std::vector<Case> cases{
        {"the same", {u"a"_s, u"b"_s}, {u"a"_s, u"b"_s}, {}},
        {"one of three", {u"a"_s, u"b"_s, u"c"_s}, {u"a"_s, u"x"_s, u"c"_s}, {u"change 1+1"_s}},
        {"two apart", {u"a"_s, u"b"_s, u"c"_s}, {u"x"_s, u"b"_s, u"y"_s}, {u"change 0+1"_s, u"change 2+1"_s}},
        {"longer", {u"a"_s}, {u"a"_s, u"b"_s, u"c"_s}, {u"insert 1+2"_s}},
        {"shorter, and the first one differs",
         {u"a"_s, u"b"_s, u"c"_s},
         {u"x"_s},
         {u"remove 1+2"_s, u"change 0+1"_s}},
        {"from nothing", {}, {u"a"_s}, {u"insert 0+1"_s}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        Table table;
        Follower follower(table);
        table.reload({{QString(), rows({u"other"_s})}, {QString(), rows(each.before)}});
        follower.log.clear();
        table.updateSection(1, rows(each.after));
        EXPECT_EQ(follower.log, each.changes);
        EXPECT_EQ(follower.shown[1], each.after);
        EXPECT_EQ(follower.shown[0], QStringList{u"other"_s});
    }
}

TEST(TableTest, ASelectedRowThatGoesIsSelectedNoMore) {
    Table table;
    table.reload({{QString(), rows({u"a"_s, u"b"_s})}});
    table.selectRow({0, 1});
    table.updateSection(0, rows({u"a"_s}));
    EXPECT_FALSE(table.selectedRow());
    table.selectRow({0, 5});
    EXPECT_FALSE(table.selectedRow());
}

TEST(ViewControllerTest, TapsReachOnlyWhatCanBeTapped) {
    QStringList events;
    const auto screen = std::make_shared<Screen>(u"s"_s, events);
    std::vector<Row> content = rows({u"a"_s, u"b"_s});
    content[0].selectable = false;
    screen->table().reload({{QString(), std::move(content)}});
    screen->tapRow({0, 0});
    screen->tapRow({0, 2});
    screen->tapRow({3, 0});
    screen->tapRow({0, 1});
    screen->pressBarButton(7);
    EXPECT_EQ(events, QStringList{u"s row 1"_s});
    EXPECT_EQ(screen->table().selectedRow(), IndexPath(0, 1));

    screen->pullToRefresh();
    screen->refreshable();
    screen->pullToRefresh();
    screen->pullToRefresh();
    EXPECT_EQ(events.filter(u"pulled"_s).size(), 1) << "a pull while refreshing is no second one";
}

TEST(NavigationControllerTest, OnlyTheTopOfAVisibleStackAppears) {
    QStringList events;
    NavigationController stack(std::make_shared<Screen>(u"root"_s, events));
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

TEST(TabBarControllerTest, TabsAndTheirStacks) {
    QStringList events;
    TabBarController tabs;
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
    EXPECT_EQ(tabs.selectedIndex(), 2) << "a disabled tab answers to no tap";
    tabs.selectedNavigationController().push(std::make_shared<Screen>(u"d"_s, events));
    tabs.tapTab(2);
    EXPECT_EQ(tabs.selectedNavigationController().viewControllers().size(), 1U)
        << "the selected tab keeps working, and leads back to its root";

    tabs.enableTabs();
    tabs.tapTab(0);
    EXPECT_EQ(tabs.selectedIndex(), 0);
    tabs.setSelectedIndex(9);
    tabs.tapTab(-1);
    EXPECT_EQ(tabs.selectedIndex(), 0);
}

TEST(TabBarControllerTest, AlertsWaitForEachOther) {
    TabBarController tabs;
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

} // namespace

} // namespace guide::test
