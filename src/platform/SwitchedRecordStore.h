#pragma once

#include "platform/RecordStore.h"

#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace guide {

/// A store of counters in whose place another one, or none, can be put while it is used. Any thread.
class SwitchedRecordStore final : public RecordStore {
  public:
    /// Null for none: then there are no counters, and increments are dropped.
    void replace(std::shared_ptr<RecordStore> store) {
        const std::lock_guard lock(m_guard);
        m_store.swap(store);
    }

    std::optional<CounterRecord> counter(const QString& title) override {
        const auto store = current();
        return store ? store->counter(title) : std::nullopt;
    }
    bool setCounter(const QString& title, std::int64_t counter) override {
        const auto store = current();
        return store && store->setCounter(title, counter);
    }
    bool incrementCounter(const QString& title, std::int64_t amount, const CounterRule& rule) override {
        const auto store = current();
        return store && store->incrementCounter(title, amount, rule);
    }
    bool removeCounters(const std::vector<QString>& titles) override {
        const auto store = current();
        return store && store->removeCounters(titles);
    }
    std::optional<std::vector<CounterRecord>> countersByModification(std::size_t limit) override {
        const auto store = current();
        return store ? store->countersByModification(limit) : std::nullopt;
    }
    bool isShared() const override { return current() != nullptr; }

  private:
    std::shared_ptr<RecordStore> current() const {
        const std::lock_guard lock(m_guard);
        return m_store;
    }

    mutable std::mutex m_guard;
    std::shared_ptr<RecordStore> m_store;
};

} // namespace guide
