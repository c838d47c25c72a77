#include "alarms/AlarmCalendar.h"

#include "alarms/CalendarDescription.h"
#include "alarms/GuideEvents.h"

#include <QDebug>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kSelectedCalendarKey("selectedCalendar");

AlarmDeed deedOf(const AlarmChange& change, bool isDone) {
    if (change.removes()) {
        return isDone ? AlarmDeed::Removed : AlarmDeed::NotRemoved;
    }
    if (change.before) {
        return isDone ? AlarmDeed::Moved : AlarmDeed::NotMoved;
    }
    return isDone ? AlarmDeed::Made : AlarmDeed::NotMade;
}

const char* complaintAbout(const AlarmChange& change) {
    switch (change.reason) {
    case AlarmReason::NoChannel:
        return "removeEvent for an invalid event failed with error";
    case AlarmReason::Duplicate:
        return "removeEvent for a duplicate failed with error";
    default:
        return change.removes() ? "removeEvent error" : "Error saving event:";
    }
}

} // namespace

void logRangeFault(const QString& fault, const std::optional<EventCalendar>& calendar) {
    qWarning().noquote().nospace() << "predicate exception reason=" << fault
                                   << " calendar=" << (calendar ? calendar->title : QString());
}

AlarmCalendar::AlarmCalendar(AlarmsEnvironment environment)
    : m_environment(std::move(environment))
    , m_queue(m_environment.queues.makeQueue("vorel.tv.alarm.sync", QueueKind::Serial))
    , m_mark(m_environment.folders)
    , m_journal(m_environment.folders)
    , m_refused(m_environment.folders)
    , m_snapshot(std::make_shared<const AlarmsSnapshot>())
    , m_knownSnapshot(std::make_shared<const KnownEvents>()) {}

std::shared_ptr<AlarmCalendar> AlarmCalendar::make(AlarmsEnvironment environment) {
    const std::shared_ptr<AlarmCalendar> calendar(new AlarmCalendar(std::move(environment)));
    calendar->m_queue->async([calendar] {
        // Here rather than for the first screen that asks.
        calendar->m_refused.all();
        calendar->refreshAccess();
    });
    return calendar;
}

// ---- any thread

std::optional<EventCalendar> AlarmCalendar::selectedCalendar() const {
    const std::lock_guard lock(m_guard);
    return m_selected;
}

std::shared_ptr<const AlarmsSnapshot> AlarmCalendar::snapshot() const {
    const std::lock_guard lock(m_guard);
    return m_snapshot;
}

std::shared_ptr<const KnownEvents> AlarmCalendar::knownEvents() const {
    const std::lock_guard lock(m_guard);
    return m_knownSnapshot;
}

CalendarEvents AlarmCalendar::calendarEvents() const {
    const std::lock_guard lock(m_guard);
    return m_events;
}

AlarmSituation AlarmCalendar::situation() const {
    AlarmSituation situation;
    situation.now = m_environment.clock.now();
    situation.end = situation.now + kAlarmReach;
    situation.scheme = m_environment.scheme;
    situation.calendar = selectedCalendar().value_or(EventCalendar());
    situation.rules = m_environment.shows.snapshot();
    situation.silentHours = silentHours();
    situation.catalogue = m_environment.catalogue.snapshot();
    const auto interval = m_environment.automaticUpdateInterval();
    QSet<QString> unsettled;
    for (const ObjectId& id : m_environment.channels.selected()) {
        if (const auto channel = m_environment.channels.channelWithChannelId(id)) {
            const bool settled = channel->isSettled(situation.now, interval);
            (settled ? situation.settledChannels : unsettled).insert(channel->title());
        }
    }
    // Of several channels with one title each may be that of an event.
    situation.settledChannels.subtract(unsettled);
    const auto refused = m_refused.all();
    for (const auto& [show, end] : *refused) {
        situation.refused.insert(show);
    }
    return situation;
}

ShowAlarmSituation AlarmCalendar::showAlarmSituation() const {
    return {.access = access(), .calendar = selectedCalendar(), .alarms = snapshot(), .run = situation()};
}

