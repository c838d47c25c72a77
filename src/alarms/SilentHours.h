#pragma once

#include "platform/Moment.h"
#include "store/LocalTime.h"

#include <QTimeZone>

namespace guide {

class Device;
class KeyValueStore;

/// A daily period, in minutes of the day, in which generated alarms must not ring.
struct SilentPeriod {
    int from = 0;
    int to = 7 * 60;
    /// A period that ends before its start lasts from the start to midnight and from midnight to the end.
    bool acrossMidnight = false;

    /// Whether an alarm may ring at the minute of the day. Both ends are allowed. A period that does not end
    /// after its start refuses every minute, unless it may lie across midnight.
    bool mayBeAlarmedAt(int minuteOfDay) const;
};

/// The silent hours as the user has set them, at one moment and in one zone. They are shared between the
/// user's devices. Immutable; any thread.
class SilentHours {
  public:
    /// Switched off.
    SilentHours() = default;
    /// Switched on.
    SilentHours(const SilentPeriod& period, const QTimeZone& zone)
        : m_zone(zone)
        , m_enabled(true)
        , m_period(period) {}
    /// Reads the settings; to check many moments, create one instance per run.
    SilentHours(const KeyValueStore& store, const Device& device);

    bool enabled() const { return m_enabled; }
    /// From 00:00 to 07:00 where nothing is set. Only the time of day of a stored date counts, in the zone.
    const SilentPeriod& period() const { return m_period; }
    bool mayBeAlarmedAt(Moment moment) const;
    /// For many moments, with one clock().
    bool mayBeAlarmedAt(Moment moment, LocalTime& clock) const;
    LocalTime clock() const { return LocalTime(m_zone); }

  private:
    QTimeZone m_zone;
    bool m_enabled = false;
    SilentPeriod m_period;
};

/// The settings. The times stay when the feature is switched off.
void setSilentHoursEnabled(KeyValueStore& store, bool enabled);
/// The time of day of the moment counts, in the zone of the device that reads it.
void setSilentHoursFrom(KeyValueStore& store, Moment from);
void setSilentHoursTo(KeyValueStore& store, Moment to);
void setSilentHoursAcrossMidnight(KeyValueStore& store, bool acrossMidnight);
/// Whether any of the settings is stored.
bool hasSilentHours(const KeyValueStore& store);
void removeSilentHours(KeyValueStore& store);
/// Whether it was ever switched on or off.
bool isSilentHoursAcrossMidnightSet(const KeyValueStore& store);

} // namespace guide
