#pragma once

#include "screens/kit/TableViewController.h"
#include "store/ShowItem.h"

#include <unordered_map>
#include <unordered_set>

namespace guide {

/// The first shows of freshly loaded channels.
using TopShows = std::unordered_map<ObjectId, ShowSpan>;

/// A screen that shows listings and reacts to changes of listings, alarms, favourites and settings.
class ListingsScreen : public TableViewController {
  public:
    virtual void applicationDidBecomeActive() {}
    virtual void applicationDidEnterBackground() {}
    /// The update cycle has stored new lists.
    virtual void offerTopShows(const TopShows&) {}
    /// The load failure of these channels has changed.
    virtual void loadsEnded(const std::unordered_set<ObjectId>&) {}
    virtual void reloadData() {}
    virtual void recolor() {}
    virtual void notificationsSynched() {}
    virtual void favoritesUpdated() {
        notificationsSynched();
        recolor();
    }
    /// The catalogue was replaced, or channels that it no longer lists were removed from the selection.
    virtual void selectionCleanedUp() {}
    virtual void setModifiedSelectedChannels(bool) {}
    /// The user's own sources, or their states, have changed.
    virtual void ownSourcesChanged() {}
};

} // namespace guide
