#pragma once

#include "platform/Moment.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace guide {

/// A counter that all users share.
struct CounterRecord {
    QString title;
    std::int64_t counter = 0;
    Moment modified;

    friend bool operator==(const CounterRecord&, const CounterRecord&) = default;
};

/// What an increment does beside adding to a counter that is there.
struct CounterRule {
    /// Without a counter, makes one with the amount, even if that is negative.
    bool makesMissing = true;
    /// Removes the counter when the sum is below 1.
    bool removesBelowOne = true;
};

/// Counters by title, shared by all users. All functions may block on a network, so they are for background
/// queues; any thread.
class RecordStore {
  public:
    virtual ~RecordStore() = default;

    /// Nothing when there is none or the store cannot be reached. A store that strangers share may keep small
    /// counters to itself.
    virtual std::optional<CounterRecord> counter(const QString& title) = 0;
    /// False when it failed, or when only the store's administrator sets counters.
    virtual bool setCounter(const QString& title, std::int64_t counter) = 0;
    /// In one step, so that no increment by another user is lost. False when it failed.
    virtual bool incrementCounter(const QString& title, std::int64_t amount, const CounterRule& rule) = 0;
    /// False when it failed. A store that strangers share may leave the removal to its administrator; true
    /// then.
    virtual bool removeCounters(const std::vector<QString>& titles) = 0;
    /// At most `limit` counters, the most recently changed first. Nothing when it failed.
    virtual std::optional<std::vector<CounterRecord>> countersByModification(std::size_t limit) = 0;
    /// Whether the counters are those of other users, too.
    virtual bool isShared() const { return true; }
};

} // namespace guide
