#pragma once

#include "alarms/AlarmOperations.h"
#include "alarms/AlarmSynchroniser.h"
#include "alarms/FavoriteOperations.h"
#include "core/SelectionFile.h"
#include "fakes/FakeApplicationState.h"
#include "fakes/FakeBackgroundTasks.h"
#include "fakes/FakeDevice.h"
#include "fakes/FakeShowSources.h"
#include "fakes/ManualQueues.h"
#include "platform/memory/MemoryEventStore.h"
#include "platform/memory/MemoryKeyValueStore.h"
#include "platform/memory/MemoryUserDefaults.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <map>

namespace guide::test {

using namespace Qt::StringLiterals;

/// As in the application, but a run is not followed by another.
inline constexpr AlarmSafety kOneRun{.settles = false};

/// What remains of a guide when it ends or is killed.
struct AlarmProfile {
    const QTemporaryDir folder;
    MemoryUserDefaults userDefaults;
    MemoryKeyValueStore keyValueStore;
};

/// A guide with alarms whose calendar, rules and shows are written as lines of words:
///
///     rule News 10 [premieres|replays]     - in place of the minutes: no recurring alarm
///     show One News 12:00 [replay]         on channel One, half an hour long
///     event e1 One News 12:00 10,5 [...]   alarms in minutes before; "none"; further words: "of 11:00" has
///                                          the URL of that show, "url=TEXT" any other URL
///     silent 00:00 07:00 [across]
///     channel One loading|due|unselected   channels One to Three are selected and complete
///     refused One News 12:00
///
/// A time is one of 21 November 2026, UTC, where it is 10:00; "12:00+3" is three days later. Events are put
/// into the store by apply(), or by addElsewhere.
class AlarmWorld : ShowCounters {
  public:
    static constexpr int kChannels = 3;

    explicit AlarmWorld(EventStore& ownStore, std::optional<EventCalendar> calendar,
                        AlarmSafety safety = kOneRun,
                        std::shared_ptr<AlarmProfile> profile = std::make_shared<AlarmProfile>())
        : store(ownStore)
        , m_calendar(std::move(calendar))
        , m_profile(std::move(profile)) {
        device.zone = QTimeZone("UTC");
        for (int i = 0; i < kChannels; ++i) {
            m_catalogueChannels.push_back(
                {.id = channelId(i), .title = channelName(i), .language = {}, .region = {}});
        }
        catalogue.replace(CatalogueSnapshot(m_catalogueChannels));
        channels.setSelected({channelId(0), channelId(1), channelId(2)});
        if (m_calendar) {
            userDefaults.setString(u"selectedCalendar"_s,
                                   m_calendar->title + u':' + m_calendar->source + u':');
        }
        alarmCalendar =
            AlarmCalendar::make({.clock = clock,
                                 .device = device,
                                 .folders = folders,
                                 .queues = queues,
                                 .backgroundTasks = tasks,
                                 .applicationState = state,
                                 .userDefaults = userDefaults,
                                 .keyValueStore = keyValueStore,
                                 .eventStore = store,
                                 .catalogue = catalogue,
                                 .channels = channels,
                                 .shows = rules,
                                 .listings = listings,
                                 .counters = *this,
                                 .scheme = u"guide"_s,
                                 .automaticUpdateInterval = [] { return std::chrono::hours(24); },
                                 .notificationsSynched = [this] { ++notifications; },
                                 .updateBadge = [this] { ++badges; },
                                 .runEnded = [this](const AlarmRunResult& ended) { runs.push_back(ended); },
                                 .safety = safety});
        alarms = std::make_unique<AlarmSynchroniser>(alarmCalendar);
        operations = std::make_unique<AlarmOperations>(alarmCalendar, *alarms);
        favorites = std::make_unique<FavoriteOperations>(FavoriteOperationsEnvironment{
            clock, queues.mainQueue(), rules, *operations, *alarms, *this, [] {}});
        queues.runAll();
        for (int i = 0; i < kChannels; ++i) {
            channels.channelWithChannelId(channelId(i))->setTimeLoaded(clock.now());
        }
    }
    ~AlarmWorld() override { queues.shutDown(); }

