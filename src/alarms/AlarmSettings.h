#pragma once

#include "alarms/AlarmActions.h"
#include "alarms/AlarmMinutes.h"
#include "alarms/AlarmOperations.h"
#include "platform/Clock.h"
#include "store/TVEntry.h"

#include <memory>
#include <optional>

namespace guide {

/// For which broadcasts an alarm is.
enum class AlarmRepetition { OnlyThis = 0, Any = 1, Premieres = 2, Replays = 3 };

/// The choice of a show's alarm, as a user makes it: how it repeats, and how long before the show it rings.
/// Nothing is changed before the choice is applied. Main queue.
class AlarmSettings {
  public:
    struct Current {
        /// Of the title.
        std::optional<RecurringAlarm> recurring = {};
        /// Of the broadcast; unset without an alarm.
        std::optional<int> minutes = {};
        /// Whether the title also has premieres, if the broadcast is a replay, or the reverse.
        bool hasOtherType = false;
    };

    /// The clock must outlive the object.
    AlarmSettings(std::shared_ptr<const TVEntry> entry, const Current& current, const Clock& clock);

    /// How many repetitions are offered, from the first; premieres and replays only where both exist.
    int repetitionCount() const;
    AlarmRepetition repetition() const { return m_choice.repetition; }
    /// How many lead times are offered, from the first one, "None". An alarm on this broadcast can only ring
    /// in the future.
    int triggerCount() const;
    /// The index of the lead time. A choice that is no longer offered becomes the longest that is; what was
    /// set before stays as it is.
    int trigger() const { return choice().trigger; }
    /// The lead time at the index; unset for "None".
    static std::optional<int> minutesOfTrigger(int trigger);

    /// What is not offered is ignored.
    void chooseRepetition(int repetition);
    void chooseTrigger(int trigger);

    /// Whether there is something to apply.
    bool isChanged() const { return choice() != m_former; }
    // Two operations, in this order, each of which may end before the next one begins.
    void removeFormerAlarm(AlarmActions& actions) const;
    void setChosenAlarm(AlarmActions& actions, FavoriteActions& favorites) const;

  private:
    struct Choice {
        AlarmRepetition repetition = AlarmRepetition::OnlyThis;
        int trigger = 0;

        friend bool operator==(const Choice&, const Choice&) = default;
    };

    /// At this moment.
    Choice choice() const;
    QString identificator() const { return m_entry->identificator().value_or(QString()); }
    /// As rules have it.
    QString title() const { return m_entry->title().value_or(QString()); }

    const std::shared_ptr<const TVEntry> m_entry;
    const Clock& m_clock;
    const bool m_hasOtherType;
    const Choice m_former;
    Choice m_choice;
};

} // namespace guide
