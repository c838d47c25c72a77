#include "screens/detail/DetailViewController.h"

#include "ScreenWorld.h"
#include "screens/detail/ShowPage.h"
#include "screens/kit/NavigationController.h"

namespace guide::test {
namespace {

class DetailViewControllerTest : public testing::Test {
  protected:
    /// Opens the page of a show that begins at the minute and lasts an hour.
    DetailViewController& open(int from, const std::function<void(ExtendedTVEntry&)>& change = [](auto&) {}) {
        world.device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedKingdom);
        world.device.zone = QTimeZone("UTC");
        channel = world.addChannel(u"Jedna"_s, true, u"http://x/live"_s);
        world.start();
        ExtendedTVEntry made = world.entry(channel, {from, from + 60, u"Title"_s});
        made.extra = std::make_shared<TVEntrySupplementalData>();
        change(made);
        screen =
            std::make_shared<DetailViewController>(world.environment, ShowItem(std::move(made)), u"none"_s);
        world.tabs->selectedNavigationController().push(screen);
        world.show();
        return *screen;
    }
    const Table& table() const { return screen->table(); }
    const HeadRow& head() const { return std::get<HeadRow>(table().rowAt(0).content); }
    const std::vector<ActionButton>& buttons() const {
        return std::get<ActionsRow>(table().rowAt(1).content).buttons;
    }
    QStringList actions() const {
        QStringList names;
        for (const ActionButton& button : buttons()) {
            names << button.title;
        }
        return names;
    }
    void press(const QString& action) {
        screen->sendRowEvent(table().rowAt(1).id, Chosen{static_cast<int>(actions().indexOf(action))});
    }
    /// "header: text" of the sections below the actions.
    QStringList groups() const {
        QStringList lines;
        for (const Section& section : table().sections()) {
            if (const auto* text = std::get_if<ParagraphRow>(&section.rows.front().content)) {
                lines << section.header + u' ' + text->text;
            }
        }
        return lines;
    }
    const TextRow* alarmRow() const {
        for (int row = 0; row < table().rowCount(); ++row) {
            if (const auto* text = std::get_if<TextRow>(&table().rowAt(row).content)) {
                return text;
            }
        }
        return nullptr;
    }
    /// What the real favourites do: change the rules, then tell the screens.
    void setFavourite(bool favourite) {
        world.favorites.titles = favourite ? QStringList{u"title"_s} : QStringList();
        world.broadcast->favoritesUpdated();
        world.queues.runAll();
    }

