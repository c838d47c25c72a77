#include "alarms/AlarmOperations.h"

#include "alarms/AlarmPlans.h"
#include "alarms/GuideEvents.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <mutex>
#include <utility>

namespace guide {

namespace {

constexpr QLatin1StringView kLastAlarmMinutesKey("lastAlarmMinutes");
/// Within which the event of a broadcast is looked for.
constexpr std::chrono::seconds kDay{86'400};

// What the user's actions are worth to the counter of a title.
constexpr int kOneOffSet = 2;
constexpr int kRecurringSet = 3;
constexpr int kRemoved = -1;

QStringList identifiersOf(const std::vector<AlarmChange>& changes) {
    QStringList identifiers;
    for (const AlarmChange& change : changes) {
        identifiers << change.event().identifier;
    }
    return identifiers;
}

/// Each replaces the first rule of its title, if there is one.
void replaceRules(TVShows& shows, const std::vector<Favorite>& replacements) {
    std::optional<std::vector<Favorite>> rules = shows.favorites();
    if (!rules) {
        return;
    }
    QHash<QString, const Favorite*> byTitle;
    for (const Favorite& rule : replacements) {
        byTitle.insert(rule.identificator.toLower(), &rule);
    }
    bool any = false;
    for (Favorite& rule : *rules) {
        if (const Favorite* replacement = byTitle.take(rule.identificator.toLower())) {
            rule = *replacement;
            any = true;
        }
    }
    if (any) {
        shows.setFavorites(*std::move(rules));
    }
}

/// Removes the event of one broadcast. Whether one was removed.
bool removeBroadcast(AlarmCalendar& calendar, const QString& title, const ShowDigest& show, Moment at) {
    const EventRange range = calendar.read(at, at + kDay);
    const QString& scheme = calendar.environment().scheme;
    std::vector<AlarmChange> changes;
    for (const CalendarEvent& event : range.events) {
        if (event.startDate == at && event.title == title && showOfEvent(event, scheme) == show) {
            changes.push_back(removalOf(event, AlarmReason::User, scheme));
        }
    }
    const AppliedChanges applied = calendar.apply(changes);
    // Also those that the calendar keeps, until the next run reads them again.
    calendar.removeEvents(identifiersOf(changes));
    return applied.any;
}

/// The event of a broadcast, in no calendar yet. Nothing when the catalogue does not name the channel.
std::optional<AlarmChange> newAlarm(const AlarmSituation& situation, const QString& title,
                                    const ObjectId& channel, Moment at, Moment until, int minutes,
                                    AlarmReason reason) {
    const CatalogueChannel* known = situation.catalogue->find(channel);
    if (!known || known->title.isEmpty()) {
        return std::nullopt;
    }
    const ShowDigest show = showDigest(channel, at, title);
    CalendarEvent event;
    event.title = title;
    event.location = known->title;
    event.url = urlOfDigest(show, situation.scheme);
    event.startDate = at;
    event.endDate = until;
    event.alarmOffsets = {-std::chrono::minutes(minutes)};
    return AlarmChange{.change = SaveEvent{std::move(event)}, .reason = reason, .show = show};
}

void notifyOnMainQueue(const std::shared_ptr<AlarmCalendar>& calendar) {
    calendar->mainQueue().async([calendar] { calendar->environment().notificationsSynched(); });
}

} // namespace

/// The titles whose alarms are to be removed, until the alarm queue takes them.
struct AlarmOperations::Removals {
    struct Asked {
        /// Lowercased.
        QSet<QString> titles;
        bool sync = false;
    };

    std::mutex guard;
    Asked asked; // guarded