// ---- on the alarm queue

CalendarAccess AlarmCalendar::refreshAccess() {
    m_access = m_environment.eventStore.access();
    return m_access;
}

void AlarmCalendar::ensureSelectedCalendarIsSet() {
    const std::optional<EventCalendar> selected = selectedCalendar();
    if (selected && !m_isSelectedInDoubt) {
        return;
    }
    const QString text = m_environment.userDefaults.stringForKey(kSelectedCalendarKey).value_or(QString());
    EventStore& store = m_environment.eventStore;
    std::optional<EventCalendar> calendar;
    if (selected || !text.isEmpty()) {
        const std::optional<std::vector<EventCalendar>> all = store.calendars();
        if (!all) {
            return;
        }
        if (selected) {
            const auto same = std::ranges::find(*all, selected->identifier, &EventCalendar::identifier);
            if (same != all->end()) {
                // It may be read-only now, or offline.
                m_isSelectedInDoubt = false;
                const std::lock_guard lock(m_guard);
                m_selected = *same;
                return;
            }
        }
        calendar = calendarOfDescription(*all, text);
        // The chosen one may be among those that cannot be used yet. Another one may have its title.
        const bool isCertain = calendar && text.startsWith(calendar->title + u':' + calendar->source + u':');
        if (!isCertain &&
            std::ranges::find(*all, CalendarState::Unavailable, &EventCalendar::state) != all->end()) {
            return;
        }
    }
    if (!calendar) {
        calendar = store.defaultCalendarForNewEvents();
    }
    if (!calendar) {
        return;
    }
    m_environment.userDefaults.setString(kSelectedCalendarKey, calendarDescription(*calendar));
    if (selected) {
        // The alarms went with the calendar.
        m_mark.set(false);
    }
    m_isSelectedInDoubt = false;
    const std::lock_guard lock(m_guard);
    m_selected = std::move(calendar);
}

void AlarmCalendar::select(const EventCalendar& calendar) {
    {
        const std::lock_guard lock(m_guard);
        if (m_selected && m_selected->identifier == calendar.identifier) {
            return;
        }
        m_selected = calendar;
    }
    const QString text = calendarDescription(calendar);
    m_environment.userDefaults.setString(kSelectedCalendarKey, text);
    m_environment.keyValueStore.setValue(kSelectedCalendarKey, text);
    refresh();
    mainQueue().async([self = shared_from_this()] { self->m_environment.updateBadge(); });
}

EventRange AlarmCalendar::read(Moment start, Moment end) {
    const std::optional<EventCalendar> calendar = selectedCalendar();
    EventRange range = calendar ? m_environment.eventStore.eventsBetween(start, end, *calendar)
                                : EventRange{{}, u"no calendar is selected"_s};
    if (range.fault) {
        logRangeFault(*range.fault, calendar);
        m_isSelectedInDoubt = true;
    }
    return range;
}

void AlarmCalendar::refresh() {
    const Moment now = m_environment.clock.now();
    EventRange range = read(now - kAlarmReach, now + kAlarmReach);
    if (range.fault) {
        return;
    }
    setEvents({}, std::move(range.events), now + kAlarmReach);
}

AppliedChanges AlarmCalendar::apply(const std::vector<AlarmChange>& changes) {
    AppliedChanges result;
    if (changes.empty()) {
        return result;
    }
    std::vector<EventChange> batch;
    batch.reserve(changes.size());
    for (const AlarmChange& change : changes) {
        batch.push_back(change.change);
    }
    const std::vector<EventOutcome> outcomes = m_environment.eventStore.apply(batch);
    const Moment now = m_environment.clock.now();
    std::vector<JournalEntry> entries;
    for (std::size_t i = 0; i < std::min(outcomes.size(), changes.size()); ++i) {
        const AlarmChange& change = changes[i];
        const EventOutcome& outcome = outcomes[i];
        // What is gone need not be removed.
        const bool isDone = outcome.isDone() || (change.removes() && outcome.fault == EventFault::NotFound);
        result.any = result.any || isDone;
        result.unfinished = result.unfinished || (!isDone && outcome.fault != EventFault::ReadOnly);
        if (!isDone) {
            qWarning().noquote() << complaintAbout(change) << outcome.message;
            m_isSelectedInDoubt = m_isSelectedInDoubt || outcome.fault == EventFault::ReadOnly;
        }
        noteOutcome(change, outcome);
        entries.push_back(journalEntry(change, deedOf(change, isDone), now, outcome.message));
    }
    m_journal.append(std::move(entries), now);
    publish();
    return result;
}

