// What a full run of the alarms costs beside the calendar's own work, and how long the list of alerts takes
// to open.
#include "GeneratedShows.h"
#include "alarms/AlarmSynchroniser.h"
#include "platform/memory/MemoryEventStore.h"
#include "screens/ScreenWorld.h"
#include "screens/compound/CompoundListingsViewController.h"

#include <QGuiApplication>
#include <QImage>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>

namespace guide::bench {
namespace {

using namespace std::chrono_literals;

constexpr int kChannels = 215;
constexpr int kTitles = 12'000;
constexpr std::size_t kRules = 1'000;
/// How many rules have this many broadcasts.
constexpr std::array<int, 5> kRulesByBroadcasts{0, 400, 300, 200, 100};
constexpr std::size_t kEvents = 2'000;
constexpr std::size_t kMoved = 300;
constexpr std::size_t kRounds = 21;
constexpr double kAtMostWalks = 3;
/// CPU time of a run, in milliseconds.
constexpr double kAllowed = 50;
constexpr double kAtMostLists = 2;

/// The CPU time of the process in milliseconds: what other programs do does not count.
double processTime() {
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

void require(bool isTrue, const char* what) {
    if (!isTrue) {
        std::fprintf(stderr, "%s\n", what);
        std::exit(1);
    }
}

/// Adds the time between its construction and its destruction.
class Timer {
  public:
    explicit Timer(double& sum)
        : m_sum(sum)
        , m_begin(processTime()) {}
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    ~Timer() { m_sum += processTime() - m_begin; }

  private:
    double& m_sum;
    const double m_begin;
};

/// Keeps the time that is spent in the calendar.
class TimedStore final : public EventStore {
  public:
    CalendarAccess access() override { return memory.access(); }
    void requestAccess(std::function<void(bool)> completion) override {
        memory.requestAccess(std::move(completion));
    }
    std::optional<std::vector<EventCalendar>> calendars() override { return memory.calendars(); }
    std::optional<EventCalendar> defaultCalendarForNewEvents() override {
        return memory.defaultCalendarForNewEvents();
    }
    std::optional<EventCalendar> createCalendar(const QString& title) override {
        return memory.createCalendar(title);
    }
    void refreshSources() override { memory.refreshSources(); }
    EventRange eventsBetween(Moment start, Moment end, const EventCalendar& calendar) override {
        const Timer timer(time);
        return memory.eventsBetween(start, end, calendar);
    }
    std::optional<CalendarEvent> eventWithIdentifier(const QString& identifier) override {
        const Timer timer(time);
        return memory.eventWithIdentifier(identifier);
    }
    std::vector<EventOutcome> apply(const std::vector<EventChange>& batch) override {
        const Timer timer(time);
        changes += batch.size();
        return memory.apply(batch);
    }
    void setCalendarsChanged(std::function<void()> changed) override {
        memory.setCalendarsChanged(std::move(changed));
    }
    QString name() const override { return memory.name(); }

    MemoryEventStore memory;
    double time = 0;
    std::size_t changes = 0;
};

class SilentCounters final : public ShowCounters {
  public:
    void incrementCounterByAmount(int, const QString&) override {}
    void countAddedFavorite(const QString&) override {}
    void countRemovedFavorite(const QString&) override {}
};

/// A guide with 60,200 shows, 1,000 rules and the 2,000 alarms of their broadcasts.
class Guide {
  public:
    Guide() {
        world.clock.set(kNow);
        world.device.zone = QTimeZone("Europe/Prague");
        // They refuse no broadcast.
        setSilentHoursEnabled(world.keyValueStore, true);
        setSilentHoursFrom(world.keyValueStore, kNow);
        setSilentHoursTo(world.keyValueStore, kNow + 1min);
        QImage icon(2, 2, QImage::Format_ARGB32);
        icon.fill(Qt::red);
        require(icon.save(world.folder.filePath(u"icon.png"_s)), "the icon cannot be written");
        for (int channel = 1; channel <= kChannels; ++channel) {
            world.StoreFixture::addChannel(
                {channelNumbered(channel), u"Channel %1"_s.arg(channel), u"cs"_s, u"x"_s, u"icon"_s, {}},
                true);
        }
        world.start();
        world.show();
        makeShows();
        makeRules();
        const EventCalendar calendar = store.memory.addCalendar(
            {.identifier = {}, .title = u"TV"_s, .source = u"Local"_s, .allowsContentModifications = true});
        store.memory.setDefaultCalendar(calendar.identifier);
        m_calendar = AlarmCalendar::make({.clock = world.clock,
                                          .device = world.device,
                                          .folders = world.folders,
                                          .queues = world.queues,
                                          .backgroundTasks = world.tasks,
                                          .applicationState = world.state,
                                          .userDefaults = world.userDefaults,
                                          .keyValueStore = world.keyValueStore,
                                          .eventStore = store,
                                          .catalogue = world.catalogue,
                                          .channels = *world.channels,
                                          .shows = m_rules,
                                          .listings = *world.listings,
                                          .counters = m_counters,
                                          .scheme = u"guide"_s,
                                          .automaticUpdateInterval = [] { return 24h; },
                                          .notificationsSynched = [] {},
                                          .updateBadge = [] {},
                                          .runEnded = {}});
        m_alarms = std::make_unique<AlarmSynchroniser>(m_calendar);
        load(false);
        runTime();
        require(store.memory.events().size() == kEvents, "there are not 2,000 alarms");
    }
    ~Guide() { world.queues.shutDown(); }

    /// All lists are new, and 300 favourites begin later, or not.
    void load(bool isDelayed) {
        std::unordered_map<ObjectId, ShowItems> items;
        for (const ExtendedTVEntry& show : m_shows) {
            auto entry = std::make_shared<TVEntry>(*show.basic);
            if (isDelayed && m_delayed.contains(show.basic.get())) {
                entry->setDateTime(*entry->dateTime() + 10min);
            }
            items[entry->channel()].emplace_back(std::move(entry), show.categories, show.extra,
                                                 show.pictures);
        }
        std::unordered_map<ObjectId, ShowList> lists;
        AllShows::Lists ordered(kChannels);
        for (int channel = 1; channel <= kChannels; ++channel) {
            auto list = std::make_shared<ShowItems>(std::move(items[channelNumbered(channel)]));
            std::ranges::stable_sort(*list, {},
                                     [](const ShowItem& show) { return *show.entry()->dateTime(); });
            lists.emplace(channelNumbered(channel), list);
            ordered[std::size_t(channel) - 1] = std::make_shared<const ChannelList>(std::move(list));
        }
        m_all = std::make_unique<const AllShows>(std::move(ordered), kNow);
        world.listings->storeLists(lists);
        // Both sides begin with the list of all shows.
        world.listings->favoritesScheduleWithBlock([](const ShowItems&) {});
        world.queues.runAll();
    }

    /// Of a full run, without the calendar.
    double runTime() {
        store.time = 0;
        store.changes = 0;
        m_alarms->setSynchronized(false);
        const double begin = processTime();
        m_alarms->syncAlarms();
        world.queues.runAll();
        return processTime() - begin - store.time;
    }

    /// Of one walk that looks each show's title up in the rules and each event's URL up in the shows.
    double walkTime(std::size_t expected) const {
        const std::vector<CalendarEvent> events = store.memory.events();
        const double begin = processTime();
        std::unordered_map<ShowDigest, const ShowItem*, ShowDigestHash> favorites;
        for (const AllShows::Show& show : m_all->shows()) {
            const TVEntry& entry = *show.item->entry();
            if (m_ruleTitles.contains(entry.title()->toLower())) {
                favorites.emplace(*entry.digest(), show.item);
            }
        }
        std::size_t found = 0;
        for (const CalendarEvent& event : events) {
            found += favorites.contains(*digestOfUrl(*event.url)) ? 1 : 0;
        }
        const double time = processTime() - begin;
        require(found == expected, "the walk found other shows than the run");
        return time;
    }

    /// Of opening the list of the 2,000 shows, with their alarms or as a guide without alarms does.
    double listTime(bool hasAlarms) {
        world.alarms.source = hasAlarms ? m_alarms.get() : nullptr;
        world.alerts.schedule = m_alarms.get();
        NavigationController& stack = world.tabs->selectedNavigationController();
        const double begin = processTime();
        const auto screen = std::make_shared<CompoundListingsViewController>(
            world.environment,
            hasAlarms ? CompoundListings(AlertListings{}) : CompoundListings(FavoriteListings{}));
        stack.push(screen);
        world.queues.runAll();
        const double time = processTime() - begin;
        require(screen->table().rowCount() == int(kEvents), "the list does not show the 2,000 shows");
        stack.pop();
        world.queues.runAll();
        return time;
    }

    test::ScreenWorld world;
    TimedStore store;

  private:
    void makeShows() {
        Words words(1);
        std::vector<QString> titles;
        for (int i = 0; i < kTitles; ++i) {
            titles.push_back(words.text(1 + int(words.below(5))));
        }
        for (int channel = 1; channel <= kChannels; ++channel) {
            for (ExtendedTVEntry& show : generatedShows(channel, words)) {
                // Some titles are broadcast every day.
                show.basic->setIdentificator(titles[words.below(words.below(4) == 0 ? 300 : kTitles)]);
                m_shows.push_back(std::move(show));
            }
        }
    }
    void makeRules() {
        std::map<QString, std::vector<const TVEntry*>> broadcasts;
        for (const ExtendedTVEntry& show : m_shows) {
            if (show.basic->dateTime() > kNow) {
                broadcasts[show.basic->lowercasedIdentificator()].push_back(show.basic.get());
            }
        }
        std::array<int, kRulesByBroadcasts.size()> left = kRulesByBroadcasts;
        std::vector<Favorite> rules;
        for (const auto& [title, of] : broadcasts) {
            if (of.size() >= left.size() || left[of.size()] == 0) {
                continue;
            }
            --left[of.size()];
            rules.push_back({*of.front()->identificator(), 10, kNow, {}});
            m_ruleTitles.insert(title);
            if (of.size() == 1 && m_delayed.size() < kMoved) {
                m_delayed.insert(of.front());
            }
        }
        require(rules.size() == kRules && m_delayed.size() == kMoved, "there are not 1,000 rules");
        world.favorites.rules = rules;
        m_rules.setFavorites(std::move(rules));
    }

    std::vector<ExtendedTVEntry> m_shows;
    std::unique_ptr<const AllShows> m_all;
    std::set<const TVEntry*> m_delayed;
    QSet<QString> m_ruleTitles;
    TVShows m_rules{world.folders, world.keyValueStore, world.queues};
    SilentCounters m_counters;
    std::shared_ptr<AlarmCalendar> m_calendar;
    std::unique_ptr<AlarmSynchroniser> m_alarms;
};

using Times = std::array<double, kRounds>;

double median(Times times) {
    std::ranges::sort(times);
    return times[kRounds / 2];
}

void print(const char* row, double time, double floor, double atMost) {
    std::printf("{\"row\": \"%s\", \"unit\": \"ms\", \"guide\": %.2f, \"floor\": %.2f, \"atMost\": %g}\n",
                row, time, floor, atMost);
}

void measure() {
    Guide guide;
    Times runs{};
    Times walks{};
    Times lists{};
    Times plainLists{};
    // Alternately, because the processor's speed changes.
    for (std::size_t round = 0; round < kRounds; ++round) {
        walks[round] = guide.walkTime(kEvents);
        runs[round] = guide.runTime();
        require(guide.store.changes == 0, "a run changed what was right");
        plainLists[round] = guide.listTime(false);
        lists[round] = guide.listTime(true);
    }
    print("full run of the alarms", median(runs), median(walks), kAtMostWalks);
    print("full run of the alarms, of what is allowed", median(runs), kAllowed, 1);
    print("list of 2,000 alerts opened", median(lists), median(plainLists), kAtMostLists);
    for (std::size_t round = 0; round < kRounds; ++round) {
        const bool isDelayed = round % 2 == 0;
        guide.load(isDelayed);
        walks[round] = guide.walkTime(kEvents - kMoved);
        guide.load(isDelayed);
        runs[round] = guide.runTime();
        require(guide.store.changes == kMoved, "a run did not move what was delayed");
    }
    print("full run of the alarms, 300 shows moved", median(runs), median(walks), kAtMostWalks);
}

} // namespace
} // namespace guide::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    guide::bench::measure();
    return 0;
}
