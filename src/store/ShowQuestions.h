#pragma once

#include "store/ShowItem.h"

#include <QString>

namespace guide {

/// What the store and the screens ask of the favourites. Answers from memory at once, on any thread.
class FavoriteQuestions {
  public:
    virtual ~FavoriteQuestions() = default;
    virtual bool containsFavoriteNamed(const QString& title) const = 0;
    /// Whether there is any rule at all.
    virtual bool hasFavorites() const = 0;
};

/// What rows ask of the alarms. Answers from memory at once, on any thread.
class AlarmQuestions {
  public:
    virtual ~AlarmQuestions() = default;
    /// Minutes between the alert and the show; negative when the show has no alarm.
    virtual int alarmedEntry(const TVEntry& entry) const = 0;
    /// How many alarms are pending.
    virtual int eventCount() const = 0;
};

/// The list of the most watched shows. Any thread.
class PopularShows {
  public:
    virtual ~PopularShows() = default;
    /// Null when there is none.
    virtual ShowList popularShows() const = 0;
    virtual bool contains(const ShowItem& item) const = 0;
    /// Starts the refresh of the list; answers later through the store.
    virtual void refresh() = 0;
};

/// What the store tells the alarms when listings have changed.
class AlarmSynchronisation {
  public:
    virtual ~AlarmSynchronisation() = default;
    /// Marks whether the calendar agrees with the listings and the rules. Any thread.
    virtual void setSynchronized(bool synchronized) = 0;
    /// Starts a synchronisation, which does nothing when the mark is set. Main queue.
    virtual void syncAlarms() = 0;
};

} // namespace guide
