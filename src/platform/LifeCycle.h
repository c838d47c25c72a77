#pragma once

namespace guide {

enum class ApplicationState { Active = 0, Inactive = 1, Background = 2 };

/// Where the program is in its life, as the device tells it. May be asked from any thread.
class ApplicationStateSource {
  public:
    virtual ~ApplicationStateSource() = default;
    virtual ApplicationState applicationState() const = 0;
};

/// Receives the device's events, on the main queue. "Active" is the window visible again, not focused;
/// midnight, a change of zone and waking from sleep are significant changes of time.
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
