#pragma once

#include "screens/kit/TableViewController.h"
#include "store/ShowItem.h"

#include <unordered_map>

namespace guide {

/// The first shows of freshly loaded channels.
using TopShows = std::unordered_map<ObjectId, ShowSpan>;

/// A screen that shows listings, and what it does when they, the alarms, the favourites or the settings
/// change.
class ListingsScreen : public TableViewController {
  public:
    virtual void applicationDidBecomeActive() {}
    /// The update cycle has stored new lists.
    virtual void offerTopShows(const TopShows&) {}
    virtual void reloadData() {}
    virtual void recolor() {}
    virtual void notificationsSynched() {}
    virtual void favoritesUpdated() {
        notificationsSynched();
        recolor();
    }
    /// The selection lost channels that the catalogue no longer has.
    virtual void selectionCleanedUp() {}
    virtual void setModifiedSelectedChannels(bool) {}
};

} // namespace guide