    // ---- what is given

    void give(const QString& lines) {
        std::vector<Favorite> given;
        std::unordered_map<ObjectId, ShowItems> lists;
        for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts)) {
            const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
            const QString kind = words.value(0);
            if (kind == "rule"_L1) {
                given.push_back(rule(words));
            } else if (kind == "show"_L1) {
                const auto entry = show(words);
                shows.push_back(entry);
                lists[entry->channel()].emplace_back(entry);
            } else if (kind == "event"_L1) {
                add(words);
            } else if (kind == "silent"_L1) {
                setSilentHoursEnabled(keyValueStore, true);
                setSilentHoursFrom(keyValueStore, time(words.value(1)));
                setSilentHoursTo(keyValueStore, time(words.value(2)));
                setSilentHoursAcrossMidnight(keyValueStore, words.contains(u"across"_s));
            } else if (kind == "channel"_L1) {
                setChannel(channelNamed(words.value(1)), words.value(2));
            } else if (kind == "refused"_L1) {
                alarmCalendar->refused().refuse(
                    showDigest(channelNamed(words.value(1)), time(words.value(3)), words.value(2)),
                    time(words.value(3)) + std::chrono::hours(1), clock.now());
            } else {
                ADD_FAILURE() << "unusable line: " << line.toStdString();
            }
        }
        if (!given.empty()) {
            rules.setFavorites(given);
        }
        setShows(std::move(lists));
    }

    /// Replaces the lists of the channels.
    void setShows(std::unordered_map<ObjectId, ShowItems> lists) {
        std::unordered_map<ObjectId, ShowList> sorted;
        for (auto& [channel, list] : lists) {
            std::ranges::stable_sort(list, {},
                                     [](const ShowItem& item) { return *item.entry()->dateTime(); });
            sorted.emplace(channel, std::make_shared<const ShowItems>(std::move(list)));
        }
        listings.storeLists(sorted);
        queues.runAll();
    }
    void setShows(const QStringList& lines) {
        std::unordered_map<ObjectId, ShowItems> lists{
            {channelId(0), {}}, {channelId(1), {}}, {channelId(2), {}}};
        shows.clear();
        for (const QString& line : lines) {
            shows.push_back(show((u"show "_s + line).split(u' ')));
            lists[shows.back()->channel()].emplace_back(shows.back());
        }
        setShows(std::move(lists));
    }

    static Moment time(const QString& text) {
        static const QRegularExpression kTime(u"^(\\d+):(\\d+)(?::(\\d+))?([+-]\\d+)?$"_s);
        const auto match = kTime.match(text);
        EXPECT_TRUE(match.hasMatch()) << text.toStdString();
        return kMidnight + std::chrono::hours(match.captured(1).toInt()) +
               std::chrono::minutes(match.captured(2).toInt()) +
               std::chrono::seconds(match.captured(3).toInt()) + std::chrono::days(match.captured(4).toInt());
    }
    static ObjectId channelId(int index) {
        return ObjectId::fromHex(u"58f4ded60befe78cb336000%1"_s.arg(index + 1));
    }
    static ObjectId channelNamed(const QString& name) {
        return channelId(static_cast<int>(std::max<qsizetype>(kNames.indexOf(name), 0)));
    }
    static QString channelName(int index) { return kNames[index]; }

    /// A full run.
    void sync() {
        alarms->resynchronize();
        queues.runAll();
    }

    // ---- what came of it

    /// "e1 One News 12:00 10", the guide's and other events, by start, title and text.
    QString calendar() const {
        QStringList lines;
        if (m_calendar) {
            EventRange range = store.eventsBetween(kMidnight - std::chrono::days(1000),
                                                   kMidnight + std::chrono::days(1000), *m_calendar);
            EXPECT_FALSE(range.fault);
            std::ranges::sort(range.events, {}, [this](const CalendarEvent& event) {
                return std::tuple(event.startDate, event.title, text(event));
            });
            for (const CalendarEvent& event : range.events) {
                lines << text(event);
            }
        }
        return lines.join(u'\n');
    }
    /// "Moved ShowMoved News 12:00>13:00"
    QString journal() const {
        QStringList lines;
        const JournalEntries entries = alarmCalendar->journal().entries();
        for (const JournalEntry& entry : *entries) {
            static constexpr std::array kDeeds{"Made",     "Moved",      "Removed", "NotMade",
                                               "NotMoved", "NotRemoved", "HeldBack"};
            static constexpr std::array kReasons{"Rule",      "RuleAgain",     "User",         "ShowMoved",
                                                 "NotListed", "SilentHours",   "AlarmRemoved", "NoChannel",
                                                 "Duplicate", "RecurringEnded"};
            QStringList times;
            for (const auto& moment : {entry.oldStart, entry.newStart}) {
                if (moment) {
                    times << textOf(*moment);
                }
            }
            lines << u"%1 %2 %3 %4"_s.arg(QLatin1StringView(kDeeds.at(std::size_t(entry.deed))),
                                          QLatin1StringView(kReasons.at(std::size_t(entry.reason))),
                                          entry.title, times.join(u'>'));
        }
        return lines.join(u'\n');
    }
    QString text(const CalendarEvent& event) const {
        const auto name = m_names.find(event.identifier);
        QStringList leads;
        for (const auto offset : event.alarmOffsets) {
            leads << QString::number(-offset.count() / 60);
        }
        QString line =
            u"%1 %2 %3 %4 %5"_s.arg(name == m_names.end() ? u"new"_s : name->second,
                                    event.location.isEmpty() ? u"-"_s : event.location, event.title,
                                    textOf(event.startDate), leads.isEmpty() ? u"none"_s : leads.join(u','));
        // An event whose URL is not that of its own show.
        const auto own =
            urlOfDigest(showDigest(channelNamed(event.location), event.startDate, event.title), u"guide"_s);
        return event.url == own ? line : line + u" *"_s;
    }
    static QString textOf(Moment moment) {
        const auto days = std::chrono::floor<std::chrono::days>(moment - kMidnight);
        const auto minutes = std::chrono::floor<std::chrono::minutes>(moment - kMidnight - days).count();
        const QString clockTime =
            u"%1:%2"_s.arg(minutes / 60, 2, 10, QChar(u'0')).arg(minutes % 60, 2, 10, QChar(u'0'));
        return days.count() == 0
                   ? clockTime
                   : clockTime + (days.count() > 0 ? u"+"_s : QString()) + QString::number(days.count());
    }
    /// The lead time that the guide shows for the show; -1 for none.
    int lead(std::size_t show) const {
        return alarms->snapshot()->alarmedEntry(*shows.at(show)).value_or(-1);
    }

    static constexpr Moment kMidnight = std::chrono::sys_days(std::chrono::year(2026) / 11 / 21);

    EventStore& store;
    ManualClock clock{kMidnight + std::chrono::hours(10)};
    ManualQueues queues{clock};

  private:
    void incrementCounterByAmount(int amount, const QString& title) override {
        counted << u"%1 %2"_s.arg(title).arg(amount);
    }
    void countAddedFavorite(const QString& title) override { counted << title + u" added"_s; }
    void countRemovedFavorite(const QString& title) override { counted << title + u" removed"_s; }

    static Favorite rule(const QStringList& words) {
        const std::optional<int> minutes =
            words.value(2) == "-"_L1 ? std::nullopt : std::optional(words.value(2).toInt());
        const std::optional<bool> type = words.contains(u"replays"_s)     ? std::optional(true)
                                         : words.contains(u"premieres"_s) ? std::optional(false)
                                                                          : std::nullopt;
        return {words.value(1), minutes, kMidnight, type};
    }
    std::shared_ptr<const TVEntry> show(const QStringList& words) const {
        const auto entry = std::make_shared<TVEntry>(alphabet);
        entry->setChannel(channelNamed(words.value(1)));
        entry->setIdentificator(words.value(2));
        entry->setDateTime(time(words.value(3)));
        entry->setEndDateTime(time(words.value(3)) + std::chrono::minutes(30));
        entry->setPreviouslyShown(words.contains(u"replay"_s));
        return entry;
    }
    void add(const QStringList& words) {
        CalendarEvent event;
        event.calendar = m_calendar->identifier;
        event.location = words.value(2) == "-"_L1 ? QString() : words.value(2);
        event.title = words.value(3);
        event.startDate = time(words.value(4));
        event.endDate = event.startDate + std::chrono::minutes(30);
        if (words.value(5) != "none"_L1) {
            for (const QString& lead : words.value(5).split(u',')) {
                event.alarmOffsets.push_back(std::chrono::minutes(-lead.toInt()));
            }
        }
        const qsizetype of = words.indexOf(u"of"_s);
        const Moment shown = of < 0 ? event.startDate : time(words.value(of + 1));
        event.url = urlOfDigest(showDigest(channelNamed(event.location), shown, event.title), u"guide"_s);
        if (words.last().startsWith("url="_L1)) {
            event.url = QUrl(words.last().mid(4));
        }
        if (addElsewhere) {
            m_names.emplace(addElsewhere(words.value(1), event), words.value(1));
            return;
        }
        const std::vector<EventOutcome> outcomes = store.apply({SaveEvent{event}});
        ASSERT_TRUE(outcomes.at(0).isDone()) << outcomes.at(0).message.toStdString();
        m_names.emplace(outcomes.at(0).identifier, words.value(1));
    }
    void setChannel(const ObjectId& id, const QString& what) {
        if (what == "unselected"_L1) {
            std::vector<ObjectId> selected = channels.selected();
            std::erase(selected, id);
            channels.setSelected(selected);
        } else if (what == "loading"_L1) {
            channels.channelWithChannelId(id)->setLoading(true);
        } else {
            channels.channelWithChannelId(id)->requireReload();
        }
    }

    static inline const QStringList kNames{u"One"_s, u"Two"_s, u"Three"_s};
    const std::optional<EventCalendar> m_calendar;
    const std::shared_ptr<AlarmProfile> m_profile;
    std::vector<CatalogueChannel> m_catalogueChannels;
    std::map<QString, QString> m_names;

  public:
    const Folders folders{m_profile->folder.path(), m_profile->folder.path(), {}, {}, {}, {}};
    FakeDevice device;
    FakeBackgroundTasks tasks;
    FakeApplicationState state;
    FakePopularShows popular;
    CountingListingsObserver observer;
    MemoryUserDefaults& userDefaults = m_profile->userDefaults;
    MemoryKeyValueStore& keyValueStore = m_profile->keyValueStore;
    const Alphabet alphabet;
    Catalogue catalogue;
    TVChannels channels{folders, keyValueStore, queues, catalogue};
    TVShows rules{folders, keyValueStore, queues};
    TVListings listings{{clock, device, folders, queues, tasks, state, channels, alphabet, rules, popular,
                         observer, u"guide"_s, [] { return 4; }}};
    std::shared_ptr<AlarmCalendar> alarmCalendar;
    std::unique_ptr<AlarmSynchroniser> alarms;
    std::unique_ptr<AlarmOperations> operations;
    std::unique_ptr<FavoriteOperations> favorites;
    /// In the order of the lines.
    std::vector<std::shared_ptr<const TVEntry>> shows;
    QStringList counted;
    int notifications = 0;
    int badges = 0;
    std::vector<AlarmRunResult> runs;
    /// Lets another program add the events that are given, among them those that the guide may not write;
    /// takes the name of an event and returns its identifier.
    std::function<QString(const QString& name, const CalendarEvent& event)> addElsewhere;
};

/// The same on a calendar in memory.
struct MemoryAlarmWorld {
    explicit MemoryAlarmWorld(const QString& lines = {}, AlarmSafety safety = kOneRun)
        : world(events,
                events.addCalendar({.identifier = {},
                                    .title = u"TV"_s,
                                    .source = u"Local"_s,
                                    .allowsContentModifications = true}),
                safety) {
        world.give(lines);
    }
    AlarmWorld* operator->() { return &world; }

    MemoryEventStore events;
    AlarmWorld world;
};

} // namespace guide::test
