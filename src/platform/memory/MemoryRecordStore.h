#pragma once

#include "platform/Clock.h"
#include "platform/RecordStore.h"

#include <QMap>

#include <algorithm>
#include <mutex>

namespace guide {

/// Counters of the process. Of counters that were changed at the same time the one first in the alphabet is
/// first.
class MemoryRecordStore final : public RecordStore {
  public:
    explicit MemoryRecordStore(const Clock& clock)
        : m_clock(clock) {}

    std::optional<CounterRecord> counter(const QString& title) override {
        const std::lock_guard lock(m_guard);
        const auto found = m_records.constFind(title);
        return found == m_records.cend() ? std::nullopt : std::optional(*found);
    }
    bool setCounter(const QString& title, std::int64_t counter) override {
        put({title, counter, m_clock.now()});
        return true;
    }
    bool incrementCounter(const QString& title, std::int64_t amount, const CounterRule& rule) override {
        const std::lock_guard lock(m_guard);
        const auto found = m_records.find(title);
        if (found == m_records.end()) {
            if (rule.makesMissing) {
                m_records.insert(title, {title, amount, m_clock.now()});
            }
            return true;
        }
        if (rule.removesBelowOne && found->counter + amount < 1) {
            m_records.erase(found);
            return true;
        }
        found->counter += amount;
        found->modified = m_clock.now();
        return true;
    }
    bool removeCounters(const std::vector<QString>& titles) override {
        const std::lock_guard lock(m_guard);
        for (const QString& title : titles) {
            m_records.remove(title);
        }
        return true;
    }
    std::optional<std::vector<CounterRecord>> countersByModification(std::size_t limit) override {
        const std::lock_guard lock(m_guard);
        std::vector<CounterRecord> records(m_records.cbegin(), m_records.cend());
        std::ranges::stable_sort(records, std::ranges::greater(), &CounterRecord::modified);
        records.resize(std::min(limit, records.size()));
        return records;
    }

    /// Replaces the record, with its modification time.
    void put(const CounterRecord& record) {
        const std::lock_guard lock(m_guard);
        m_records.insert(record.title, record);
    }

  private:
    const Clock& m_clock;
    std::mutex m_guard;
    QMap<QString, CounterRecord> m_records; // guarded
};

} // namespace guide
