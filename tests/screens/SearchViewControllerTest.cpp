#include "screens/search/SearchViewController.h"

#include "ScreenWorld.h"

namespace guide::test {
namespace {

class SearchViewControllerTest : public testing::Test {
  protected:
    static constexpr int kTab = 2;

    SearchViewControllerTest() {
        world.device.zone = QTimeZone("Europe/Prague");
        world.device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedStates);
        one = world.addChannel(u"Jedna"_s);
        two = world.addChannel(u"Dva"_s);
        world.start();
        world.load(one, {{-30, 30, u"Žena v šume"_s, u"Drama"_s},
                         {30, 60, u"Vijesti"_s, {}, {}, 0, u"O čemu se govori: zene i ljudi"_s}});
        world.load(two, {{0, 60, u"Zenit"_s, {}, {}, 0, {}, everyFact(u"Über Größe"_s)},
                         {60 * 24, 60 * 25, u"Sutra"_s, u"o ženama"_s}});
        world.tabs->setSelectedIndex(kTab);
        world.show();
    }
    SearchViewController& screen() {
        return dynamic_cast<SearchViewController&>(
            *world.tabs->tabs()[kTab].navigationController->viewControllers().front());
    }
    Table& table() { return screen().table(); }
    void type(const QString& text) {
        screen().editSearchText(text);
        world.queues.runAll();
    }
    QString marked(int row) {
        const ShowRow& show = showAt(table(), row);
        QStringList parts;
        for (const TextRange& range : show.titleMatches) {
            parts << show.title.sliced(range.start, range.length);
        }
        for (const TextRange& range : show.detailsMatches) {
            parts << u'(' + show.details.sliced(range.start, range.length) + u')';
        }
        return parts.join(u' ');
    }

    ScreenWorld world;
    ObjectId one = ScreenWorld::channelId(1);
    ObjectId two = ScreenWorld::channelId(2);
};

TEST_F(SearchViewControllerTest, ShowsTheResultsByDayAndMarksTheMatches) {
    type(u"ZEN"_s);
    EXPECT_EQ(linesOf(table()),
              QStringList({u"# Wednesday, December 31, 2025"_s, u"07:00pm Žena v šume"_s, u"07:30pm Zenit"_s,
                           u"08:00pm Vijesti"_s, u"# Thursday, January 1, 2026"_s, u"07:30pm Sutra"_s}));
    EXPECT_EQ(marked(0), u"Žen"_s);
    EXPECT_EQ(marked(1), u"Zen"_s);
    EXPECT_EQ(showAt(table(), 2).details, u"O čemu se govori: zene i ljudi"_s)
        << "an excerpt of the text that the row would not show";
    EXPECT_EQ(marked(2), u"(zen)"_s);
    EXPECT_EQ(marked(3), u"(žen)"_s);
    EXPECT_EQ(showAt(table(), 1).channelName, u"Dva"_s);
    EXPECT_TRUE(showAt(table(), 0).running && !showAt(table(), 2).running);
    EXPECT_EQ(showAt(table(), 0).endTime, u"08:00pm"_s);
    type(u"uber gross"_s);
    ASSERT_EQ(table().rowCount(), 1) << "by the original title";
    EXPECT_EQ(marked(0), u"(Über Größ)"_s);
}

TEST_F(SearchViewControllerTest, TheResultsStayUntilTheNextOnesArrive) {
    type(u"zenit"_s);
    const QStringList before = linesOf(table());
    ASSERT_EQ(before.size(), 2);
    screen().editSearchText(u"vi"_s);
    screen().editSearchText(u"vij"_s);
    EXPECT_EQ(linesOf(table()), before);
    world.queues.runAll();
    EXPECT_EQ(linesOf(table()).constLast(), u"08:00pm Vijesti"_s);
    EXPECT_EQ(marked(0), u"Vij"_s) << "the answer to the earlier text is dropped";
    screen().editSearchText(u"x"_s);
    screen().cancelSearch();
    world.queues.runAll();
    EXPECT_EQ(linesOf(table()), QStringList()) << "an answer for an empty field is not shown";
}

TEST_F(SearchViewControllerTest, TheFirstRowsComeAtOnceAndTheRestWhenTheUserPauses) {
    std::vector<WorldShow> shows;
    shows.reserve(200);
    for (int number = 0; number < 200; ++number) {
        shows.push_back({number, number + 1, u"Zoo %1"_s.arg(number)});
    }
    world.load(one, shows);
    type(u"zo"_s);
    EXPECT_EQ(table().rowCount(), 60);
    world.wait(200ms);
    type(u"zoo"_s);
    world.wait(200ms);
    EXPECT_EQ(table().rowCount(), 60) << "the rest of the earlier result is dropped";
    world.wait(200ms);
    EXPECT_EQ(table().rowCount(), 200);
    EXPECT_EQ(marked(199), u"Zoo"_s);
    world.load(two, {{300, 360, u"Zoo"_s}});
    EXPECT_EQ(table().rowCount(), 201) << "new lists do not shorten what is shown";
    screen().sendRowEvent(table().rowAt(180).id, Tapped{});
    EXPECT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 2U);
}

TEST_F(SearchViewControllerTest, SaysThatNothingWasFoundAndLeadsToTheChannels) {
    type(u"Titanik"_s);
    ASSERT_EQ(table().rowCount(), 0);
    EXPECT_EQ(table().emptyNote()->title, u"No show matches “Titanik” on your 2 channel(s)"_s);
    screen().pressEmptyNoteButton();
    EXPECT_EQ(world.app.done.constLast(), u"tab %1"_s.arg(static_cast<int>(Symbol::SelectedChannels)));
}

