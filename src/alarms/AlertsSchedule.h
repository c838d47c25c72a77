#pragma once

#include "platform/queues/DispatchQueue.h"
#include "platform/queues/MainBlock.h"
#include "store/ShowItem.h"

namespace guide {

/// Provides the shows to come that have an alert. Any thread.
class AlertsSchedule {
  public:
    virtual ~AlertsSchedule() = default;
    /// In ascending start time.
    virtual void alertsScheduleWithPriority(QueuePriority priority, MainBlock<ShowSpan> mainBlock) = 0;
};

} // namespace guide
