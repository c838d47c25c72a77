#pragma once

#include "alarms/AlarmJournal.h"
#include "alarms/AlarmSettings.h"
#include "alarms/ShowAlarm.h"
#include "platform/Device.h"
#include "screens/kit/Alert.h"
#include "screens/kit/Symbol.h"

#include <QString>

#include <cstddef>
#include <functional>
#include <optional>

namespace guide {

/// "10 min", "2 h"; "At start" for 0.
QString shortLeadText(int minutes);

/// Why a show has an alarm or none, in one sentence; empty where the lead time says it all.
QString showAlarmText(const ShowAlarm& alarm);

/// What a choice leads to: "10 minutes before every premiere on any channel".
QString alarmEffectText(AlarmRepetition repetition, std::optional<int> minutes);

/// What was done and why, in one sentence. Times are in the device's zone, with their day where it is not
/// that of the other time.
QString journalText(const JournalEntry& entry, const Device& device);
Symbol journalSymbol(const JournalEntry& entry);

/// Asks about removals that were held back because there are so many.
Alert heldBackAlert(std::size_t count, std::function<void()> remove, std::function<void()> keep);

} // namespace guide
