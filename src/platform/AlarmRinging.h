#pragma once

#include "platform/queues/MainBlock.h"

#include <QStringList>

namespace guide {

struct AlarmRingingState {
    bool isOn = false;
    /// Another program of the desktop rings the events of the calendars that hold the alarms.
    bool desktopRings = false;

    friend bool operator==(const AlarmRingingState&, const AlarmRingingState&) = default;
};

/// Whether the alarms ring on this device, also while the guide does not run. Main queue.
class AlarmRinging {
  public:
    virtual ~AlarmRinging() = default;
    virtual void state(MainBlock<AlarmRingingState> mainBlock) = 0;
    /// From now on and after each login. The block is called with whether that succeeded.
    virtual void setOn(bool on, MainBlock<bool> mainBlock) = 0;
    /// The titles of the channels whose alarms offer to play their streams.
    virtual void setPlayableChannels(const QStringList& titles) = 0;
};

} // namespace guide
