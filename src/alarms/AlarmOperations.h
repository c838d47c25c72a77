#pragma once

#include "alarms/AlarmActions.h"
#include "alarms/AlarmBroadcast.h"
#include "alarms/AlarmCalendar.h"
#include "alarms/AlarmSynchronisation.h"

#include <memory>

namespace guide {

/// The alarm that a rule gives every broadcast of its title.
struct RecurringAlarm {
    int minutes = 0;
    /// As in Favorite.
    std::optional<bool> previouslyShown = {};

    friend bool operator==(const RecurringAlarm&, const RecurringAlarm&) = default;
};

/// Sets and removes alarms for the user. Main queue, except where noted; the calendar is changed on the alarm
/// queue. Without access to calendars only the counters change.
class AlarmOperations final : public AlarmActions {
  public:
    /// The synchronisation must outlive the last block on the queues.
    AlarmOperations(std::shared_ptr<AlarmCalendar> calendar, AlarmSynchronisation& synchronisation);

    void setAlarmForTitle(const QString& title, const ObjectId& onChannel, Moment at, Moment until,
                          int minutes, bool sync, bool manual) override;
    void removeAlarmForTitle(const QString& title, const ObjectId& onChannel, Moment at, bool sync,
                             bool manual) override;
    void setAlarmForTitle(const QString& title, int minutes, std::optional<bool> previouslyShown,
                          bool manual) override;
    /// Removals that are asked for one after another are made together.
    void removeAlarmForTitle(const QString& title, bool sync, bool manual) override;
    void removeAlarmsForTitles(const QStringList& titles, bool sync) override;
    int lastAlarmMinutes() const override;

    /// Unset when no rule with a recurring alarm has the title. Reads the rules if they have not been read.
    std::optional<RecurringAlarm> alarmedIdentificatorType(const QString& title) const;

    /// Rules make no event for the broadcast until it is over; one that there is goes.
    void refuseBroadcast(const AlarmBroadcast& broadcast);

    // The calendar of the alarms.

    /// All new alarms go there, on this and the user's other devices.
    void saveCalendar(const EventCalendar& calendar);
    std::shared_ptr<const AlarmsSnapshot> snapshot() const { return m_calendar->snapshot(); }

  private:
    struct Removals;

    const std::shared_ptr<AlarmCalendar> m_calendar;
    AlarmSynchronisation& m_synchronisation;
    const std::shared_ptr<Removals> m_removals;
};

/// Whether the user may select another calendar: not while there are alarms, which would be left behind.
bool mayChangeCalendar(const AlarmsSnapshot& alarms);

} // namespace guide
