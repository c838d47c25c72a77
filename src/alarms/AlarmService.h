#pragma once

#include "alarms/AlarmCalendar.h"
#include "alarms/AlarmExplanations.h"
#include "alarms/AlarmOperations.h"
#include "alarms/AlarmSynchronisation.h"
#include "alarms/CalendarActions.h"

#include <memory>

namespace guide {

/// What screens ask of the calendar of the alarms. The calendar is used on the alarm queue.
class AlarmService final : public CalendarActions, public AlarmExplanations {
  public:
    /// The others must outlive the last block on the queues.
    AlarmService(std::shared_ptr<AlarmCalendar> calendar, AlarmOperations& operations,
                 AlarmSynchronisation& synchronisation);

    void calendars(MainBlock<CalendarChoice> mainBlock) override;
    void selectCalendar(const EventCalendar& calendar) override;
    void createCalendar(const QString& title, MainBlock<std::optional<EventCalendar>> mainBlock) override;

    ShowAlarm alarmOf(const TVEntry& entry) const override;
    void refuseBroadcast(const AlarmBroadcast& broadcast) override;
    void allowBroadcast(const AlarmBroadcast& broadcast) override;
    void journal(MainBlock<JournalEntries> mainBlock) override;

  private:
    const std::shared_ptr<AlarmCalendar> m_calendar;
    AlarmOperations& m_operations;
    AlarmSynchronisation& m_synchronisation;
};

} // namespace guide
