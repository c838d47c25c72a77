#pragma once

#include "fakes/ManualQueues.h"
#include "fakes/StoreFixture.h"
#include "platform/memory/ManualClock.h"
#include "platform/memory/MemoryClipboard.h"
#include "screens/shell/GuideTabs.h"
#include "screens/shell/ScreenBroadcast.h"
#include "screens/shell/ScreenEnvironment.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <map>

namespace guide::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// "# header" for each section that has one, and a line for each row.
inline QStringList linesOf(const Table& table) {
    QStringList lines;
    for (const Section& section : table.sections()) {
        if (!section.header.isEmpty()) {
            lines << u"# "_s + section.header;
        }
        for (const Row& row : section.rows) {
            if (const auto* show = std::get_if<ShowRow>(&row.content)) {
                lines << show->startTime + u' ' + show->title;
            } else if (const auto* channel = std::get_if<ChannelRow>(&row.content)) {
                lines << channel->title;
            } else if (const auto* text = std::get_if<TextRow>(&row.content)) {
                lines << text->title;
            } else if (const auto* tile = std::get_if<TileRow>(&row.content)) {
                lines << tile->title + u": "_s + tile->detail;
            } else if (const auto* button = std::get_if<ButtonRow>(&row.content)) {
                lines << u'[' + button->title + u']';
            }
        }
    }
    return lines;
}
inline const ShowRow& showAt(const Table& table, int row) {
    return std::get<ShowRow>(table.rowAt(row).content);
}
inline const ChannelRow& channelAt(const Table& table, int row) {
    return std::get<ChannelRow>(table.rowAt(row).content);
}

/// The first row of the kind with the title; null when there is none.
template <class Content>
const Row* rowTitled(const Table& table, const QString& title) {
    for (int row = 0; row < table.rowCount(); ++row) {
        const auto* content = std::get_if<Content>(&table.rowAt(row).content);
        if (content && content->title == title) {
            return &table.rowAt(row);
        }
    }
    return nullptr;
}
template <class Content>
const Content* contentTitled(const Table& table, const QString& title) {
    const Row* row = rowTitled<Content>(table, title);
    return row ? &std::get<Content>(row->content) : nullptr;
}

