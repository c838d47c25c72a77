#pragma once

#include "alarms/AlarmSynchronisation.h"
#include "alarms/PendingAlarms.h"
#include "alarms/TVShows.h"
#include "cloud/ReplacedLists.h"
#include "core/TVChannels.h"
#include "platform/UserDefaults.h"
#include "store/TVListings.h"

#include <functional>
#include <optional>

namespace guide {

/// The dependencies of the synchronisation. All of them must outlive the last block on the queues.
struct CloudSyncEnvironment {
    DispatchQueue& mainQueue;
    KeyValueStore& keyValueStore;
    UserDefaults& userDefaults;
    TVChannels& channels;
    TVShows& shows;
    TVListings& listings;
    const AlarmsSource& alarms;
    AlarmSynchronisation& alarmSynchronisation;
    ReplacedLists& replacedLists;
    // On the main queue.
    std::function<void()> checkAndUpdateAllChannels;
    /// Another selection is in force: tabs and screens follow it.
    std::function<void()> selectionReplaced;
    std::function<void()> favoritesUpdated;
    /// An empty list of another device has replaced these rules, more than three.
    std::function<void(const std::vector<Favorite>& before)> favoritesEmptied;
};

/// Takes over what the user's other devices have stored. There is no merge: a list from another device
/// replaces the one of this device, which is kept in ReplacedLists. Only a list that was changed here and has
/// not reached the key-value store yet stays. Main queue.
class CloudSync {
  public:
    /// Why the key-value store says that values have changed.
    enum class Reason { Server, InitialSync, QuotaViolation, AccountChange };

    explicit CloudSync(CloudSyncEnvironment environment)
        : m_environment(std::move(environment)) {}

    /// Without a reason the values are only looked at, as at each activation.
    void cloudDidChangeExternally(std::optional<Reason> reason);

    // Put a list that was replaced in the place of the current one, which is kept.

    void restoreFavorites(std::vector<Favorite> rules);
    void restoreSelection(const std::vector<ObjectId>& selected);

  private:
    /// Each returns whether the alarms have to be run.
    bool takeCalendar();
    bool takeFavorites();
    void takeSelection();
    /// Keeps a copy of the list that was replaced, unless all of it is in the present one too.
    template <typename List>
    Block keepUnlessIn(const List& present, const List& replaced) const;
    void selectionChanged(const std::vector<ObjectId>& before, const std::vector<ObjectId>& now);

    const CloudSyncEnvironment m_environment;
};

} // namespace guide
