#pragma once

#include <QString>

namespace guide {

/// The public counters of how much shows are liked, by title.
class ShowCounters {
  public:
    virtual ~ShowCounters() = default;
    /// Starts the change in the background. Main queue.
    virtual void incrementCounterByAmount(int amount, const QString& identificator) = 0;
};

} // namespace guide
