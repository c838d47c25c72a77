#pragma once

#include "platform/RecordStore.h"
#include "platform/linux/database/PostgresSession.h"

#include <functional>
#include <memory>

namespace guide {

/// Counters in a PostgreSQL database. Increments that cannot be sent wait in a bounded queue, which outlives
/// the program, and are counted once each when there is a connection again. The database gives only counters
/// that reach the minimum of its administrator, and only the administrator sets and removes counters.
class PostgresRecordStore final : public RecordStore {
  public:
    /// `queuePath` is the file of increments to be sent. Adds itself to the session, which must not have been
    /// started.
    PostgresRecordStore(std::shared_ptr<PostgresSession> session, const QString& queuePath,
                        const QString& address, DispatchQueues& queues);
    ~PostgresRecordStore() override;

    std::optional<CounterRecord> counter(const QString& title) override;
    /// Always false: only the administrator sets counters.
    bool setCounter(const QString& title, std::int64_t counter) override;
    /// True also when the increment will be counted later.
    bool incrementCounter(const QString& title, std::int64_t amount, const CounterRule& rule) override;
    /// Removes nothing, as the database removes by the limits of its administrator.
    bool removeCounters(const std::vector<QString>& titles) override;
    std::optional<std::vector<CounterRecord>> countersByModification(std::size_t limit) override;

    /// What removes the file of increments for good. Any thread, also after the end of the store.
    std::function<void()> forgetting() const;

  private:
    class Sender;

    const std::shared_ptr<PostgresSession> m_session;
    const std::shared_ptr<Sender> m_sender;
};

} // namespace guide
