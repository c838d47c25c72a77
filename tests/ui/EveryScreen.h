#pragma once

#include "AccessibleTree.h"
#include "GalleryShows.h"
#include "TextFit.h"
#include "WindowTest.h"
#include "core/own/KnownFeeds.h"
#include "fakes/FakeMediaPlayers.h"
#include "gallery/GalleryRows.h"
#include "screens/WorldAlarms.h"
#include "screens/WorldSources.h"
#include "screens/WorldUserData.h"
#include "screens/detail/DetailViewController.h"
#include "screens/pictures/ScreenShotViewController.h"
#include "screens/player/PlayerViewController.h"
#include "screens/web/WebViewController.h"

#include <QQmlContext>
#include <QQmlProperty>

#include <tuple>

namespace guide::test {

enum class Form { Phone, Tablet, SideBySide };

/// A window with a guide that has something to show on each of its screens. The members are for the table of
/// screens.
class EveryScreenTest : public WindowTest, public testing::WithParamInterface<std::tuple<Form, int>> {
  public:
    EveryScreenTest()
        : world(idiom()) {
        for (char letter = 'A'; letter <= 'Z'; ++letter) {
            world.addChannel(QChar::fromLatin1(letter) + u"-kanál pro celou rodinu"_s, false);
        }
        world.ownSources = &sources;
        world.calendarActions = &calendars;
        world.alarmExplanations = &explanations;
        world.userData = &userData;
        world.sharedPlace = &sharedPlace;
        world.app.calendarAccess = true;
        world.knownFeeds = &knownFeeds;
        const ObjectId other = world.addChannel(u"Druhý program"_s, true, u"http://127.0.0.1/other"_s);
        fillWithEvening(world);
        kino = world.channels->selected()[6];
        world.sources[kino] = u"feeds.television.example"_s;
        world.fail(other, LoadFailure{LoadFailureReason::NoAnswer, u"feeds.television.example"_s});
        world.app.synchronising = true;
        world.app.swipeActions = [](const TVEntry&) {
            return std::vector<RowAction>{{u"⏰"_s, u"Set alarm"_s, ColorRole::Tint, [] {}},
                                          {u"⭐"_s, u"Add to favourites"_s, ColorRole::Favourite, [] {}}};
        };
    }
    void SetUp() override {
        WindowTest::SetUp();
        // A web view that loads nothing.
        qputenv("QML_IMPORT_PATH", QUELLIN_TEST_DATA "/ui/modules");
        world.tabs->setSelectedIndex(currentlyTabIndex(idiom()));
        openWindow(*world.tabs,
                   {.form = idiom(),
                    .textScale = std::get<int>(GetParam()) / 100.0,
                    .size = form() == Form::SideBySide ? std::optional(QSize(1280, 800)) : std::nullopt,
                    .motion = false,
                    .pictures = &pictures});
        proceed();
    }
    void TearDown() override {
        WindowTest::TearDown();
        qunsetenv("QML_IMPORT_PATH");
    }

    using WindowTest::focus;
    using WindowTest::press;

