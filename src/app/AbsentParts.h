#pragma once

#include "store/ShowQuestions.h"

namespace guide {

// The guide without alarms, favourites, popular shows and other devices: each answers that there is nothing,
// which is the truth for as long as nothing can make any.

/// No show is a favourite.
class NoFavorites final : public FavoriteQuestions {
  public:
    bool containsFavoriteNamed(const QString&) const override { return false; }
    bool hasFavorites() const override { return false; }
};

/// What the delegate asks of the calendar beside what rows ask.
class AlarmCalendar : public AlarmQuestions, public AlarmSynchronisation {
  public:
    /// Writes what the calendar has not written yet, in the background.
    virtual void commit() = 0;
};

/// No show has an alarm, so there is nothing to bring into step.
class NoAlarms final : public AlarmCalendar {
  public:
    int alarmedEntry(const TVEntry&) const override { return -1; }
    int eventCount() const override { return 0; }
    void setSynchronized(bool) override {}
    void syncAlarms() override {}
    void commit() override {}
};

/// Nobody has counted what is watched.
class NoPopularShows final : public PopularShows {
  public:
    ShowList popularShows() const override { return nullptr; }
    bool contains(const ShowItem&) const override { return false; }
    void refresh() override {}
};

/// The values that other devices have written.
class CloudValues {
  public:
    virtual ~CloudValues() = default;
    /// Takes over what has changed elsewhere. Main queue.
    virtual void cloudDidChangeExternally() = 0;
};

/// There are no other devices.
class NoCloudValues final : public CloudValues {
  public:
    void cloudDidChangeExternally() override {}
};

} // namespace guide