TEST_F(SearchViewControllerTest, FollowsTimeAndNewLists) {
    type(u"zen"_s);
    world.wait(30min + 1s);
    EXPECT_EQ(linesOf(table()).value(1), u"07:30pm Zenit"_s) << "what has ended leaves";
    EXPECT_TRUE(showAt(table(), 1).running);
    world.load(one, {{30, 60, u"Vijesti"_s}, {60, 120, u"Zena"_s}});
    EXPECT_TRUE(linesOf(table()).contains(u"08:30pm Zena"_s));

    world.tabs->setSelectedIndex(0);
    world.load(one, {{40, 60, u"Zenon"_s}});
    EXPECT_FALSE(linesOf(table()).contains(u"08:10pm Zenon"_s)) << "not while another tab is shown";
    world.tabs->setSelectedIndex(kTab);
    world.queues.runAll();
    EXPECT_TRUE(linesOf(table()).contains(u"08:10pm Zenon"_s));
    EXPECT_EQ(screen().searchField()->text, u"zen"_s);
}

TEST_F(SearchViewControllerTest, RemembersWhatWasSearchedFor) {
    const auto recent = [this] { return RecentSearches(world.userDefaults).all(); };
    type(u"z"_s);
    screen().finishSearch();
    EXPECT_EQ(recent(), QStringList()) << "too short";
    screen().sendRowEvent(table().rowAt(0).id, Tapped{});
    EXPECT_EQ(recent(), QStringList{u"z"_s}) << "a result was opened";
    EXPECT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 2U);
    world.tabs->selectedNavigationController().pop();
    type(u"zeni"_s);
    screen().finishSearch();
    type(u"Zenit"_s);
    screen().finishSearch();
    EXPECT_EQ(recent(), QStringList{u"Zenit"_s}) << "the user went on typing";
    screen().cancelSearch();
    type(u"vij"_s);
    world.tabs->setSelectedIndex(0);
    world.tabs->setSelectedIndex(kTab);
    screen().cancelSearch();
    type(u"ŽENIT"_s);
    screen().finishSearch();
    screen().cancelSearch();
    EXPECT_EQ(linesOf(table()),
              QStringList({u"# Recent searches"_s, u"ŽENIT"_s, u"vij"_s, u"[Clear recent searches]"_s}));

    screen().sendRowEvent(table().rowAt(1).id, Tapped{});
    world.queues.runAll();
    EXPECT_EQ(screen().searchField()->text, u"vij"_s);
    EXPECT_EQ(linesOf(table()).constLast(), u"08:00pm Vijesti"_s);
    screen().cancelSearch();
    EXPECT_EQ(recent(), QStringList({u"vij"_s, u"ŽENIT"_s}));
    screen().sendRowEvent(table().rowAt(0).id, Deleted{});
    EXPECT_EQ(recent(), QStringList{u"ŽENIT"_s});
    screen().sendRowEvent(table().rowAt(1).id, Tapped{});
    EXPECT_EQ(table().rowCount(), 0);
    EXPECT_FALSE(world.userDefaults.stringForKey(u"recent_searches"_s));
    world.app.notices.at(0).action();
    EXPECT_EQ(recent(), QStringList{u"ŽENIT"_s});
}

TEST_F(SearchViewControllerTest, KeepsTheLatestTen) {
    RecentSearches recent(world.userDefaults);
    for (int number = 0; number < 12; ++number) {
        recent.add(u"search %1"_s.arg(number));
    }
    recent.add(QString(500, u'x'));
    recent.add(u" \n "_s);
    EXPECT_EQ(recent.all().size(), 10);
    EXPECT_EQ(recent.all().constFirst(), u"search 11"_s);
    world.userDefaults.setString(u"recent_searches"_s, QString(100'000, u'\n') + u"one\ntwo"_s);
    EXPECT_EQ(recent.all(), QStringList({u"one"_s, u"two"_s}));
}

TEST_F(SearchViewControllerTest, TheInfoButtonSaysWhatIsSearched) {
    screen().pressRightBarButton(0);
    ASSERT_EQ(world.app.alerts.size(), 1U);
    EXPECT_EQ(world.app.alerts[0].title, u"Note"_s);
    EXPECT_EQ(world.app.alerts[0].message, u"Only selected channels will be searched."_s);
}

TEST(SearchResultsTest, AnExcerptHasWholeWords) {
    const QString text =
        u"The first words of a long description come before the harbour, where two brothers repair the old "
        "boats of the village and wait for spring."_s;
    QStringList words = excerpt(text, {text.indexOf(u"harbour"), 7}).split(u' ');
    EXPECT_EQ(words.takeFirst() + words.takeLast(), u"……"_s);
    EXPECT_TRUE(words.contains(u"harbour,"_s) && words.size() > 10 && words.size() < 20);
    for (const QString& word : words) {
        EXPECT_TRUE(text.split(u' ').contains(word)) << word.toStdString();
    }
    EXPECT_EQ(excerpt(u"Short\ntext"_s, {6, 4}), u"Short text"_s);
    EXPECT_EQ(excerpt(QString(200, u'x'), {100, 5}), u"… xxxxx …"_s);
}

} // namespace
} // namespace guide::test
