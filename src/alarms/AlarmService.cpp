#include "alarms/AlarmService.h"

#include <utility>

namespace guide {

AlarmService::AlarmService(std::shared_ptr<AlarmCalendar> calendar, AlarmOperations& operations,
                           AlarmSynchronisation& synchronisation)
    : m_calendar(std::move(calendar))
    , m_operations(operations)
    , m_synchronisation(synchronisation) {}

void AlarmService::calendars(MainBlock<CalendarChoice> mainBlock) {
    m_calendar->queue().async([alarms = m_calendar, answer = std::move(mainBlock)]() mutable {
        EventStore& store = alarms->environment().eventStore;
        CalendarChoice choice{.storeName = store.name(), .calendars = store.calendars(), .selected = {}};
        alarms->ensureSelectedCalendarIsSet();
        if (const auto selected = alarms->selectedCalendar()) {
            choice.selected = selected->identifier;
        }
        answer.post(alarms->mainQueue(), std::move(choice));
    });
}

void AlarmService::selectCalendar(const EventCalendar& calendar) {
    m_operations.saveCalendar(calendar);
}

void AlarmService::createCalendar(const QString& title, MainBlock<std::optional<EventCalendar>> mainBlock) {
    m_calendar->queue().async([alarms = m_calendar, title, answer = std::move(mainBlock)]() mutable {
        answer.post(alarms->mainQueue(), alarms->environment().eventStore.createCalendar(title));
    });
}

ShowAlarm AlarmService::alarmOf(const TVEntry& entry) const {
    return alarmReasonFor(entry, m_calendar->showAlarmSituation());
}

void AlarmService::refuseBroadcast(const AlarmBroadcast& broadcast) {
    m_operations.refuseBroadcast(broadcast);
}

void AlarmService::allowBroadcast(const AlarmBroadcast& broadcast) {
    m_calendar->queue().async([alarms = m_calendar, show = broadcast.show, &runs = m_synchronisation] {
        alarms->refused().allow(show);
        // The run that follows sets the alarm.
        runs.setSynchronized(false);
        alarms->mainQueue().async([alarms, &runs] {
            alarms->environment().notificationsSynched();
            runs.syncAlarms();
        });
    });
}

void AlarmService::journal(MainBlock<JournalEntries> mainBlock) {
    m_calendar->queue().async([alarms = m_calendar, answer = std::move(mainBlock)]() mutable {
        answer.post(alarms->mainQueue(), alarms->journal().entries());
    });
}

} // namespace guide
