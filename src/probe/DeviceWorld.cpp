// How a made-up device is filled from its description, and printed.

#include "probe/DeviceWorld.h"

#include "alarms/FavoritesFile.h"
#include "core/SelectionFile.h"
#include "platform/archive/Archive.h"
#include "platform/files/FileReplacement.h"
#include "probe/DeviceJSON.h"
#include "probe/DeviceSurroundings.h"

#include <QCborArray>
#include <QDateTime>
#include <QDebug>

#include <algorithm>
#include <cstdlib>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

/// Longer than any clock advances: only the description makes a channel due.
constexpr std::chrono::hours kNeverDue{24 * 365 * 100};

CalendarAccess accessOf(const QString& text) {
    return text == "refused"_L1 ? CalendarAccess::Refused
           : text == "asked"_L1 ? CalendarAccess::NotAsked
                                : CalendarAccess::Granted;
}

QSet<QString> textSet(const QJsonArray& json) {
    QSet<QString> texts;
    for (const QJsonValue& each : json) {
        texts.insert(each.toString());
    }
    return texts;
}

QString textOfMinute(int minute) {
    return QTime(minute / 60, minute % 60).toString(u"HH:mm"_s);
}

} // namespace

DeviceWorld::DeviceWorld(const QJsonObject& state, const Context& context)
    : m_scheme(state.value(u"scheme"_s).toString(u"quellin"_s))
    , m_clock(context.now)
    , m_device(context.device)
    , m_queues(m_clock,
               [](const std::string& what) {
                   qCritical("%s", what.c_str());
                   std::abort();
               })
    , m_folders{m_folder.path(), m_folder.path(), m_folder.path(), m_folder.path(), m_folder.path(), {}, true}
    , m_surroundings(std::make_unique<Surroundings>(*this, state.value(u"background"_s).toBool()))
    , m_alphabet(writesCyrillic(context)) {}

DeviceWorld::~DeviceWorld() {
    m_queues.shutDown();
}

std::variant<std::unique_ptr<DeviceWorld>, Failure> DeviceWorld::make(const QJsonObject& state,
                                                                      const Context& context) {
    std::unique_ptr<DeviceWorld> world(new DeviceWorld(state, context));
    if (!world->m_folder.isValid()) {
        return Failure{u"there is no folder for temporary files"_s};
    }
    if (auto failure = world->fill(state)) {
        return *std::move(failure);
    }
    return world;
}

std::optional<Failure> DeviceWorld::fill(const QJsonObject& state) {
    if (auto failure = writeFavorites(state)) {
        return failure;
    }
    if (state.value(u"synchronized"_s).toBool()) {
        SynchronizedMark(m_folders).set(true);
    }
    if (const QJsonValue silent = state.value(u"silent"_s); silent.isObject()) {
        setSilent(silent.toObject());
    }
    const QJsonObject defaults = state.value(u"userDefaults"_s).toObject();
    for (auto each = defaults.begin(); each != defaults.end(); ++each) {
        m_userDefaults.setString(each.key(), each.value().toString());
    }
    if (auto failure = fillCloud(state.value(u"cloud"_s).toObject())) {
        return failure;
    }
    if (auto failure = addCalendars(state)) {
        return failure;
    }
    for (const QJsonValue& each : state.value(u"counters"_s).toArray()) {
        const QJsonObject counter = each.toObject();
        const auto modified = momentFromText(textOf(counter, "modified"));
        m_records.put({textOf(counter, "title"), counter.value(u"counter"_s).toInteger(),
                       modified.value_or(m_clock.now())});
    }
    addChannels(state.value(u"channels"_s).toArray());
    makeGuide();
    m_queues.runAll();
    if (!storeShows(state.value(u"shows"_s).toArray())) {
        return Failure{u"a show needs a channel, a title and times"_s};
    }
    m_queues.runAll();
    applyChannelStates();
    m_told = {};
    return std::nullopt;
}

void DeviceWorld::addChannels(const QJsonArray& channels) {
    std::vector<CatalogueChannel> listed;
    std::vector<ObjectId> selected;
    for (const QJsonValue& each : channels) {
        const QJsonObject json = each.toObject();
        const ObjectId id = ObjectId::fromHex(textOf(json, "id"));
        listed.push_back({.id = id, .title = textOf(json, "title"), .language = {}, .region = {}});
        m_channelStates[id] = {json.value(u"loading"_s).toBool(), json.value(u"reloadNeeded"_s).toBool()};
        if (json.value(u"selected"_s).toBool(true)) {
            selected.push_back(id);
        }
    }
    m_catalogue.replace(CatalogueSnapshot(listed));
    if (!channels.isEmpty()) {
        replaceFile(m_folders.documents + u"/selectedChannels.plist"_s,
                    archivedData(selectionValue(selected)));
    }
}

