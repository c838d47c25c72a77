#pragma once

namespace guide {

enum class ApplicationState { Active = 0, Inactive = 1, Background = 2 };

/// Life-cycle state of the program. May be called from any thread.
class ApplicationStateSource {
  public:
    virtual ~ApplicationStateSource() = default;
    virtual ApplicationState applicationState() const = 0;
};

/// Receives the device's events on the main queue. "Active" means that the window is visible, not that it has
/// the focus. Midnight, a change of zone and waking from sleep are significant time changes.
class LifeCycleObserver {
  public:
    virtual ~LifeCycleObserver() = default;
    virtual void applicationDidBecomeActive() = 0;
    virtual void applicationDidEnterBackground() = 0;
    virtual void applicationWillTerminate() = 0;
    virtual void applicationDidReceiveMemoryWarning() = 0;
    virtual void applicationSignificantTimeChange() = 0;
};

} // namespace guide
