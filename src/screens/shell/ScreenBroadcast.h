#pragma once

#include "platform/LifeCycle.h"
#include "screens/kit/TabBarController.h"
#include "screens/shell/ListingsScreen.h"

#include <functional>

namespace guide {

/// Tells every screen of every tab what has changed. Main queue.
class ScreenBroadcast {
  public:
    ScreenBroadcast(const TabBarController& tabBarController, const ApplicationStateSource& applicationState)
        : m_tabBarController(tabBarController)
        , m_applicationState(applicationState) {}

    /// Screens that are loaded rebuild; the others do so when they appear.
    void applicationDidBecomeActive();
    /// Nothing in the background: the next activation refreshes the screens.
    void offerTopShows(const TopShows& top);
    void reloadData();
    void recolor();
    void favoritesUpdated();
    void notificationsSynched();
    /// The first screens rebuild after the selection lost channels.
    void selectionCleanedUp();
    void setModifiedSelectedChannels();

  private:
    void tell(const std::function<void(ListingsScreen&)>& what) const;

    const TabBarController& m_tabBarController;
    const ApplicationStateSource& m_applicationState;
};

} // namespace guide