std::optional<Failure> DeviceWorld::writeFavorites(const QJsonObject& state) {
    const QJsonValue favorites = state.value(u"favorites"_s);
    if (!favorites.isArray()) {
        return std::nullopt;
    }
    std::vector<Favorite> rules;
    for (const QJsonValue& each : favorites.toArray()) {
        const auto rule = favoriteOfJSON(each.toObject());
        if (!rule) {
            return Failure{u"a favourite needs an id, minutes and a date"_s};
        }
        rules.push_back(*rule);
    }
    replaceFile(m_folders.documents + u"/favorites.plist"_s, favoritesFileContent(rules));
    return std::nullopt;
}

std::optional<Failure> DeviceWorld::fillCloud(const QJsonObject& cloud) {
    for (auto each = cloud.begin(); each != cloud.end(); ++each) {
        const QString key = each.key();
        const QJsonValue value = each.value();
        if (value.isNull()) {
            m_keyValueStore.removeKey(key);
        } else if (key == "Favorites"_L1) {
            m_givenFavorites.emplace(value.toArray(), favoritesMirrorOfJSON(value.toArray()));
            m_keyValueStore.setValue(key, m_givenFavorites->second);
        } else if (key == "SelectedChannels"_L1) {
            m_keyValueStore.setValue(key, QCborArray::fromJsonArray(value.toArray()));
        } else if (value.isString()) {
            m_keyValueStore.setValue(key, value.toString());
        } else if (value.isDouble()) {
            m_keyValueStore.setValue(key, value.toInteger());
        } else if (value.isBool()) {
            m_keyValueStore.setValue(key, value.toBool());
        } else {
            return Failure{u"the key-value store has no key \"%1\" with such a value"_s.arg(key)};
        }
    }
    return std::nullopt;
}

std::optional<Failure> DeviceWorld::addCalendars(const QJsonObject& state) {
    m_eventStore.setAccess(accessOf(textOf(state, "access")));
    bool hasDefault = false;
    for (const QJsonValue& each : state.value(u"calendars"_s).toArray()) {
        const QJsonObject json = each.toObject();
        EventCalendar calendar{.identifier = {},
                               .title = textOf(json, "title"),
                               .source = textOf(json, "source"),
                               .allowsContentModifications = json.value(u"writable"_s).toBool(true)};
        const QJsonArray color = json.value(u"color"_s).toArray();
        for (std::size_t i = 0; i < calendar.color.size(); ++i) {
            calendar.color[i] = color.at(static_cast<qsizetype>(i)).toDouble(0.5);
        }
        m_calendars.push_back(m_eventStore.addCalendar(calendar));
        if (!hasDefault && json.value(u"default"_s).toBool()) {
            hasDefault = true;
            m_eventStore.setDefaultCalendar(m_calendars.back().identifier);
        }
    }
    for (const QJsonValue& each : state.value(u"events"_s).toArray()) {
        auto event = eventOf(each.toObject());
        if (!event) {
            return Failure{u"an event needs an id, a calendar and times"_s};
        }
        m_eventStore.addEvent(*std::move(event));
    }
    const QJsonObject faults = state.value(u"faults"_s).toObject();
    m_eventStore.failToSave(textSet(faults.value(u"save"_s).toArray()));
    m_eventStore.failToRemove(textSet(faults.value(u"remove"_s).toArray()));
    m_eventStore.failToReadRanges(faults.value(u"predicate"_s).toBool());
    return std::nullopt;
}

std::optional<CalendarEvent> DeviceWorld::eventOf(const QJsonObject& json) const {
    CalendarEvent event;
    event.identifier = textOf(json, "id");
    const qsizetype calendar = json.value(u"calendar"_s).toInteger();
    if (event.identifier.isEmpty() || calendar < 0 || calendar >= std::ssize(m_calendars) ||
        !json.contains(u"start"_s) || !setEventFromJSON(event, json, m_scheme)) {
        return std::nullopt;
    }
    event.calendar = m_calendars[static_cast<std::size_t>(calendar)].identifier;
    return event;
}

bool DeviceWorld::storeShows(const QJsonArray& shows) {
    std::vector<std::shared_ptr<const TVEntry>> entries;
    std::unordered_map<ObjectId, ShowItems> lists;
    for (const QJsonValue& each : shows) {
        const QJsonObject json = each.toObject();
        const auto start = momentFromText(textOf(json, "start"));
        const QJsonValue end = json.value(u"end"_s);
        if (!start || !json.value(u"title"_s).isString()) {
            return false;
        }
        const auto entry = std::make_shared<TVEntry>(m_alphabet);
        entry->setChannel(ObjectId::fromHex(textOf(json, "channel")));
        entry->setIdentificator(textOf(json, "title"));
        entry->setDateTime(start);
        entry->setPreviouslyShown(json.value(u"previouslyShown"_s).toBool());
        ShowItems& list = lists[entry->channel()];
        if (end.isString()) {
            entry->setEndDateTime(momentFromText(end.toString()));
            if (!entry->endDateTime()) {
                return false;
            }
            list.emplace_back(entry);
        }
        entries.push_back(entry);
    }
    m_shows = std::move(entries);
    std::unordered_map<ObjectId, ShowList> sorted;
    for (auto& [channel, list] : lists) {
        std::ranges::stable_sort(list, {}, [](const ShowItem& show) { return *show.entry()->dateTime(); });
        sorted.emplace(channel, std::make_shared<const ShowItems>(std::move(list)));
    }
    m_listings->storeLists(sorted);
    return true;
}

