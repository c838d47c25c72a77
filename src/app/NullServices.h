#pragma once

#include "alarms/AlarmSynchronisation.h"
#include "alarms/Favorites.h"
#include "alarms/PendingAlarms.h"
#include "store/PopularShows.h"

namespace guide {

// Implementations for a guide without alarms, favourites, popular shows and other devices: all of them are
// empty.

/// No show is a favourite.
class NoFavorites final : public FavoritesSource {
  public:
    std::shared_ptr<const FavoritesSnapshot> snapshot() const override { return m_none; }

  private:
    const std::shared_ptr<const FavoritesSnapshot> m_none = std::make_shared<const FavoritesSnapshot>();
};

/// No show has an alarm, so there is nothing to synchronise.
class NoAlarms final : public AlarmsSource, public AlarmSynchronisation {
  public:
    std::shared_ptr<const AlarmsSnapshot> snapshot() const override { return m_none; }
    void setSynchronized(bool) override {}
    void syncAlarms() override {}
    void commit() override {}

  private:
    const std::shared_ptr<const AlarmsSnapshot> m_none = std::make_shared<const AlarmsSnapshot>();
};

/// No show is known to be popular.
class NoPopularShows final : public PopularShows {
  public:
    ShowList popularShows() const override { return nullptr; }
    bool contains(const ShowItem&) const override { return false; }
    void refresh() override {}
};

/// The settings and lists that the user's other devices share.
class CloudValues {
  public:
    virtual ~CloudValues() = default;
    /// Applies changes made on other devices. Main queue.
    virtual void cloudDidChangeExternally() = 0;
};

/// There are no other devices.
class NoCloudValues final : public CloudValues {
  public:
    void cloudDidChangeExternally() override {}
};

} // namespace guide