/// The settings that screens read, and a log of what they ask of the application.
struct WorldApp final : ScreenSettings,
                        ListingsUpdates,
                        AppNavigation,
                        AlarmSynchronisation,
                        AlarmActions,
                        FavoriteActions {
    void checkAndUpdateAllChannels() override { done << u"check"_s; }
    void updateByHand(const std::vector<ObjectId>& /*channels*/) override { done << u"check"_s; }
    void setSynchronized(bool synchronized) override { m_synchronized = synchronized; }
    bool isSynchronized() const override { return m_synchronized; }
    void syncAlarms() override { done << (m_synchronized ? u"sync"_s : u"alarms"_s); }
    bool isRunning() const override { return synchronising; }
    void commit() override {}
    bool hasCalendarAccess() const override { return calendarAccess; }
    void showPictures(const std::vector<QUrl>& urls) override { done << u"pictures %1"_s.arg(urls.size()); }
    void playURL(const QUrl& url) override { done << u"play "_s + QString::fromLatin1(url.toEncoded()); }
    void openWebPage(const QUrl& url, const QString& title) override {
        done << u"open %1 %2"_s.arg(QString::fromLatin1(url.toEncoded()), title);
    }
    void presentAlert(Alert alert) override { alerts.push_back(std::move(alert)); }
    void presentNotice(Notice notice) override { notices.push_back(std::move(notice)); }
    void openFolder(const QString& path) override { done << u"folder "_s + path; }
    void presentFileChooser(FileChooser chooser) override { fileChooser = std::move(chooser); }
    void selectTab(Symbol tab) override { done << u"tab %1"_s.arg(static_cast<int>(tab)); }
    void setAlarmForTitle(const QString& title, const ObjectId&, Moment, Moment, int minutes, bool,
                          bool) override {
        done << u"alarm %1 %2"_s.arg(title).arg(minutes);
    }
    void removeAlarmForTitle(const QString& title, const ObjectId&, Moment, bool, bool) override {
        done << u"no alarm "_s + title;
    }
    void setAlarmForTitle(const QString& title, int minutes, std::optional<bool> previouslyShown,
                          bool) override {
        const QString kind = !previouslyShown ? u""_s : *previouslyShown ? u" replays"_s : u" premieres"_s;
        done << u"alarms %1 %2"_s.arg(title).arg(minutes) + kind;
    }
    void removeAlarmForTitle(const QString& title, bool, bool) override { done << u"no alarms "_s + title; }
    void removeAlarmsForTitles(const QStringList&, bool) override {}
    int lastAlarmMinutes() const override { return 0; }
    void addFavorite(const QString& title) override {
        done << u"add "_s + title;
        favoritesChanged({title}, {});
    }
    void removeFavorites(const QStringList& titles) override {
        done << u"remove "_s + titles.join(u", "_s);
        favoritesChanged({}, titles);
    }
    void restoreFavorites(const FavoritesSnapshot&, const QStringList& titles) override {
        done << u"restore "_s + titles.join(u", "_s);
        favoritesChanged(titles, {});
    }
    bool noteAlarmSet(const QString& title) override {
        done << u"note "_s + title;
        return true;
    }
    bool imagesEnabled() const override { return images; }
    void setImagesEnabled(bool enabled) override { images = enabled; }
    bool showBgImages() const override { return largeImages; }
    void setShowBgImages(bool show) override { largeImages = show; }
    bool alwaysMaintainsAspectRatio() const override { return wholeImages; }
    void setAlwaysMaintainsAspectRatio(bool maintains) override { wholeImages = maintains; }
    bool colorizedShows() const override { return colorized; }
    void setColorizedShows(bool own) override { colorized = own; }
    int showCount() const override { return shows; }
    void setShowCount(int count) override { shows = count; }
    std::chrono::seconds automaticUpdateInterval() const override { return interval; }
    void setAutomaticUpdateInterval(std::chrono::seconds own) override { interval = own; }

    /// The calls, in order.
    QStringList done;
    /// Applies a change that the user has made.
    std::function<void(const QStringList& added, const QStringList& removed)> favoritesChanged =
        [](const QStringList&, const QStringList&) {};
    /// The actions of a show row.
    std::function<std::vector<RowAction>(const TVEntry&)> swipeActions = [](const TVEntry&) {
        return std::vector<RowAction>();
    };
    std::vector<Alert> alerts;
    std::vector<Notice> notices;
    FileChooser fileChooser;
    bool images = true;
    bool largeImages = true;
    bool wholeImages = false;
    int shows = 4;
    std::chrono::seconds interval = 24h;
    bool calendarAccess = false;
    bool colorized = true;
    bool synchronising = false;

  private:
    bool m_synchronized = true;
};

/// Keeps the requests, so that a test can answer them.
struct WorldPictures final : ShowPictures {
    void asyncLoadOfShowImageAtURL(const QUrl& url, MainBlock<QImage> mainBlock) override {
        pictures.emplace(url.toString(), std::move(mainBlock));
    }
    void imageAtURL(const QUrl& url, const QSizeF&, MainBlock<QImage> mainBlock) override {
        large.emplace_back(url.toString(), std::move(mainBlock));
    }
    void loadDetailsOfShows(ShowItems shows, SetShowImage ownSetShowImage,
                            MainBlock<ShowItems, std::vector<QImage>> mainBlock) override {
        setShowImage = std::move(ownSetShowImage);
        details.emplace_back(std::move(shows), std::move(mainBlock));
    }
    std::vector<std::pair<QString, MainBlock<QImage>>> large;
    SetShowImage setShowImage;
    std::map<QString, MainBlock<QImage>> pictures;
    std::vector<std::pair<ShowItems, MainBlock<ShowItems, std::vector<QImage>>>> details;
};

/// Keeps the requests, so that a test can answer them.
struct WorldArchive final : RecordedShowsSource {
    void recordedShowsWithTitle(const QString& title,
                                MainBlock<std::vector<RecordedShow>> mainBlock) override {
        requests.emplace_back(title, std::move(mainBlock));
    }
    std::vector<std::pair<QString, MainBlock<std::vector<RecordedShow>>>> requests;
};

/// Answers with the shows that the test sets.
struct WorldAlerts final : AlertsSchedule {
    explicit WorldAlerts(DispatchQueue& ownMainQueue)
        : mainQueue(ownMainQueue) {}
    void alertsScheduleWithPriority(QueuePriority priority, MainBlock<ShowSpan> mainBlock) override {
        if (schedule) {
            schedule->alertsScheduleWithPriority(priority, std::move(mainBlock));
        } else {
            mainBlock.post(mainQueue, shows);
        }
    }
    DispatchQueue& mainQueue;
    ShowSpan shows;
    /// Takes the place of the shows.
    AlertsSchedule* schedule = nullptr;
};

