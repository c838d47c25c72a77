#pragma once

#include "platform/Clock.h"
#include "platform/RecordStore.h"

#include <memory>
#include <mutex>

struct sqlite3;

namespace guide {

/// Counters in a file of this device. A file that cannot be opened or is damaged makes every call fail.
class SQLiteRecordStore final : public RecordStore {
  public:
    SQLiteRecordStore(const QString& path, const Clock& clock);
    ~SQLiteRecordStore() override;

    std::optional<CounterRecord> counter(const QString& title) override;
    bool setCounter(const QString& title, std::int64_t counter) override;
    bool incrementCounter(const QString& title, std::int64_t amount, const CounterRule& rule) override;
    bool removeCounters(const std::vector<QString>& titles) override;
    /// Of counters that were changed at the same time the one first in the alphabet is first.
    std::optional<std::vector<CounterRecord>> countersByModification(std::size_t limit) override;

  private:
    class Statement;
    struct Close {
        void operator()(sqlite3* database) const;
    };

    /// Requires the guard.
    bool execute(const char* statement);
    /// Ends a transaction. False when it was not carried out. Requires the guard.
    bool end(bool isDone);

    const Clock& m_clock;
    std::mutex m_guard;
    std::unique_ptr<sqlite3, Close> m_database; // guarded
};

} // namespace guide
