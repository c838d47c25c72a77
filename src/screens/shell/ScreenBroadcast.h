#pragma once

#include "platform/LifeCycle.h"
#include "screens/kit/TabBarController.h"
#include "screens/shell/ListingsScreen.h"

#include <functional>

namespace guide {

/// Passes changes on to every screen of every tab. Main queue.
class ScreenBroadcast {
  public:
    ScreenBroadcast(const TabBarController& tabBarController, const ApplicationStateSource& applicationState)
        : m_tabBarController(tabBarController)
        , m_applicationState(applicationState) {}

    /// Loaded screens rebuild now, the others when they appear.
    void applicationDidBecomeActive();
    void applicationDidEnterBackground();
    /// Does nothing in the background, because the next activation refreshes the screens.
    void offerTopShows(const TopShows& top);
    /// The load failure of these channels has changed: a load has begun, or ended without a list. Does
    /// nothing in the background either.
    void loadsEnded(const std::unordered_set<ObjectId>& channels);
    void reloadData();
    void recolor();
    void favoritesUpdated();
    void notificationsSynched();
    /// Called after the catalogue was replaced or has cost the selection channels.
    void selectionCleanedUp();
    void setModifiedSelectedChannels();
    /// The user's own sources, or their states, have changed.
    void ownSourcesChanged();

  private:
    void forEachScreen(const std::function<void(ListingsScreen&)>& call) const;

    const TabBarController& m_tabBarController;
    const ApplicationStateSource& m_applicationState;
};

} // namespace guide
