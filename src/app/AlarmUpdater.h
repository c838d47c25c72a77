#pragma once

#include "alarms/AlarmSynchronisation.h"
#include "platform/LifeCycle.h"
#include "platform/UserDefaults.h"
#include "platform/queues/DispatchQueue.h"
#include "store/ListingsObserver.h"

namespace guide {

/// Synchronises the alarms with the listings whenever these change. Everything it is given must outlive the
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
        // At once: should the process end before the run, the next start makes up for it.
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
