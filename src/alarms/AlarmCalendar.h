#pragma once

#include "alarms/AlarmChange.h"
#include "alarms/AlarmJournal.h"
#include "alarms/AlarmSituation.h"
#include "alarms/AlarmsEnvironment.h"
#include "alarms/CalendarEvents.h"
#include "alarms/PendingAlarms.h"
#include "alarms/RefusedBroadcasts.h"
#include "alarms/ShowAlarm.h"
#include "alarms/SynchronizedMark.h"

#include <QHash>

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace guide {

/// The guide's events as they were last read, for queries from memory. Immutable.
struct KnownEvents {
    /// In ascending start time; of any calendar.
    std::vector<CalendarEvent> events;
    /// Events that start later are unknown.
    Moment until = Moment::min();
};

/// What a list of changes led to.
struct AppliedChanges {
    /// Whether at least one was made.
    bool any = false;
    /// Whether one failed that may succeed later.
    bool unfinished = false;
};

/// The calendar of the alarms as the operations and the runs use it: the selected calendar, the events in it
/// and what is known of them, the journal. Every access to the calendar is made on its queue.
class AlarmCalendar : public std::enable_shared_from_this<AlarmCalendar> {
  public:
    /// Starts finding out about access in the background.
    static std::shared_ptr<AlarmCalendar> make(AlarmsEnvironment environment);

    const AlarmsEnvironment& environment() const { return m_environment; }
    /// The alarm queue.
    DispatchQueue& queue() const { return *m_queue; }
    DispatchQueue& mainQueue() const { return m_environment.queues.mainQueue(); }
    SynchronizedMark& mark() { return m_mark; }
    AlarmJournal& journal() { return m_journal; }
    RefusedBroadcasts& refused() { return m_refused; }

    // ---- any thread

    /// As last found out.
    CalendarAccess access() const { return m_access; }
    std::optional<EventCalendar> selectedCalendar() const;
    std::shared_ptr<const AlarmsSnapshot> snapshot() const;
    std::shared_ptr<const KnownEvents> knownEvents() const;
    CalendarEvents calendarEvents() const;
    SilentHours silentHours() const { return {m_environment.keyValueStore, m_environment.device}; }
    /// Everything but the events, the shows and the end of the range.
    AlarmSituation situation() const;
    /// What decides about the alarm of a show.
    ShowAlarmSituation showAlarmSituation() const;

    // ---- on the alarm queue

    CalendarAccess refreshAccess();
    void setAccess(CalendarAccess access) { m_access = access; }
    /// Finds the calendar that was selected last, or takes the default one.
    void ensureSelectedCalendarIsSet();
    /// Selects a calendar, on all devices.
    void select(const EventCalendar& calendar);
    /// The events of the selected calendar; a fault, which is logged, also when there is none.
    EventRange read(Moment start, Moment end);
    /// Reads what is known anew, after a change elsewhere. The events that count as alarms stay the same.
    void refresh();
    /// Makes the changes and writes them to the journal.
    AppliedChanges apply(const std::vector<AlarmChange>& changes);
    /// Replaces the events that count as alarms; without any, only what is known of events.
    void setEvents(std::optional<CalendarEvents> events, std::vector<CalendarEvent> known, Moment until);
    void addEvent(const CalendarEvent& event);
    void removeEvents(const QStringList& identifiers);

  private:
    explicit AlarmCalendar(AlarmsEnvironment environment);
    void publish();
    void know(CalendarEvent event);
    void noteOutcome(const AlarmChange& change, const EventOutcome& outcome);

    const AlarmsEnvironment m_environment;
    const std::shared_ptr<DispatchQueue> m_queue;
    SynchronizedMark m_mark;
    AlarmJournal m_journal;
    RefusedBroadcasts m_refused;
    std::atomic<CalendarAccess> m_access = CalendarAccess::NotAsked;

    struct KnownEvent {
        CalendarEvent event;
        /// Among events with the same start.
        std::uint64_t order = 0;
    };
    // On the alarm queue: the guide's events by identifier.
    /// The selected calendar refused something, or could not be read.
    bool m_isSelectedInDoubt = false;
    QHash<QString, KnownEvent> m_known;
    std::uint64_t m_lastOrder = 0;
    Moment m_knownUntil = Moment::min();

    mutable std::mutex m_guard;
    std::optional<EventCalendar> m_selected;            // guarded
    CalendarEvents m_events;                            // guarded
    std::shared_ptr<const AlarmsSnapshot> m_snapshot;   // guarded
    std::shared_ptr<const KnownEvents> m_knownSnapshot; // guarded
};

/// Logs why the calendar could not be read.
void logRangeFault(const QString& fault, const std::optional<EventCalendar>& calendar);

} // namespace guide
