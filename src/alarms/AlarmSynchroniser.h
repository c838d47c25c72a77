#pragma once

#include "alarms/AlarmCalendar.h"
#include "alarms/AlarmSynchronisation.h"
#include "alarms/AlertsSchedule.h"
#include "alarms/PendingAlarms.h"

#include <memory>

namespace guide {

/// Makes the calendar agree with the rules and the listings.
///
/// A run cleans the calendar up and reads it anew. Unless the mark says that calendar, listings and rules
/// agree, it also moves and removes events whose shows have moved or gone, and makes events for broadcasts of
/// recurring rules. What a phase does is decided by a pure function (AlarmPlans.h) and made in one batch on
/// the alarm queue. A run that is asked for while one is under way is made once after it.
class AlarmSynchroniser final : public AlarmSynchronisation, public AlertsSchedule, public AlarmsSource {
  public:
    explicit AlarmSynchroniser(std::shared_ptr<AlarmCalendar> calendar);

    void setSynchronized(bool synchronized) override;
    bool isSynchronized() const override;
    void syncAlarms() override;
    bool isRunning() const override;
    /// Calls the block once no run is under way: at once, or on the main queue after the run and those that
    /// were asked for meanwhile. Main queue.
    void whenIdle(Block block);
    void commit() override;
    bool hasCalendarAccess() const override;

    /// Answers from what was last read of the calendar.
    void alertsScheduleWithPriority(QueuePriority priority, MainBlock<ShowSpan> mainBlock) override;
    std::shared_ptr<const AlarmsSnapshot> snapshot() const override;

    /// Something else changed the calendar: refreshes what is known of events. Events that are new are
    /// alarms after the next run. Any thread.
    void calendarsChanged();

    // After a run whose removals the brake held back. Main queue.

    /// Starts a full run without the brake.
    void removeHeldBack();
    /// The brake holds back what the user has been told about from now on without saying so again.
    void keepHeldBack();

  private:
    struct State;
    const std::shared_ptr<State> m_state;
};

} // namespace guide
