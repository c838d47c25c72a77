#pragma once

#include <QString>

namespace guide {

/// The public counters of how much shows are liked, by title.
class ShowCounters {
  public:
    virtual ~ShowCounters() = default;
    // All of them start the change in the background. Main queue.

    /// Makes a counter that is missing, also with a negative amount, and removes one that falls below 1.
    virtual void incrementCounterByAmount(int amount, const QString& identificator) = 0;
    /// The title became a favourite: makes a counter that is missing, and removes none.
    virtual void countAddedFavorite(const QString& identificator) = 0;
    /// The title is no favourite any more: makes no counter, and removes one that falls below 1.
    virtual void countRemovedFavorite(const QString& identificator) = 0;
};

} // namespace guide