void DeviceWorld::makeGuide() {
    m_channels = std::make_unique<TVChannels>(m_folders, m_keyValueStore, m_queues, m_catalogue);
    m_rules = std::make_unique<TVShows>(m_folders, m_keyValueStore, m_queues);
    m_popularShows = std::make_unique<RecordPopularShows>(RecordPopularShows::Environment{
        .records = &m_records, .queues = m_queues, .store = [this](ShowList list) {
            m_listings->storePopularShows(std::move(list));
        }});
    m_listings = std::make_unique<TVListings>(TVListingsEnvironment{
        m_clock, m_device, m_folders, m_queues, m_surroundings->tasks, m_surroundings->state, *m_channels,
        m_alphabet, *m_rules, *m_popularShows, m_surroundings->observer, m_scheme, [] { return 4; }});
    m_counters = std::make_unique<RecordCounters>(m_records, m_queues);
    m_alarmCalendar = AlarmCalendar::make(
        {.clock = m_clock,
         .device = m_device,
         .folders = m_folders,
         .queues = m_queues,
         .backgroundTasks = m_surroundings->tasks,
         .applicationState = m_surroundings->state,
         .userDefaults = m_userDefaults,
         .keyValueStore = m_keyValueStore,
         .eventStore = m_eventStore,
         .catalogue = m_catalogue,
         .channels = *m_channels,
         .shows = *m_rules,
         .listings = *m_listings,
         .counters = *m_counters,
         .scheme = m_scheme,
         .automaticUpdateInterval = [] { return std::chrono::seconds(kNeverDue); },
         .notificationsSynched = [this] { ++m_told.notificationsSynched; },
         .updateBadge = [] {},
         .runEnded = {},
         .safety = {.brake = false, .repeatsUnfinished = false, .settles = false, .forgetsAll = false}});
    m_alarms = std::make_unique<AlarmSynchroniser>(m_alarmCalendar);
    m_alarmOperations = std::make_unique<AlarmOperations>(m_alarmCalendar, *m_alarms);
    m_favoriteOperations = std::make_unique<FavoriteOperations>(
        FavoriteOperationsEnvironment{.clock = m_clock,
                                      .mainQueue = m_queues.mainQueue(),
                                      .shows = *m_rules,
                                      .alarmActions = *m_alarmOperations,
                                      .alarms = *m_alarms,
                                      .counters = *m_counters,
                                      .favoritesUpdated = [this] { ++m_told.favoritesUpdated; }});
    m_eventStore.setCalendarsChanged([this] { m_alarms->calendarsChanged(); });
    makeUserData();
}

void DeviceWorld::makeUserData() {
    m_replacedLists = std::make_unique<ReplacedLists>(m_folders, m_clock);
    m_cloudSync = std::make_unique<CloudSync>(
        CloudSyncEnvironment{.mainQueue = m_queues.mainQueue(),
                             .keyValueStore = m_keyValueStore,
                             .userDefaults = m_userDefaults,
                             .channels = *m_channels,
                             .shows = *m_rules,
                             .listings = *m_listings,
                             .alarms = *m_alarms,
                             .alarmSynchronisation = *m_alarms,
                             .replacedLists = *m_replacedLists,
                             .checkAndUpdateAllChannels = [this] { ++m_told.checks; },
                             .selectionReplaced = [this] { applyChannelStates(); },
                             .favoritesUpdated = [this] { ++m_told.favoritesUpdated; },
                             .favoritesEmptied = [](const auto&) {}});
    m_userData =
        std::make_unique<UserData>(UserDataEnvironment{.clock = m_clock,
                                                       .queues = m_queues,
                                                       .catalogue = m_catalogue,
                                                       .channels = *m_channels,
                                                       .shows = *m_rules,
                                                       .listings = *m_listings,
                                                       .keyValueStore = m_keyValueStore,
                                                       .userDefaults = m_userDefaults,
                                                       .alarmSynchronisation = *m_alarms,
                                                       .alarmActions = *m_alarmOperations,
                                                       .favoriteActions = m_surroundings->favoriteActions,
                                                       .replacedLists = *m_replacedLists,
                                                       .cloudSync = *m_cloudSync,
                                                       .exportFolder = m_folder.path(),
                                                       .knownEvents = {},
                                                       .afterCalendarChanges = {},
                                                       .selectionErased = [] {}});
}

