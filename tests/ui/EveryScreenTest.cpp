// Every screen at each form and size of text: whether its texts fit, and whether a screen reader gets its
// rows in order.
#include "EveryScreen.h"

#include <array>
#include <string>

namespace guide::test {
namespace {

struct Screen {
    const char* name;
    /// Opens it from the one before; false when the form does not have it.
    bool (*open)(EveryScreenTest& test);
};

constexpr Screen kScreens[] = {
    {"currently", [](EveryScreenTest& test) { return test.tab(Symbol::Currently); }},
    {"menu of a row",
     [](EveryScreenTest& test) {
         test.pressOn(RowKind::Show, Qt::Key_Menu);
         return true;
     }},
    {"actions beside a row",
     [](EveryScreenTest& test) {
         test.press(Qt::Key_Escape);
         test.pressOn(RowKind::Show, Qt::Key_Left);
         return true;
     }},
    {"streams",
     [](EveryScreenTest& test) {
         test.top().pressRightBarButton(0);
         return true;
     }},
    {"channel",
     [](EveryScreenTest& test) {
         test.tab(Symbol::Currently);
         test.send(RowKind::Channel, Tapped{});
         return true;
     }},
    {"show",
     [](EveryScreenTest& test) {
         test.pushShow();
         return true;
     }},
    {"show, all people",
     [](EveryScreenTest& test) {
         test.send(RowKind::Button, Tapped{});
         return true;
     }},
    {"past broadcasts",
     [](EveryScreenTest& test) {
         test.pressAction(u"Past broadcasts"_s);
         const QUrl page(u"http://127.0.0.1/past"_s);
         test.world.archive.requests.back().second.post(
             test.world.queues.mainQueue(),
             std::vector<RecordedShow>{{u"neděle 28. prosince 2025 v devatenáct hodin třicet minut"_s, page},
                                       {u"21. 12. 2025"_s, {}}});
         return true;
     }},
    {"page of the web",
     [](EveryScreenTest& test) {
         test.stack().push(std::make_shared<WebViewController>(
             QUrl(u"https://x.example/1"_s), u"IMDb"_s,
             WebViewController::Surroundings{u"Agent"_s, test.activity, [](const QUrl&) {}}));
         return true;
     }},
    {"categories", [](EveryScreenTest& test) { return test.tab(Symbol::Categories); }},
    {"films",
     [](EveryScreenTest& test) {
         test.tapTile(Symbol::Films);
         return true;
     }},
    {"evening",
     [](EveryScreenTest& test) {
         test.tab(Symbol::Categories);
         test.tapTile(Symbol::Evening);
         return true;
     }},
    {"search", [](EveryScreenTest& test) { return test.tab(Symbol::Search); }},
    {"results",
     [](EveryScreenTest& test) {
         test.top().editSearchText(u"ni"_s);
         test.proceed();
         return test.top().table().rowCount() > 3;
     }},
    {"nothing found",
     [](EveryScreenTest& test) {
         test.top().finishSearch();
         test.top().editSearchText(u"nihilist"_s);
         return true;
     }},
    {"recent searches",
     [](EveryScreenTest& test) {
         test.top().cancelSearch();
         return true;
     }},
    {"keys",
     [](EveryScreenTest& test) {
         test.focus();
         test.press(Qt::Key_Question, Qt::ShiftModifier);
         return true;
     }},
    {"all shows",
     [](EveryScreenTest& test) {
         test.press(Qt::Key_Escape);
         return test.tab(Symbol::AllShows);
     }},
    {"schedule", [](EveryScreenTest& test) { return test.tab(Symbol::Schedule); }},
    {"alerts",
     [](EveryScreenTest& test) {
         const WorldShow show{10, 130, u"The Longest Night"_s, u"Thriller, UK (2018)"_s};
         test.world.alerts.shows = test.world.list(test.kino, {show});
         test.world.alarms.events[*test.world.entry(test.kino, show).basic->digest()] = 120;
         test.pressBarButton(u"Alerts"_s);
         return true;
     }},
    {"journal",
     [](EveryScreenTest& test) {
         test.fillJournal();
         test.pressBarButton(u"Journal"_s);
         return true;
     }},
    {"show with an alert",
     [](EveryScreenTest& test) {
         test.tab(Symbol::Schedule);
         test.pushFavourite();
         return true;
     }},
    {"alert of a show",
     [](EveryScreenTest& test) {
         test.pressAction(u"Alert"_s);
         return true;
     }},
    {"favourites",
     [](EveryScreenTest& test) {
         test.tab(Symbol::Schedule);
         test.top().pressRightBarButton(0);
         return true;
     }},
    {"notice",
     [](EveryScreenTest& test) {
         test.world.tabs->presentNotice(
             {u"“Příliš žluťoučký kůň a jeho podivuhodná cesta kolem světa” is no longer a favourite"_s,
              u"Undo"_s, [] {}});
         return true;
     }},
    {"selected channels",
     [](EveryScreenTest& test) {
         test.world.tabs->dismissNotice();
         return test.tab(Symbol::SelectedChannels);
     }},
    {"options",
     [](EveryScreenTest& test) {
         test.world.app.interval = 90min;
         setSilentHoursEnabled(test.world.keyValueStore, true);
         setSilentHoursFrom(test.world.keyValueStore, test.world.clock.now());
         test.sharedPlace.now = {.kind = SharedPlace::Kind::Folder,
                                 .address = u"/home/anna/Dokumenty/Synchronizace/Televize"_s,
                                 .state = {.lastSeen = test.world.begin, .device = u"Telefon v předsíni"_s},
                                 .deviceName = u"Notebook v obývacím pokoji"_s};
         test.pressBarButton(u"Options"_s);
         return true;
     }},
    {"the user's devices",
     [](EveryScreenTest& test) {
         test.tapRow(u"Your devices"_s);
         return true;
     }},
    {"the user's devices in a database",
     [](EveryScreenTest& test) {
         test.sharedPlace.now.kind = SharedPlace::Kind::Database;
         test.sharedPlace.now.address =
             u"postgresql://anna@tv.example.org:5433/guide?sslrootcert=/etc/home/ca.crt"_s;
         test.sharedPlace.now.state.reason = u"This device does not have the password of the database."_s;
         test.sharedPlace.observer();
         test.sharedPlace.why = u"The database does not accept the user or the password."_s;
         test.send(RowKind::Input, TextEdited{u"secret"_s, true, true});
         return true;
     }},
    {"erasing",
     [](EveryScreenTest& test) {
         test.stack().pop();
         test.tapRow(u"Delete…"_s);
         return true;
     }},
    {"lists that were replaced",
     [](EveryScreenTest& test) {
         test.stack().pop();
         test.userData.lists = {{ReplacedList::Kind::Favorites, test.world.begin, 12, u"favorites-a"_s},
                                {ReplacedList::Kind::Selection, test.world.begin, 7, u"selection-b"_s}};
         test.tapRow(u"Restore…"_s);
         return true;
     }},
    {"silent hours",
     [](EveryScreenTest& test) {
         test.stack().pop();
         test.tapRow(u"From:\nTo:"_s);
         return true;
     }},
    {"calendars",
     [](EveryScreenTest& test) {
         test.stack().pop();
         test.calendars.choice.storeName = u"Folder of calendar files"_s;
         test.calendars.choice.calendars->push_back(
             worldCalendar(u"Domácnost a škola"_s, u"~/.local/share/quellin-guide/calendars"_s));
         test.calendars.choice.calendars->back().state = CalendarState::Unavailable;
         test.pressBarButton(u"Calendars"_s);
         return true;
     }},
    {"selected channels, edited",
     [](EveryScreenTest& test) {
         test.tab(Symbol::SelectedChannels);
         test.top().pressLeftBarButton(0);
         return true;
     }},
    {"groups",
     [](EveryScreenTest& test) {
         test.top().pressLeftBarButton(0);
         test.top().pressRightBarButton(0);
         return true;
     }},
    {"channels of a group",
     [](EveryScreenTest& test) {
         test.send(RowKind::Text, Tapped{});
         return true;
     }},
    {"channels searched",
     [](EveryScreenTest& test) {
         test.top().editSearchText(u"kanál"_s);
         return true;
     }},
    {"no channel found",
     [](EveryScreenTest& test) {
         test.top().editSearchText(u"nihilist"_s);
         return true;
     }},
    {"alert",
     [](EveryScreenTest& test) {
         test.tab(Symbol::SelectedChannels);
         test.top().pressLeftBarButton(0);
         test.top().pressLeftBarButton(1);
         return test.world.tabs->presentedAlert() != nullptr;
     }},
    {"first start",
     [](EveryScreenTest& test) {
         test.world.tabs->answerAlert(1);
         test.proceed();
         test.world.tabs->dismissNotice();
         return test.world.channels->selected().empty();
     }},
    {"adding",
     [](EveryScreenTest& test) {
         test.top().pressEmptyNoteButton();
         return true;
     }},
    {"public feeds",
     [](EveryScreenTest& test) {
         test.tapRow(u"Other countries"_s);
         return true;
     }},
    {"reading",
     [](EveryScreenTest& test) {
         test.stack().pop();
         test.enterAddress();
         test.sources.progress(120, 4'200'000);
         return true;
     }},
    {"not a feed",
     [](EveryScreenTest& test) {
         test.answer(failedProposal(SourceResult::Page));
         return true;
     }},
    {"preview",
     [](EveryScreenTest& test) {
         test.enterAddress();
         test.answer(test.feed());
         test.send(RowKind::Channel, Tapped{});
         return true;
     }},
    {"preview of a playlist",
     [](EveryScreenTest& test) {
         test.stack().pop();
         test.enterAddress();
         test.answer(playlistProposal(
             {u"0. program pro celou rodinu"_s, u"1. program HD"_s, u"Rádio"_s},
             {u"https://guide.television.example/guide.xml.gz"_s, u"https://second.example/guide.xml.gz"_s}));
         test.tapRow(u"Load and match now"_s);
         test.answer(test.feed());
         return true;
     }},
    {"matches",
     [](EveryScreenTest& test) {
         test.tapRow(u"Review matches"_s);
         return true;
     }},
    {"candidates",
     [](EveryScreenTest& test) {
         test.tapRow(u"1. program HD"_s);
         return true;
     }},
    {"sources",
     [](EveryScreenTest& test) {
         test.tab(Symbol::SelectedChannels);
         test.addFailingSource();
         test.top().pressRightBarButton(1);
         return true;
     }},
    {"source",
     [](EveryScreenTest& test) {
         test.tapRow(u"Televize z obývacího pokoje"_s);
         return true;
     }},
    {"channels of a source",
     [](EveryScreenTest& test) {
         test.tapRow(u"Settings of channels"_s);
         return true;
     }},
    {"channel of a source",
     [](EveryScreenTest& test) {
         test.tapRow(u"0. program pro celou rodinu"_s);
         return true;
     }},
    {"player",
     [](EveryScreenTest& test) {
         test.presentPlayer();
         return true;
     }},
    {"pictures",
     [](EveryScreenTest& test) {
         test.presentPictures(3);
         return true;
     }},
    {"many pictures",
     [](EveryScreenTest& test) {
         test.presentPictures(14);
         return true;
     }},
    {"settings",
     [](EveryScreenTest& test) {
         test.world.tabs->dismissCover();
         test.push(u"A title that is longer than the bar of a phone is wide"_s, gallerySettings());
         return true;
     }},
    {"choices",
     [](EveryScreenTest& test) {
         test.pressOn(RowKind::Choice, Qt::Key_Return);
         return true;
     }},
    {"time picker",
     [](EveryScreenTest& test) {
         test.press(Qt::Key_Escape);
         test.pressOn(RowKind::Time, Qt::Key_Return);
         return true;
     }},
    {"fields",
     [](EveryScreenTest& test) {
         test.press(Qt::Key_Escape);
         test.push(u"Fields"_s, galleryForms());
         return true;
     }},
    {"sheet",
     [](EveryScreenTest& test) {
         test.stack().show(std::make_shared<GalleryScreen>(u"Channels"_s, galleryChannels()),
                           Presentation::Sheet);
         return true;
     }},
    {"sheet, edited",
     [](EveryScreenTest& test) {
         test.top().table().setEditing(true);
         return true;
     }},
};

TEST_P(EveryScreenTest, TextsFitAndRowsAreReadInOrder) {
    QStringList left;
    for (const Screen& screen : kScreens) {
        SCOPED_TRACE(screen.name);
        if (!screen.open(*this)) {
            left << QLatin1StringView(screen.name);
            continue;
        }
        proceed();
        check();
    }
    EXPECT_EQ(left, form() == Form::Phone ? QStringList{u"all shows"_s} : QStringList());
}

std::string nameOf(const testing::TestParamInfo<std::tuple<Form, int>>& param) {
    const std::array names{"Phone", "Tablet", "SideBySide"};
    return names[static_cast<std::size_t>(std::get<Form>(param.param))] +
           std::to_string(std::get<int>(param.param));
}

INSTANTIATE_TEST_SUITE_P(Forms, EveryScreenTest,
                         testing::Combine(testing::Values(Form::Phone, Form::Tablet, Form::SideBySide),
                                          testing::Values(100, 200)),
                         nameOf);

} // namespace
} // namespace guide::test