// The revision of an event that was saved is unknown: before it is changed again it is read.
void AlarmCalendar::noteOutcome(const AlarmChange& change, const EventOutcome& outcome) {
    CalendarEvent event = change.event();
    if (change.removes()) {
        if (outcome.isDone() || outcome.fault == EventFault::NotFound) {
            m_known.remove(event.identifier);
        }
    } else if (outcome.isDone()) {
        event.identifier = outcome.identifier;
        know(std::move(event));
    }
}

void AlarmCalendar::know(CalendarEvent event) {
    const QString identifier = event.identifier;
    const auto known = m_known.constFind(identifier);
    const std::uint64_t order = known == m_known.cend() ? ++m_lastOrder : known->order;
    m_known.insert(identifier, {std::move(event), order});
}

void AlarmCalendar::setEvents(std::optional<CalendarEvents> events, std::vector<CalendarEvent> known,
                              Moment until) {
    m_known.clear();
    m_knownUntil = until;
    for (CalendarEvent& event : known) {
        if (isOfGuide(event, m_environment.scheme)) {
            know(std::move(event));
        }
    }
    if (!events) {
        events = calendarEvents();
    }
    // An event may have left the range or the calendar.
    for (const QString& identifier : events->events()) {
        if (!m_known.contains(identifier)) {
            if (auto event = m_environment.eventStore.eventWithIdentifier(identifier)) {
                know(*std::move(event));
            }
        }
    }
    {
        const std::lock_guard lock(m_guard);
        m_events = *std::move(events);
    }
    publish();
}

void AlarmCalendar::addEvent(const CalendarEvent& event) {
    know(event);
    {
        const std::lock_guard lock(m_guard);
        m_events.add(event, m_environment.scheme);
    }
    publish();
}

void AlarmCalendar::removeEvents(const QStringList& identifiers) {
    if (identifiers.isEmpty()) {
        return;
    }
    {
        const std::lock_guard lock(m_guard);
        for (const QString& identifier : identifiers) {
            m_events.removeWithIdentifier(identifier);
        }
    }
    publish();
}

void AlarmCalendar::publish() {
    auto known = std::make_shared<KnownEvents>();
    known->until = m_knownUntil;
    std::vector<const KnownEvent*> sorted;
    sorted.reserve(static_cast<std::size_t>(m_known.size()));
    for (const KnownEvent& event : std::as_const(m_known)) {
        sorted.push_back(&event);
    }
    std::ranges::sort(sorted, {},
                      [](const KnownEvent* each) { return std::pair(each->event.startDate, each->order); });
    known->events.reserve(sorted.size());
    for (const KnownEvent* event : sorted) {
        known->events.push_back(event->event);
    }
    const std::lock_guard lock(m_guard);
    AlarmsSnapshot::MinutesByShow minutes;
    minutes.reserve(m_events.eventCount());
    for (auto entry = m_events.events().cbegin(); entry != m_events.events().cend(); ++entry) {
        const auto event = m_known.constFind(*entry);
        CalendarEvent ofShow;
        ofShow.url = entry.key();
        if (const auto show = showOfEvent(ofShow, m_environment.scheme)) {
            minutes.emplace(*show, event == m_known.cend() ? std::nullopt : leadOfEvent(event->event));
        }
    }
    m_snapshot = std::make_shared<const AlarmsSnapshot>(std::move(minutes), m_events.eventCount());
    m_knownSnapshot = std::move(known);
}

} // namespace guide