void DeviceWorld::applyChannelStates() const {
    for (const auto& [id, state] : m_channelStates) {
        if (const auto channel = m_channels->channelWithChannelId(id)) {
            channel->setLoading(state.loading);
            if (state.reloadNeeded) {
                channel->requireReload();
            } else {
                channel->setTimeLoaded(m_clock.now());
            }
        }
    }
}

// ---- printing

QJsonValue DeviceWorld::eventJSON(const CalendarEvent& event) const {
    const auto calendar = std::ranges::find(m_calendars, event.calendar, &EventCalendar::identifier);
    const QString identifier = MemoryEventStore::isMade(event.identifier) ? u"new"_s : event.identifier;
    return probe::eventJSON(event, identifier, calendar - m_calendars.begin());
}

QJsonObject DeviceWorld::cloudJSON() const {
    QJsonObject cloud;
    const auto valueOf = [this](const char* key) {
        return m_keyValueStore.valueForKey(QString::fromLatin1(key));
    };
    if (const auto favorites = valueOf("Favorites")) {
        cloud[u"Favorites"_s] =
            m_givenFavorites && *favorites == m_givenFavorites->second
                ? m_givenFavorites->first
                : favoritesJSON(favoritesOfMirror(*favorites).value_or(std::vector<Favorite>()));
    }
    if (const auto value = valueOf("SelectedChannels")) {
        QJsonArray channels;
        for (const ObjectId& channel : selectionOfValue(*value).value_or(std::vector<ObjectId>())) {
            channels.append(channel.hex());
        }
        cloud[u"SelectedChannels"_s] = channels;
    }
    for (const char* key : {"selectedCalendar", "lastAlarmMinutes", "noAlarmsSchedule"}) {
        if (const auto value = valueOf(key)) {
            cloud[QLatin1StringView(key)] = value->toJsonValue();
        }
    }
    const SilentPeriod period = SilentHours(m_keyValueStore, m_device).period();
    if (valueOf("noAlarmsSchedule.0")) {
        cloud[u"noAlarmsSchedule.0"_s] = textOfMinute(period.from);
    }
    if (valueOf("noAlarmsSchedule.1")) {
        cloud[u"noAlarmsSchedule.1"_s] = textOfMinute(period.to);
    }
    return cloud;
}

QJsonObject DeviceWorld::state() const {
    std::vector<CalendarEvent> events = m_eventStore.events();
    const auto printed = [](const CalendarEvent& event) {
        return std::tuple(event.startDate, event.title, event.location,
                          MemoryEventStore::isMade(event.identifier) ? u"new"_s : event.identifier);
    };
    std::ranges::stable_sort(events, {}, printed);
    QJsonArray eventList;
    for (const CalendarEvent& event : events) {
        eventList.append(eventJSON(event));
    }
    QJsonObject calendarEvents;
    const CalendarEvents alarms = m_alarmCalendar->calendarEvents();
    for (auto event = alarms.events().cbegin(); event != alarms.events().cend(); ++event) {
        calendarEvents[event.key().toString()] = MemoryEventStore::isMade(*event) ? u"new"_s : *event;
    }
    QJsonArray selected;
    for (const ObjectId& channel : m_channels->selected()) {
        selected.append(channel.hex());
    }
    QJsonObject counters;
    const auto records = m_records.countersByModification(SIZE_MAX);
    for (const CounterRecord& record : records.value_or(std::vector<CounterRecord>())) {
        counters[record.title] = static_cast<qint64>(record.counter);
    }
    QJsonObject defaults;
    if (const auto calendar = m_userDefaults.stringForKey(u"selectedCalendar"_s)) {
        defaults[u"selectedCalendar"_s] = *calendar;
    }
    return {{u"events"_s, eventList},
            {u"calendarEvents"_s, calendarEvents},
            {u"favorites"_s, m_rules->isLoaded() ? QJsonValue(favoritesJSON(m_rules->snapshot()->rules()))
                                                 : QJsonValue(QJsonValue::Null)},
            {u"selected"_s, selected},
            {u"synchronized"_s, m_alarmCalendar->mark().isSet()},
            {u"userDefaults"_s, defaults},
            {u"cloud"_s, cloudJSON()},
            {u"counters"_s, counters},
            {u"told"_s, QJsonObject{{u"notificationsSynched"_s, m_told.notificationsSynched},
                                    {u"favoritesUpdated"_s, m_told.favoritesUpdated},
                                    {u"checks"_s, m_told.checks}}}};
}

} // namespace guide::probe