    ScreenWorld world;
    ObjectId channel{ObjectId::Bytes{}};
    std::shared_ptr<DetailViewController> screen;
};

TEST_F(DetailViewControllerTest, ShowsTheTextsThatTheShowHas) {
    open(30, [](ExtendedTVEntry& show) {
        show.basic->setSubtitle1(u"Part one"_s);
        show.basic->setInstantDetails1(u"American film ║ 2009"_s);
        show.basic->setInstantDescription1(u"A sentence. "_s.repeated(9));
        show.basic->setPreviouslyShown(true);
        show.extra->description = u" Long ago.\nFar away. "_s;
        show.extra->directedBy = u"A One\nB Two"_s;
        show.extra->roles = u"C Three (the king, old), D Four"_s;
        show.extra->details = QString();
        show.extra->trailerURL = QUrl(u"http://x/trailer.mp4"_s);
        show.extra->imdbURL = QUrl(u"http://x/title/tt1"_s);
    });
    EXPECT_EQ(head().title, u"Title"_s);
    EXPECT_EQ(QString(head().facts).replace(QChar(QChar::Nbsp), u' '),
              u"Jedna · Today · 19:00–20:00 · 1 h · Replay · American film · 2009"_s);
    EXPECT_EQ(head().status, u"Starts in 30 min"_s);
    EXPECT_EQ(
        groups(),
        QStringList({u"Subheading: Part one"_s, u"Details: "_s + u"A sentence. "_s.repeated(9).trimmed(),
                     u"Directed By: A One\nB Two"_s, u"Roles: C Three (the king, old)\nD Four"_s,
                     u"Description: Long ago.\nFar away."_s}));
    EXPECT_EQ(showGroups(screen->show(), world.alphabet)[2].name, u"Directed By:(p)"_s);
    EXPECT_EQ(actions(),
              QStringList({u"Favourite"_s, u"Trailer"_s, u"IMDb"_s, u"More broadcasts"_s, u"Copy link"_s}));

    for (const QString& action : {u"Trailer"_s, u"IMDb"_s, u"Copy link"_s}) {
        press(action);
    }
    EXPECT_EQ(world.app.done,
              QStringList({u"play http://x/trailer.mp4"_s, u"open http://x/title/tt1 IMDb"_s}));
    EXPECT_EQ(QUrl(world.clipboard.text()), *screen->show().entry()->urlDigestWithScheme(u"guide"_s));
    EXPECT_EQ(world.app.notices.size(), 1U);
    world.queues.runAll();
    EXPECT_TRUE(world.showLookup.links.empty()) << "the link is known";
}

TEST_F(DetailViewControllerTest, ShowsTheFactsOfTheShowOnce) {
    open(30, [](ExtendedTVEntry& show) {
        show.basic->setSubtitle1(u"S2E5 ║ Part one ║ Drama ║ CZ ║ 2016 ║ 12 ║ 3,8"_s);
        show.basic->setFacts(everyFact(u"The very first of its kind"_s));
        show.extra = nullptr;
    });
    EXPECT_EQ(QString(head().facts).replace(QChar(QChar::Nbsp), u' '),
              u"Jedna · Today · 19:00–20:00 · 1 h · New · Drama"_s);
    const auto& facts = std::get<ParagraphRow>(table().sections()[2].rows.front().content).text;
    EXPECT_EQ(QString(facts).replace(QChar(QChar::Nbsp), u' ').split(u'\n'),
              QStringList({u"Original title: The very first of its kind"_s,
                           u"Season 2 · Episode 5 of 10 · Part 1 of 2"_s,
                           u"Year: 2016 · Country: Czechia, France · Age rating: 12+ · "
                           "Rating: 7.3 of 10 stars"_s}));
}

TEST_F(DetailViewControllerTest, ShowsOnlyTheHeadOfAShowWithoutTexts) {
    open(30, [](ExtendedTVEntry& show) { show.extra = nullptr; });
    EXPECT_EQ(table().rowCount(), 2);
    EXPECT_TRUE(world.showLookup.descriptions.empty()) << "it has no page";
    screen->sendRowEvent(table().rowAt(0).id, Tapped{});
    EXPECT_NE(&world.top(), screen.get()) << "the title opens its broadcasts";
    EXPECT_EQ(world.top().title(), u"Title"_s);
}

TEST_F(DetailViewControllerTest, UnfoldsManyPeople) {
    open(30, [](ExtendedTVEntry& show) {
        QStringList names;
        for (int number = 1; number <= 12; ++number) {
            names << u"A %1"_s.arg(number);
        }
        show.extra->roles = names.join(u'\n');
    });
    EXPECT_EQ(groups().last().count(u'A'), 10);
    const int last = table().rowCount() - 1;
    EXPECT_EQ(std::get<ButtonRow>(table().rowAt(last).content).title, u"Show all 12"_s);
    screen->sendRowEvent(table().rowAt(last).id, Tapped{});
    EXPECT_EQ(groups().last().count(u'A'), 12);
    EXPECT_EQ(table().rowCount(), last);
}

TEST(ShowPage, People) {
    const std::pair<QString, QStringList> cases[] = {
        {u"Jon Voight,  Rene Russo, ..."_s, {u"Jon Voight"_s, u"Rene Russo"_s}},
        {u"Trace Adkins..., Jon Voight…"_s, {u"Trace Adkins"_s, u"Jon Voight"_s}},
        {u"Downey, Jr., A (one, two); B"_s, {u"Downey, Jr."_s, u"A (one, two)"_s, u"B"_s}},
        {u"A, one\nB\nA, one"_s, {u"A, one"_s, u"B"_s}},
        {u"..., -"_s, {}},
    };
    for (const auto& [text, people] : cases) {
        EXPECT_EQ(peopleOf(text), people);
    }
}

TEST(ShowPage, TheDayIsWrittenAsInTheLanguage) {
    Alphabet alphabet;
    TVEntry entry(alphabet);
    FakeDevice device;
    device.zone = QTimeZone("UTC");
    const Moment now = Moment(std::chrono::sys_days(std::chrono::year(2025) / 11 / 1));
    entry.setDateTime(now + 72h);
    const std::pair<QLocale, QString> cases[] = {
        {QLocale(QLocale::German), u"Di., 4. Nov."_s},
        {QLocale(QLocale::Hungarian), u"nov. 4., K"_s},
        {QLocale(QLocale::Slovak), u"ut 4. nov"_s},
        {QLocale(QLocale::Italian), u"mar 4 nov"_s},
        {QLocale(QLocale::English, QLocale::UnitedStates), u"Tue, Nov 4"_s},
        {QLocale(QLocale::Russian), u"вт, 4 нояб."_s},
        {QLocale(QLocale::Latvian), u"otrd. 4. nov."_s},
    };
    for (const auto& [locale, day] : cases) {
        device.deviceLocale = locale;
        EXPECT_EQ(showFacts(entry, {}, now, device).value(0), day);
    }
}

TEST_F(DetailViewControllerTest, FollowsTheClock) {
    open(1);
    EXPECT_EQ(head().status, u"Starts in 1 min"_s);
    EXPECT_FALSE(actions().contains(u"Play"_s));
    world.wait(31min);
    EXPECT_EQ(head().status, u"On now · 30 min left"_s);
    EXPECT_NEAR(head().progress.value(), 0.5, 1e-3);
    press(u"Play"_s);
    EXPECT_EQ(world.app.done, QStringList{u"play http://x/live"_s});
    world.wait(31min);
    EXPECT_EQ(head().status, u"Ended"_s);
    EXPECT_FALSE(head().progress);
    EXPECT_FALSE(actions().contains(u"Play"_s));
}

// ---- favourites and alarms

TEST_F(DetailViewControllerTest, SwitchesTheFavouriteOnAndOff) {
    open(30);
    EXPECT_EQ(buttons()[0].on, false);
    EXPECT_EQ(alarmRow(), nullptr);
    press(u"Favourite"_s);
    EXPECT_EQ(world.app.done, QStringList{u"add Title"_s});
    EXPECT_EQ(buttons()[0].on, true);
    ASSERT_TRUE(alarmRow());
    EXPECT_EQ(alarmRow()->title, u"⏰ Alert:"_s);
    EXPECT_EQ(alarmRow()->detail, u"None"_s);
    setFavourite(true);
    EXPECT_EQ(buttons()[0].on, true);

    press(u"Favourite"_s);
    EXPECT_EQ(world.app.done.last(), u"remove Title"_s);
    EXPECT_EQ(alarmRow(), nullptr);
    EXPECT_FALSE(buttons()[0].enabled);
    press(u"Favourite"_s);
    EXPECT_EQ(world.app.done.size(), 2) << "a disabled switch does nothing";
    world.queues.runAll();
    EXPECT_TRUE(buttons()[0].enabled);

    world.broadcast->notificationsSynched();
    EXPECT_EQ(world.app.done.size(), 3) << "an alarm that was being set has brought the rule back";
    world.favorites.titles.clear();
    world.broadcast->notificationsSynched();
    EXPECT_EQ(world.app.done.size(), 3);
}

TEST_F(DetailViewControllerTest, KeepsAFavouriteThatWasAddedElsewhere) {
    open(30);
    setFavourite(true);
    EXPECT_EQ(buttons()[0].on, true);
    world.broadcast->notificationsSynched();
    EXPECT_EQ(world.app.done, QStringList());
    setFavourite(false);
    EXPECT_EQ(buttons()[0].on, false);
    EXPECT_EQ(world.app.done, QStringList());
}

TEST_F(DetailViewControllerTest, NeedsACalendarForAlarms) {
    open(30);
    setFavourite(true);
    press(u"Alert"_s);
    screen->sendRowEvent(table().rowAt(2).id, Tapped{});
    ASSERT_EQ(world.app.alerts.size(), 2U);
    EXPECT_EQ(world.app.alerts[0].title, u"Error"_s);
    EXPECT_TRUE(world.app.alerts[0].message.startsWith(u"You have to allow access to your calendars"_s));
}

// ---- what is loaded

TEST_F(DetailViewControllerTest, FetchesMissingDetailsOnce) {
    const QUrl url(u"http://x/picture.jpg"_s);
    open(30, [](ExtendedTVEntry& show) {
        show.basic->setUrl(QUrl(u"http://x/show/1"_s));
        show.extra = nullptr;
    });
    ASSERT_EQ(world.showLookup.descriptions.size(), 1U);
    EXPECT_TRUE(screen->progress());
    EXPECT_TRUE(world.showLookup.links.empty()) << "the page may have the link";

    auto details = std::make_shared<TVEntrySupplementalData>();
    details->description = u"Found"_s;
    const auto& [entry, block] = world.showLookup.descriptions.front();
    auto answer = block;
    answer.post(world.queues.mainQueue(), ShowItem(entry, 2, details, {url}));
    world.queues.runAll();
    EXPECT_FALSE(screen->progress());
    EXPECT_EQ(groups(), QStringList{u"Description: Found"_s});
    EXPECT_TRUE(actions().contains(u"Pictures"_s));
    ASSERT_EQ(world.showLookup.links.size(), 1U);

    ASSERT_EQ(world.pictures.large.size(), 1U);
    EXPECT_TRUE(head().picture.empty());
    QImage image(16, 9, QImage::Format_RGB32);
    image.fill(Qt::red);
    world.pictures.large.front().second.post(world.queues.mainQueue(), image);
    world.queues.runAll();
    EXPECT_FALSE(head().picture.empty());
    world.tabs->setSelectedIndex(1);
    world.tabs->setSelectedIndex(0);
    world.queues.runAll();
    EXPECT_EQ(world.showLookup.descriptions.size(), 1U);
    EXPECT_EQ(world.showLookup.links.size(), 1U);
    EXPECT_EQ(world.pictures.large.size(), 1U) << "from the cache";
}

TEST_F(DetailViewControllerTest, StoresTheIMDbLink) {
    world.app.images = false;
    open(30);
    world.load(channel, {{30, 90, u"Title"_s}});
    ASSERT_EQ(world.showLookup.links.size(), 1U);
    world.showLookup.links.front().second.post(
        world.queues.mainQueue(), IMDbLink{QUrl(u"http://x/title/tt1"_s), QUrl(u"http://x/p.jpg"_s)});
    world.queues.runAll();
    EXPECT_TRUE(actions().contains(u"IMDb"_s) && actions().contains(u"Pictures"_s));
    EXPECT_TRUE(world.pictures.large.empty()) << "pictures are switched off";
    ShowSpan stored;
    world.listings->cachedListForChannel(
        channel, MainBlock<ShowSpan>([&stored](const ShowSpan& shows) { stored = shows; }));
    world.queues.runAll();
    ASSERT_EQ(stored.size(), 1U);
    EXPECT_EQ(stored[0].details()->imdbURL, QUrl(u"http://x/title/tt1"_s));
}

TEST_F(DetailViewControllerTest, DropsAnswersAfterItsEnd) {
    open(30, [](ExtendedTVEntry& show) {
        show.basic->setUrl(QUrl(u"http://x/show/1"_s));
        show.extra = nullptr;
    });
    auto [entry, block] = world.showLookup.descriptions.front();
    block.post(world.queues.mainQueue(), ShowItem(entry));
    world.tabs->selectedNavigationController().pop();
    const std::weak_ptr<DetailViewController> gone = std::exchange(screen, nullptr);
    EXPECT_TRUE(gone.expired());
    world.queues.runAll();
    EXPECT_TRUE(world.showLookup.links.empty());
}

} // namespace
} // namespace guide::test
