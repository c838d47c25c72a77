#pragma once

#include "alarms/AlarmBroadcast.h"
#include "alarms/AlarmJournal.h"
#include "alarms/ShowAlarm.h"
#include "platform/queues/MainBlock.h"

namespace guide {

/// Says why shows have an alarm or none and what was done to alarms, and takes the user's decision against a
/// single broadcast. Main queue.
class AlarmExplanations {
  public:
    virtual ~AlarmExplanations() = default;

    /// From memory.
    virtual ShowAlarm alarmOf(const TVEntry& entry) const = 0;
    /// The broadcast gets no alarm from a rule; the one that it has goes. The screens are refreshed when it
    /// is done.
    virtual void refuseBroadcast(const AlarmBroadcast& broadcast) = 0;
    /// Undoes the refusal.
    virtual void allowBroadcast(const AlarmBroadcast& broadcast) = 0;
    /// The newest last; never null.
    virtual void journal(MainBlock<JournalEntries> mainBlock) = 0;
};

} // namespace guide
