#pragma once

#include "platform/queues/MainBlock.h"

namespace guide {

/// Whether the device updates schedules and alarms from time to time while the guide does not run. Main
/// queue.
class BackgroundUpdates {
  public:
    enum class State {
        /// The device starts no programs by itself.
        Unavailable,
        Off,
        On,
    };

    virtual ~BackgroundUpdates() = default;
    virtual void state(MainBlock<State> mainBlock) = 0;
    /// From now on. The block is called with whether that succeeded.
    virtual void setOn(bool on, MainBlock<bool> mainBlock) = 0;
};

} // namespace guide