    void remove(const std::shared_ptr<AlarmCalendar>& calendar);
};

AlarmOperations::AlarmOperations(std::shared_ptr<AlarmCalendar> calendar,
                                 AlarmSynchronisation& synchronisation)
    : m_calendar(std::move(calendar))
    , m_synchronisation(synchronisation)
    , m_removals(std::make_shared<Removals>()) {}

// ---- one broadcast

void AlarmOperations::setAlarmForTitle(const QString& title, const ObjectId& onChannel, Moment at,
                                       Moment until, int minutes, bool sync, bool manual) {
    const AlarmsEnvironment& environment = m_calendar->environment();
    if (manual) {
        environment.counters.incrementCounterByAmount(kOneOffSet, title);
    } else if (!m_calendar->silentHours().mayBeAlarmedAt(at - std::chrono::minutes(minutes))) {
        return;
    }
    if (m_calendar->access() != CalendarAccess::Granted) {
        return;
    }
    // Also where the gesture was already counted, as that of a new favourite.
    std::optional<AlarmChange> change =
        newAlarm(m_calendar->situation(), title, onChannel, at, until, minutes, AlarmReason::User);
    if (!change) {
        return;
    }
    m_calendar->queue().async([calendar = m_calendar, change = *std::move(change), minutes, sync]() mutable {
        const auto selected = calendar->selectedCalendar();
        if (!selected) {
            return;
        }
        CalendarEvent& event = std::get<SaveEvent>(change.change).event;
        event.calendar = selected->identifier;
        const AlarmsEnvironment& services = calendar->environment();
        if (event.startDate - std::chrono::minutes(minutes) > services.clock.now()) {
            calendar->refused().allow(*change.show);
            calendar->apply({change});
            services.keyValueStore.setValue(kLastAlarmMinutesKey, minutes);
        }
        if (!sync) {
            return;
        }
        const EventRange range = calendar->read(event.startDate, *event.endDate);
        const auto found = std::ranges::find_if(range.events, [&event](const CalendarEvent& each) {
            return each.startDate == event.startDate && each.endDate == event.endDate &&
                   each.location == event.location && each.hasAlarms();
        });
        if (found != range.events.end()) {
            calendar->addEvent(*found);
        }
        notifyOnMainQueue(calendar);
    });
}

void AlarmOperations::removeAlarmForTitle(const QString& title, const ObjectId& onChannel, Moment at,
                                          bool sync, bool manual) {
    const AlarmsEnvironment& environment = m_calendar->environment();
    if (manual) {
        environment.counters.incrementCounterByAmount(kRemoved, title);
    }
    // A broadcast that has begun keeps its event.
    if (m_calendar->access() != CalendarAccess::Granted || at < environment.clock.now()) {
        return;
    }
    m_calendar->queue().async(
        [calendar = m_calendar, title, show = showDigest(onChannel, at, title), at, sync] {
            if (removeBroadcast(*calendar, title, show, at) && sync) {
                notifyOnMainQueue(calendar);
            }
        });
}

void AlarmOperations::refuseBroadcast(const AlarmBroadcast& broadcast) {
    m_calendar->queue().async([calendar = m_calendar, broadcast] {
        const Moment now = calendar->environment().clock.now();
        calendar->refused().refuse(broadcast.show, broadcast.end, now);
        if (calendar->access() == CalendarAccess::Granted && broadcast.start >= now) {
            removeBroadcast(*calendar, broadcast.title, broadcast.show, broadcast.start);
        }
        notifyOnMainQueue(calendar);
    });
}

int AlarmOperations::lastAlarmMinutes() const {
    const auto value = m_calendar->environment().keyValueStore.valueForKey(kLastAlarmMinutesKey);
    const qint64 minutes = value ? value->toInteger(0) : 0;
    return std::in_range<int>(minutes) ? std::max(static_cast<int>(minutes), 0) : 0;
}

// ---- all broadcasts of a title

void AlarmOperations::setAlarmForTitle(const QString& title, int minutes, std::optional<bool> previouslyShown,
                                       bool manual) {
    const AlarmsEnvironment& environment = m_calendar->environment();
    if (manual) {
        environment.counters.incrementCounterByAmount(kRecurringSet, title);
    }
    if (m_calendar->access() != CalendarAccess::Granted || !environment.shows.favorites()) {
        return;
    }
    const bool wasSet = m_calendar->mark().isSet();
    m_calendar->mark().set(false);
    const std::uint64_t clearings = m_calendar->mark().clearings();
    replaceRules(environment.shows, {{.identificator = title,
                                      .minutes = minutes < 0 ? std::nullopt : std::optional(minutes),
                                      .date = environment.clock.now(),
                                      .previouslyShown = previouslyShown}});
    environment.listings.favoritesScheduleWithBlock(
        [calendar = m_calendar, &synchronisation = m_synchronisation, title, minutes, previouslyShown, wasSet,
         clearings, lead = std::chrono::minutes(minutes)](const ShowItems& shows) {
            // Made one by one like alarms of the user, and saved together.
            const AlarmSituation situation = calendar->situation();
            const QString lowercased = title.toLower();
            bool any = false;
            std::vector<AlarmChange> changes;
            for (const ShowItem& show : shows) {
                const TVEntry& entry = *show.entry();
                if ((previouslyShown && *previouslyShown != entry.previouslyShown()) ||
                    entry.lowercasedIdentificator() != lowercased ||
                    *entry.dateTime() - lead <= situation.now) {
                    continue;
                }
                any = true;
                auto change = newAlarm(situation, title, entry.channel(), *entry.dateTime(),
                                       *entry.endDateTime(), minutes, AlarmReason::Rule);
                if (change && situation.silentHours.mayBeAlarmedAt(*entry.dateTime() - lead) &&
                    !situation.refused.contains(*change->show)) {
                    change->rule = title;
                    change->previouslyShown = previouslyShown;
                    changes.push_back(*std::move(change));
                }
            }
            calendar->queue().async([calendar, changes = std::move(changes), minutes]() mutable {
                const auto selected = calendar->selectedCalendar();
                if (!selected || changes.empty()) {
                    return;
                }
                for (AlarmChange& change : changes) {
                    std::get<SaveEvent>(change.change).event.calendar = selected->identifier;
                }
                calendar->apply(changes);
                calendar->environment().keyValueStore.setValue(kLastAlarmMinutesKey, minutes);
            });
            calendar->mainQueue().async([calendar, &synchronisation, any, wasSet, clearings] {
                const AlarmsEnvironment& services = calendar->environment();
                if (any) {
                    synchronisation.syncAlarms();
                }
                // Otherwise the run sets the mark, when it is through.
                if (!services.safety.repeatsUnfinished || (!any && wasSet)) {
                    calendar->mark().setUnlessClearedSince(clearings);
                }
                if (services.applicationState.applicationState() == ApplicationState::Background) {
                    services.userDefaults.synchronize();
                }
            });
        });
}

void AlarmOperations::removeAlarmForTitle(const QString& title, bool sync, bool manual) {
    if (manual) {
        m_calendar->environment().counters.incrementCounterByAmount(kRemoved, title);
    }
    removeAlarmsForTitles({title}, sync);
}

void AlarmOperations::removeAlarmsForTitles(const QStringList& titles, bool sync) {
    const AlarmsEnvironment& environment = m_calendar->environment();
    if (m_calendar->access() != CalendarAccess::Granted || titles.isEmpty()) {
        return;
    }
    std::vector<Favorite> rules;
    for (const QString& title : titles) {
        rules.push_back(
            {.identificator = title, .minutes = {}, .date = environment.clock.now(), .previouslyShown = {}});
    }
    replaceRules(environment.shows, rules);
    bool isFirst = false;
    {
        const std::lock_guard lock(m_removals->guard);
        isFirst = m_removals->asked.titles.isEmpty();
        for (const QString& title : titles) {
            m_removals->asked.titles.insert(title.toLower());
        }
        m_removals->asked.sync = m_removals->asked.sync || sync;
    }
    if (isFirst) {
        m_calendar->queue().async(
            [removals = m_removals, calendar = m_calendar] { removals->remove(calendar); });
    }
}

// On the alarm queue.
void AlarmOperations::Removals::remove(const std::shared_ptr<AlarmCalendar>& calendar) {
    Asked taken;
    {
        const std::lock_guard lock(guard);
        taken = std::exchange(asked, {});
    }
    if (!calendar->selectedCalendar()) {
        return;
    }
    const AlarmsEnvironment& environment = calendar->environment();
    SynchronizedMark& mark = calendar->mark();
    const bool wasSet = mark.isSet();
    mark.set(false);
    const std::uint64_t clearings = mark.clearings();
    const Moment now = environment.clock.now();
    const EventRange range = calendar->read(now, now + kAlarmReach);
    if (range.fault) {
        return;
    }
    std::vector<AlarmChange> changes;
    for (const CalendarEvent& event : range.events) {
        if (taken.titles.contains(event.title.toLower()) && isOfGuide(event, environment.scheme)) {
            changes.push_back(removalOf(event, AlarmReason::RecurringEnded, environment.scheme));
        }
    }
    const AppliedChanges applied = calendar->apply(changes);
    calendar->removeEvents(identifiersOf(changes));
    if (applied.any && taken.sync) {
        calendar->mainQueue().async([calendar] {
            const AlarmsEnvironment& services = calendar->environment();
            if (services.applicationState.applicationState() == ApplicationState::Background) {
                services.userDefaults.synchronize();
            }
            services.notificationsSynched();
        });
    }
    if (!environment.safety.repeatsUnfinished || (wasSet && !applied.unfinished)) {
        mark.setUnlessClearedSince(clearings);
    }
}

std::optional<RecurringAlarm> AlarmOperations::alarmedIdentificatorType(const QString& title) const {
    TVShows& shows = m_calendar->environment().shows;
    shows.favorites();
    const auto rules = shows.snapshot();
    const Favorite* rule = rules->ruleNamed(title);
    return rule && rule->minutes ? std::optional(RecurringAlarm{*rule->minutes, rule->previouslyShown})
                                 : std::nullopt;
}

// ---- the calendar

void AlarmOperations::saveCalendar(const EventCalendar& calendar) {
    m_calendar->queue().async([alarms = m_calendar, calendar] { alarms->select(calendar); });
}

bool mayChangeCalendar(const AlarmsSnapshot& alarms) {
    return alarms.eventCount() == 0;
}

} // namespace guide
