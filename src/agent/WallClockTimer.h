#pragma once

#include "platform/Moment.h"
#include "platform/linux/FileDescriptor.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace guide {

/// Wakes the process at a time of the wall clock, also when the clock was set past it or the machine slept
/// until later. Main thread.
class WallClockTimer {
  public:
    /// `woken` is called once after each set(): at the time, or at once when the clock was set, with whether
    /// it was.
    explicit WallClockTimer(std::function<void(bool clockWasSet)> woken);

    /// Replaces the time; one that has passed wakes at once.
    void set(Moment at);

  private:
    void read();

    const std::function<void(bool)> m_woken;
    const FileDescriptor m_timer;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace guide
