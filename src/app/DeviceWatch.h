#pragma once

#include "app/MemoryWarning.h"
#include "app/SignificantTime.h"
#include "platform/Clock.h"
#include "platform/Device.h"
#include "platform/LifeCycle.h"

#include <QTimer>

namespace guide {

/// Polls the device's clocks and memory. Reports significant changes of time while the application is active,
/// and low memory in any state. Main thread. The arguments must outlive it.
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
