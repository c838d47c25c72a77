#pragma once

#include "alarms/AlarmActions.h"
#include "alarms/AlarmSynchronisation.h"
#include "alarms/ShowCounters.h"
#include "alarms/TVShows.h"
#include "platform/Clock.h"
#include "platform/queues/DispatchQueue.h"

#include <functional>

namespace guide {

/// The dependencies of the operations. All of them must outlive the last block on the main queue.
struct FavoriteOperationsEnvironment {
    const Clock& clock;
    DispatchQueue& mainQueue;
    TVShows& shows;
    AlarmActions& alarmActions;
    /// Sets the recurring alarms of rules that return.
    AlarmSynchronisation& alarms;
    ShowCounters& counters;
    /// Refreshes the screens. Main queue.
    std::function<void()> favoritesUpdated;
};

/// How rules come into and leave the store of rules on the user's behalf. Main queue.
class FavoriteOperations final : public FavoriteActions {
  public:
    explicit FavoriteOperations(FavoriteOperationsEnvironment environment)
        : m_environment(std::move(environment)) {}

    void addFavorite(const QString& title) override;
    void removeFavorites(const QStringList& titles) override;
    void restoreFavorites(const FavoritesSnapshot& before, const QStringList& titles) override;
    bool noteAlarmSet(const QString& title) override {
        return m_environment.shows.setDate(title, m_environment.clock.now());
    }

  private:
    const FavoriteOperationsEnvironment m_environment;
};

/// `current` with the rules of `before` that have one of the titles, unless the title has a rule in
/// `current`. Each of them follows the rule that it followed in `before`, or the nearest one before that
/// which still exists.
std::vector<Favorite> restoredFavorites(const FavoritesSnapshot& current, const FavoritesSnapshot& before,
                                        const QStringList& titles);

} // namespace guide
