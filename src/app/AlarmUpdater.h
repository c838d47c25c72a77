#pragma once

#include "alarms/AlarmSynchronisation.h"
#include "platform/LifeCycle.h"
#include "platform/UserDefaults.h"
#include "platform/queues/DispatchQueue.h"
#include "store/ListingsObserver.h"

namespace guide {

/// Synchronises the alarms with the listings whenever these change. Its dependencies must outlive the
/// blocks on the main queue.
class AlarmUpdater final : public ListingsObserver {
  public:
    AlarmUpdater(AlarmSynchronisation& alarms, DispatchQueue& mainQueue,
                 const ApplicationStateSource& applicationState, UserDefaults& userDefaults)
        : m_alarms(alarms)
        , m_mainQueue(mainQueue)
        , m_applicationState(applicationState)
        , m_userDefaults(userDefaults) {}

    void listingsReplaced() override {
        // Immediately, so that the next start synchronises if the process ends before the run.
        m_alarms.setSynchronized(false);
        m_mainQueue.async([&alarms = m_alarms, &state = m_applicationState, &defaults = m_userDefaults] {
            if (state.applicationState() == ApplicationState::Background) {
                defaults.synchronize();
            }
            alarms.syncAlarms();
        });
    }

  private:
    AlarmSynchronisation& m_alarms;
    DispatchQueue& m_mainQueue;
    const ApplicationStateSource& m_applicationState;
    UserDefaults& m_userDefaults;
};

} // namespace guide