/// Keeps the latest questions, so that a test can answer them.
struct WorldLookup final : ShowLookup {
    void netDescriptionFor(const std::shared_ptr<const TVEntry>& entry,
                           MainBlock<ShowItem> mainBlock) override {
        descriptions.emplace_back(entry, std::move(mainBlock));
    }
    void imdbLink(const ShowItem& show, MainBlock<IMDbLink> mainBlock) override {
        links.emplace_back(show, std::move(mainBlock));
    }
    std::vector<std::pair<std::shared_ptr<const TVEntry>, MainBlock<ShowItem>>> descriptions;
    std::vector<std::pair<ShowItem, MainBlock<IMDbLink>>> links;
};

struct WorldShow {
    /// Minutes after `begin`.
    int from = 0;
    int until = 0;
    QString title;
    QString details = {};
    PictureURLs pictures = {};
    TVListingsCategory categories = 0;
    QString description = {};
    std::shared_ptr<const ShowFacts> facts = {};
};

/// Every fact that a feed can tell of a show.
inline std::shared_ptr<const ShowFacts> everyFact(const QString& originalTitle) {
    ShowFacts facts;
    facts.originalTitle = originalTitle;
    facts.episode = {2, 5, 10, 1, 2};
    facts.year = 2016;
    facts.countries = {u"CZ"_s, u"FR"_s};
    facts.ageRating = u"12"_s;
    facts.starRating = StarRating{7.3, 10};
    facts.newness = Newness::New;
    return std::make_shared<const ShowFacts>(std::move(facts));
}

/// A temporary folder, a manual clock and manual queues.
struct ManualSurroundings {
    const QTemporaryDir folder;
    ManualClock clock;
    ManualQueues queues{clock};
};

/// The screens of a guide on manual queues, over a real store in a temporary folder.
class ScreenWorld : public ManualSurroundings, public StoreFixture {
  public:
    using ManualSurroundings::clock;
    using ManualSurroundings::queues;

    explicit ScreenWorld(UserInterfaceIdiom idiom = UserInterfaceIdiom::Phone,
                         const QString& iconFolder = QString())
        : StoreFixture(ManualSurroundings::clock, ManualSurroundings::queues, folder.path()) {
        device.idiom = idiom;
        m_iconFolder = iconFolder;
    }
    ~ScreenWorld() {
        tabs.reset();
        queues.runAll();
    }

    static ObjectId channelId(int number) { return channelNumbered(number); }

    /// To be called before start().
    ObjectId addChannel(const QString& title, bool select = true, std::optional<QString> stream = {}) {
        const ObjectId id = channelId(++m_channelCount);
        StoreFixture::addChannel({id, title, u"cs"_s, u"x"_s, title, {}, std::move(stream)}, select);
        return id;
    }

    void start() {
        icons = std::make_unique<TVStationIcons>(m_iconFolder.isEmpty() ? folder.path() : m_iconFolder, 2);
        open();
        const auto swipeActions = [this](const std::shared_ptr<const TVEntry>& entry, const auto&) {
            return app.swipeActions(*entry);
        };
        environment = std::make_shared<const ScreenEnvironment>(
            ScreenEnvironment{clock,
                              device,
                              queues.mainQueue(),
                              queues,
                              *loadQueue,
                              state,
                              *listings,
                              *channels,
                              *icons,
                              catalogue,
                              alphabet,
                              favorites,
                              alarms,
                              app,
                              alerts,
                              app,
                              app,
                              archive,
                              popular,
                              pictures,
                              pictureCache,
                              app,
                              app,
                              app,
                              showLookup,
                              clipboard,
                              u"guide"_s,
                              userDefaults,
                              keyValueStore,
                              swipeActions,
                              [this](const ObjectId& channel) { return sources[channel]; },
                              ownSources,
                              knownFeeds,
                              calendarActions,
                              alarmExplanations,
                              alarmRinging,
                              backgroundUpdates,
                              userData,
                              sharedPlace});
        tabs = makeGuideTabs(environment);
        broadcast = std::make_unique<ScreenBroadcast>(*tabs, state);
        queues.runAll();
    }