    static Form form() { return std::get<Form>(GetParam()); }
    static UserInterfaceIdiom idiom() {
        return form() == Form::Phone ? UserInterfaceIdiom::Phone : UserInterfaceIdiom::Tablet;
    }
    void proceed() {
        world.queues.runAll();
        settle();
    }
    NavigationController& stack() const {
        NavigationController& whole = world.tabs->selectedNavigationController();
        return whole.presentedStack() ? *whole.presentedStack() : whole;
    }
    TableViewController& top() const {
        return dynamic_cast<TableViewController&>(*stack().topViewController());
    }
    /// Whether the form has the tab; then its first screen is shown.
    bool tab(Symbol symbol) {
        const auto& tabs = world.tabs->tabs();
        const auto found = std::ranges::find(tabs, symbol, [](const auto& each) { return each.item.symbol; });
        if (found == tabs.end()) {
            return false;
        }
        world.tabs->selectedNavigationController().dismiss();
        found->navigationController->popToRoot();
        world.tabs->setSelectedIndex(static_cast<int>(found - tabs.begin()));
        proceed();
        return true;
    }
    /// To the first row of the kind.
    void send(RowKind kind, const RowEvent& event) {
        top().sendRowEvent(top().table().rowAt(rowOf(kind)).id, event);
        proceed();
    }
    void tapTile(Symbol symbol) {
        for (const Row& row : top().table().sections().front().rows) {
            if (std::get<TileRow>(row.content).symbol == symbol) {
                return top().sendRowEvent(RowId(row.id), Tapped{});
            }
        }
        ADD_FAILURE() << "no such tile";
    }
    void pressAction(const QString& title) {
        const auto& actions = std::get<ActionsRow>(top().table().rowAt(1).content).buttons;
        const auto button = std::ranges::find(actions, title, &ActionButton::title);
        ASSERT_NE(button, actions.end()) << title.toStdString();
        send(RowKind::Actions, Chosen{static_cast<int>(button - actions.begin())});
    }
    /// Opens what a key opens on the first row of the kind.
    void pressOn(RowKind kind, Qt::Key key) {
        focus(rowOf(kind));
        press(key);
    }
    void push(const QString& title, const std::vector<Section>& sections) const {
        stack().push(std::make_shared<GalleryScreen>(title, sections));
    }
    /// Of a show about which everything is known.
    void pushShow() const {
        ExtendedTVEntry show =
            world.entry(kino, {.from = 10,
                               .until = 130,
                               .title = u"Příliš žluťoučký kůň a jeho podivuhodná cesta kolem světa"_s,
                               .details = u"Dobrodružný film ║ ČR/Francie ║ 2019"_s,
                               .pictures = {QUrl(u"http://127.0.0.1/picture"_s)}});
        const QString sentence = u"Mladý hřebec uteče ze stáda a vydá se za hlasem, který slyší jen on. "_s;
        show.basic->setLanguage(u"hr"_s);
        show.basic->setSubtitle1(u"Návrat ztraceného syna (12/26)"_s);
        show.basic->setInstantDescription1(sentence.repeated(3));
        show.basic->setPreviouslyShown(true);
        show.extra->episodeDescription = sentence;
        show.extra->directedBy = u"Marie Nováková-Dvořáková\nJan Svoboda"_s;
        show.extra->roles = QString();
        for (int number = 1; number <= 12; ++number) {
            *show.extra->roles += u"Josefina Hlaváčková (kapitánka Nejdelší plavby %1)\n"_s.arg(number);
        }
        show.extra->description = sentence.repeated(6);
        show.extra->trailerURL = QUrl(u"http://127.0.0.1/trailer"_s);
        show.extra->imdbURL = QUrl(u"http://127.0.0.1/title"_s);
        QImage image(1280, 720, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        world.environment->pictureCache.insert(show.pictures.first(), image);
        stack().push(std::make_shared<DetailViewController>(world.environment, ShowItem(std::move(show)),
                                                            u"Kino Večer"_s));
    }
    void presentPlayer() {
        const auto player = std::make_shared<PlayerViewController>(
            world.environment, players, QUrl(u"http://127.0.0.1/kino"_s), PlayerSettings{},
            PlayerViewController::Events{[](const QString&) {}, [] {}, [](const QUrl&) {}, [] {}});
        world.tabs->presentCover(player);
        player->play();
        players.last().report(MediaStatus::Ready);
    }
    void presentPictures(int count) {
        world.tabs->presentCover(std::make_shared<ScreenShotViewController>(
            world.pictures, std::vector<QUrl>(std::size_t(count), QUrl(u"http://127.0.0.1/p"_s)), [] {}));
        settle();
        ASSERT_FALSE(world.pictures.large.empty());
        QImage image(640, 360, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        world.pictures.large.back().second.post(world.queues.mainQueue(), image);
    }

    /// A row's title, of the kinds on the screens of sources.
    void tapRow(const QString& title) {
        for (const Section& section : top().table().sections()) {
            for (const Row& row : section.rows) {
                const auto* text = std::get_if<TextRow>(&row.content);
                const auto* button = std::get_if<ButtonRow>(&row.content);
                if ((text && text->title == title) || (button && button->title == title)) {
                    top().sendRowEvent(RowId(row.id), Tapped{});
                    proceed();
                    return;
                }
            }
        }
        ADD_FAILURE() << "no row " << title.toStdString();
    }
    void enterAddress() {
        send(RowKind::Input, TextEdited{u"https://feeds.television.example/guide.xml.gz"_s, true, true});
    }
    void answer(const SourceProposal& proposal) {
        sources.answer(proposal);
        proceed();
    }
    SourceProposal feed() const {
        std::vector<PreviewChannel> channels;
        for (int number = 0; number < 30; ++number) {
            channels.push_back(
                previewChannel(u"%1. program pro celou rodinu"_s.arg(number), u"cs"_s, number % 7));
        }
        SourceProposal proposal = feedProposal(channels, world.clock.now());
        proposal.preview.warnings = {SourceWarning::Poor, SourceWarning::Over, SourceWarning::Shifted,
                                     SourceWarning::Repaired};
        proposal.preview.languages = {{u"cs"_s, 20}, {u"sk"_s, 5}, {QString(), 5}};
        return proposal;
    }
    /// A source with everything that can be said about one.
    void addFailingSource() {
        OwnSource source;
        source.id = OwnSourceId({9});
        source.kind = OwnSourceKind::Playlist;
        source.name = u"Televize z obývacího pokoje"_s;
        source.address = u"https://lists.television.example/a/very/long/path/to/the/playlist.m3u8"_s;
        source.hasSecret = true;
        source.channels = {{.key = u"a"_s, .title = u"0. program pro celou rodinu"_s, .language = u"cs"_s}};
        sources.list.push_back(source);
        SourceStatus& status = sources.states[source.id];
        status.result = SourceResult::Poor;
        status.lastTry = status.lastSuccess = status.newestShow = world.clock.now();
        status.nextTry = world.clock.now() + 12h;
        status.channels = 193;
        status.channelsWithShows = 3;
        status.shows = 1234;
        status.unpackedBytes = 8'300'000;
        status.keptBack = status.missing = {u"0. program pro celou rodinu"_s, u"1. program"_s};
        status.output = u"tv_grab_x: using config filename\ntv_grab_x: 12 errors"_s;
        world.broadcast->ownSourcesChanged();
    }

    /// The button of the bar with the title.
    void pressBarButton(const QString& title) {
        const auto& buttons = top().rightBarButtons();
        const auto button = std::ranges::find(buttons, title, &BarButton::title);
        ASSERT_NE(button, buttons.end()) << title.toStdString();
        top().pressRightBarButton(static_cast<std::size_t>(button - buttons.begin()));
        proceed();
    }
    /// Of a favourite with an alarm, and with everything that can be said about one.
    void pushFavourite() {
        const QString title = u"Příliš žluťoučký kůň a jeho podivuhodná cesta kolem světa"_s;
        world.favorites.titles << title;
        explanations.alarm = {ShowAlarmReason::HasByRule, 10, title};
        pushShow();
        proceed();
    }
    void fillJournal() {
        const Moment now = world.clock.now();
        std::vector<JournalEntry> entries;
        for (int deed = 0; deed <= kLastAlarmDeed; ++deed) {
            for (int reason = 0; reason <= kLastAlarmReason; ++reason) {
                entries.push_back({.at = now - std::chrono::hours(70 - 7 * deed - reason % 7),
                                   .deed = static_cast<AlarmDeed>(deed),
                                   .reason = static_cast<AlarmReason>(reason),
                                   .title = u"Příliš žluťoučký kůň a jeho podivuhodná cesta"_s,
                                   .channel = u"Kino Večer"_s,
                                   .oldStart = now + std::chrono::hours(2),
                                   .newStart = now + std::chrono::hours(26),
                                   .rule = u"Příliš žluťoučký kůň a jeho podivuhodná cesta"_s,
                                   .previouslyShown = false,
                                   .message = u"The server refused the event: 507 Insufficient Storage"_s});
            }
        }
        explanations.entries = std::make_shared<const std::vector<JournalEntry>>(std::move(entries));
    }

    void check() {
        for (const QQuickItem* list : lists()) {
            QObject* order = list->findChild<QObject*>(u"readingOrder"_s);
            ASSERT_TRUE(order);
            if (!order->property("always").toBool()) {
                order->setProperty("always", true);
                QMetaObject::invokeMethod(order, "rowPlaced");
            }
        }
        settle();
        expectTextsFit("the top");
        expectNamesInOrder();
        // A list has items only for what is near its window.
        const QQuickItem* list = rows();
        if (!list || !list->isEnabled()) {
            return;
        }
        const double top = list->property("contentY").toDouble();
        const auto end = [list] {
            return list->property("originY").toDouble() + list->property("contentHeight").toDouble() -
                   list->height();
        };
        for (double y = top; y < end();) {
            y = std::min(y + list->height() * 0.9, end());
            scrollTo(y);
            expectTextsFit("further down");
        }
        scrollTo(top);
    }

    GalleryPictures pictures;
    FakeMediaPlayers players;
    ScreenWorld world;
    WorldSources sources{world.queues.mainQueue()};
    WorldCalendars calendars{world.queues.mainQueue()};
    WorldExplanations explanations{world.queues.mainQueue()};
    WorldUserData userData{world.queues.mainQueue()};
    WorldSharedPlace sharedPlace{world.queues.mainQueue()};
    const KnownFeeds knownFeeds{{{u"CZ"_s,
                                  {{u"television"_s, u"CZ1"_s, u"https://x.example/1"_s, 6'000'000, 533, {}},
                                   {u"others"_s, {}, u"https://x.example/2"_s, 0, 0, QDate(2026, 9, 28)}}},
                                 {u"SK"_s, {{u"others"_s, {}, u"https://x.example/3"_s, 0, 0, {}}}}}};
    ObjectId kino{ObjectId::Bytes{}};
    NetworkActivity activity{world.queues, [](bool) {}};

  private:
    int rowOf(RowKind kind) const {
        const Table& table = top().table();
        for (int row = 0; row < table.rowCount(); ++row) {
            if (table.rowAt(row).kind() == kind) {
                return row;
            }
        }
        ADD_FAILURE() << "no such row";
        return 0;
    }
    void expectTextsFit(const char* where) const {
        const QStringList wrong = misfits(*quickWindow->contentItem());
        EXPECT_TRUE(wrong.isEmpty()) << where << ":\n" << wrong.join(u'\n').toStdString();
    }
    /// The names of the rows that have an item, in the order of the table.
    static QStringList namesOfRows(QQuickItem* list) {
        QStringList names;
        for (int index = 0; index < list->property("count").toInt(); ++index) {
            QQuickItem* row = nullptr;
            QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, row), Q_ARG(int, index));
            const auto* body = row ? row->property("body").value<QQuickItem*>() : nullptr;
            if (!body || !row->isVisible() || body->height() == 0) {
                continue;
            }
            for (const QQuickItem* surface : body->childItems()) {
                if (surface->metaObject()->indexOfProperty("selectable") >= 0) {
                    names
                        << QQmlProperty::read(surface, u"Accessible.name"_s, qmlContext(surface)).toString();
                }
            }
        }
        return names;
    }
    void expectNamesInOrder() const {
        const QList<AccessibleItem> items = accessibleItems(*quickWindow);
        const QStringList nameless = namelessItems(items);
        EXPECT_TRUE(nameless.isEmpty()) << nameless.join(u'\n').toStdString();
        QStringList read;
        for (const AccessibleItem& item : items) {
            read << item.name;
        }
        for (QQuickItem* list : lists()) {
            qsizetype at = 0;
            for (const QString& name : namesOfRows(list)) {
                const qsizetype found = read.indexOf(name, at);
                EXPECT_GE(found, 0) << name.toStdString() << " is not read after "
                                    << (at > 0 ? read.at(at - 1) : QString()).toStdString();
                at = found < 0 ? at : found + 1;
            }
        }
    }
};

} // namespace guide::test
