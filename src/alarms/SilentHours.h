#pragma once

#include "platform/Moment.h"

namespace guide {

class Device;
class KeyValueStore;

/// A daily stretch of time, in minutes of the day, in which generated alarms must not ring.
struct SilentStretch {
    int from = 0;
    int to = 7 * 60;

    /// Whether an alarm may ring at the minute of the day. Both ends are allowed. A stretch that does not end
    /// after it begins, as one across midnight, refuses every minute.
    bool mayBeAlarmedAt(int minuteOfDay) const;
};

/// The silent hours as the user has set them; they follow the user between devices. Any thread.
class SilentHours {
  public:
    SilentHours(const KeyValueStore& store, const Device& device)
        : m_store(store)
        , m_device(device) {}

    bool enabled() const;
    /// From 00:00 to 07:00 where nothing is set. Of a stored date only its clock time in the device's zone
    /// counts.
    SilentStretch stretch() const;
    bool mayBeAlarmedAt(Moment moment) const;

  private:
    const KeyValueStore& m_store;
    const Device& m_device;
};

} // namespace guide