    ExtendedTVEntry entry(const ObjectId& channel, const WorldShow& show) const {
        auto basic = std::make_shared<TVEntry>(alphabet);
        basic->setChannel(channel);
        basic->setDateTime(begin + std::chrono::minutes(show.from));
        basic->setEndDateTime(begin + std::chrono::minutes(show.until));
        basic->setIdentificator(show.title);
        basic->setFacts(show.facts);
        if (!show.details.isEmpty()) {
            basic->setInstantDetails1(show.details);
        }
        auto extra = show.pictures.isEmpty() && show.description.isEmpty()
                         ? nullptr
                         : std::make_shared<TVEntrySupplementalData>();
        if (!show.description.isEmpty()) {
            extra->description = show.description;
        }
        return {std::move(basic), show.categories, std::move(extra), show.pictures};
    }
    void setAlarm(const ObjectId& channel, const WorldShow& show) {
        alarms.events[*entry(channel, show).basic->digest()] = 0;
    }
    ShowSpan list(const ObjectId& channel, const std::vector<WorldShow>& shows) const {
        ShowItems items;
        for (const WorldShow& show : shows) {
            items.emplace_back(entry(channel, show));
        }
        return ShowSpan(std::move(items));
    }
    /// Stores a freshly read list and offers it to the screens, as the update cycle does.
    void load(const ObjectId& channel, const std::vector<WorldShow>& shows) {
        ParsedLists parsed;
        for (const WorldShow& show : shows) {
            parsed[channel].push_back(entry(channel, show));
        }
        const MergeResult merged = listings->merge({{channel, u"source"_s, u"cs"_s}}, std::move(parsed),
                                                   clock.now(), ListingsType::XMLTV);
        queues.runAll();
        TopShows top;
        for (const auto& [id, stored] : merged.lists) {
            top.emplace(id, ShowSpan(stored).prefix(static_cast<std::size_t>(showCount)));
        }
        broadcast->offerTopShows(top);
        queues.runAll();
    }

    /// Moves the clock and runs all queues.
    void wait(std::chrono::milliseconds time) {
        clock.advance(time);
        queues.runAll();
    }

    /// Sets the load failure and tells the screens, as the update cycle does.
    void fail(const ObjectId& channel, std::optional<LoadFailure> failure) {
        channels->channelWithChannelId(channel)->setLoadFailure(std::move(failure));
        broadcast->loadsEnded({channel});
    }

    /// Opens the window and runs all queues.
    void show() {
        tabs->makeVisible();
        queues.runAll();
    }

    /// To the row of the kind with the title.
    template <class Content>
    void send(TableViewController& screen, const QString& title, const RowEvent& event) {
        if (const Row* row = rowTitled<Content>(screen.table(), title)) {
            screen.sendRowEvent(row->id, event);
            queues.runAll();
        } else {
            ADD_FAILURE() << "no row " << title.toStdString();
        }
    }

    ViewController& top() const { return *tabs->selectedNavigationController().topViewController(); }

    const Moment begin = clock.now();
    FakeAlarms alarms;
    WorldPictures pictures;
    WorldLookup showLookup;
    MemoryClipboard clipboard;
    ShowPictureCache pictureCache;
    WorldApp app;
    WorldArchive archive;
    WorldAlerts alerts{queues.mainQueue()};
    /// To be set before start().
    SourceActions* ownSources = nullptr;
    const KnownFeeds* knownFeeds = nullptr;
    CalendarActions* calendarActions = nullptr;
    AlarmExplanations* alarmExplanations = nullptr;
    AlarmRinging* alarmRinging = nullptr;
    BackgroundUpdates* backgroundUpdates = nullptr;
    UserDataActions* userData = nullptr;
    SharedPlaceActions* sharedPlace = nullptr;
    /// The sources of the channels' schedules.
    std::map<ObjectId, QString> sources;
    std::shared_ptr<DispatchQueue> loadQueue = queues.makeQueue("vorel.tv.loadQueue", QueueKind::Serial);
    std::unique_ptr<TVStationIcons> icons;
    std::shared_ptr<const ScreenEnvironment> environment;
    std::unique_ptr<TabBarController> tabs;
    std::unique_ptr<ScreenBroadcast> broadcast;

  private:
    QString m_iconFolder;
    int m_channelCount = 0;
};

} // namespace guide::test
