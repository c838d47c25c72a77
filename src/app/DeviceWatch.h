#pragma once

#include "app/MemoryWarning.h"
#include "app/SignificantTime.h"
#include "platform/Clock.h"
#include "platform/Device.h"
#include "platform/LifeCycle.h"

#include <QTimer>

namespace guide {

/// Polls the device's clocks and memory, and reports significant changes of time to an active application and
/// short memory to any. Main thread; what it is given must outlive it.
class DeviceWatch {
  public:
    DeviceWatch(const Clock& clock, const Device& device, const ApplicationStateSource& state,
                LifeCycleObserver& observer);

    /// Polls every 20 seconds from now on.
    void start();
    void poll();

  private:
    const Clock& m_clock;
    const Device& m_device;
    const ApplicationStateSource& m_state;
    LifeCycleObserver& m_observer;
    SignificantTime m_time;
    MemoryWarning m_memory;
    QTimer m_timer;
};

} // namespace guide
