#pragma once

#include "platform/RecordStore.h"

#include <QString>
#include <QUuid>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <set>
#include <vector>

namespace guide {

/// Increments of counters that are to be sent, in order, kept in a file while they cannot be. Any thread.
class IncrementQueue {
  public:
    struct Increment {
        QString title;
        std::int64_t amount = 0;
        CounterRule rule;
    };
    /// The first increments of the queue under an id. Once made, a batch stays the same until it is removed
    /// or divided, so that it can be sent again when the answer was lost.
    struct Batch {
        QUuid id;
        std::vector<Increment> increments;
    };
    using Ticket = std::uint64_t;

    static constexpr std::size_t kCapacity = 10'000;
    static constexpr std::size_t kMostInBatch = 200;

    /// A file that does not exist, is damaged or is of another address counts as empty.
    IncrementQueue(QString path, QString address);

    /// Nothing when the queue is full.
    std::optional<Ticket> add(const Increment& increment);
    std::optional<Batch> nextBatch();
    void removeBatch();
    /// The next batches have one increment each, until this batch is through.
    void divideBatch();
    /// Removes a batch of one increment that is not accepted.
    void refuseBatch();
    /// Whether the increment was refused. Answers once.
    bool wasRefused(Ticket ticket);

    /// Saves if there is a file, which a restart would read. To be called before a batch is sent and after it
    /// was counted: otherwise a batch that is not the last one of this device could be sent again.
    void saveIfInFile();
    /// Keeps in the file what is still to be sent, or removes the file.
    void save();
    /// Removes the file for good.
    void forget();

  private:
    void load();
    void removeFirst(std::size_t count);

    const QString m_path;
    const QString m_address;
    std::mutex m_guard;
    // guarded
    std::deque<Increment> m_increments;
    Ticket m_firstTicket = 0;
    /// The size of the batch that was made, or 0.
    std::size_t m_batchSize = 0;
    QUuid m_batchId;
    /// How many increments are still to be sent one by one.
    std::size_t m_divided = 0;
    std::set<Ticket> m_refused;
    bool m_isInFile = false;
    bool m_needsSaving = false;
    std::mutex m_fileGuard;
    bool m_isForgotten = false; // guarded by the one above
};

} // namespace guide
