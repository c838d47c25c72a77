#pragma once

#include "alarms/ShowCounters.h"
#include "platform/RecordStore.h"
#include "platform/queues/DispatchQueue.h"

#include <memory>

namespace guide {

/// The counters in a store of records. Increments are made one after another in the background; one that
/// fails is lost, since popularity is an estimate.
class RecordCounters final : public ShowCounters {
  public:
    /// The store must outlive the last block on the queue.
    RecordCounters(RecordStore& records, DispatchQueues& queues)
        : m_records(records)
        , m_queue(queues.makeQueue("showCounter", QueueKind::Serial, QueuePriority::Background)) {}

    void incrementCounterByAmount(int amount, const QString& identificator) override;
    void countAddedFavorite(const QString& identificator) override;
    void countRemovedFavorite(const QString& identificator) override;

  private:
    void increment(int amount, const QString& title, const CounterRule& rule);

    RecordStore& m_records;
    const std::shared_ptr<DispatchQueue> m_queue;
};

} // namespace guide
