#pragma once

#include "core/ObjectId.h"
#include "platform/BackgroundTasks.h"
#include "platform/Clock.h"
#include "platform/files/Folders.h"
#include "platform/queues/DispatchQueue.h"
#include "store/ChannelList.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <unordered_map>
#include <utility>

namespace guide {

/// Keeps track of the lists that have changed since their files were written, and writes the files on a
/// serial background queue. While any are scheduled, it asks for them to be written every kLongestWait. In a
/// profile that cannot be written nothing is ever scheduled. The constructor's arguments must outlive the
/// last block on that queue. Any thread.
class SaveSchedule : public std::enable_shared_from_this<SaveSchedule> {
  public:
    /// How long a list that was just loaded, or one that changed, may wait for its file to be written.
    static constexpr std::chrono::seconds kWaitAfterCheck{20};
    static constexpr std::chrono::minutes kLongestWait{10};

    SaveSchedule(DispatchQueues& queues, const Clock& clock, const Folders& folders,
                 BackgroundTasks& backgroundTasks);

    /// Sets the block that starts a write. It is called on the queue. Call before any other operation.
    void setDue(Block due) { m_due = std::move(due); }

    DispatchQueue& queue() { return *m_queue; }

    /// Schedules the lists, asynchronously. Their files get the current time as their date.
    void add(std::vector<ObjectId> channels) { add(std::move(channels), m_clock.now()); }
    /// The same with another date.
    void add(std::vector<ObjectId> channels, Moment loaded);
    /// Asks for the scheduled lists to be written in kWaitAfterCheck. Must run on the queue.
    void checkEnded() { writeAfter(kWaitAfterCheck, m_afterCheck); }
    /// Blocks on the queue.
    bool contains(const ObjectId& channel);
    bool empty();

    /// Writes the files of the scheduled lists together, under a background task. Must run on the queue. The
    /// file of a list whose shows have all ended is left alone; a list that could not be written stays
    /// scheduled.
    void write(const ChannelLists& lists);

    /// While set, write() starts no further file, and the remaining lists stay scheduled.
    void setAbandoned(bool abandoned) { m_abandoned.store(abandoned, std::memory_order_relaxed); }

  private:
    /// Asks for a write after the time, unless nothing is scheduled or the timer is running.
    void writeAfter(std::chrono::milliseconds time, bool& running);
    void report(std::size_t failed);

    DispatchQueues& m_queues;
    const Clock& m_clock;
    const QString m_cachesFolder;
    const bool m_writable;
    BackgroundTasks& m_backgroundTasks;
    const std::shared_ptr<DispatchQueue> m_queue;
    /// The load time of each list, which becomes its file's date. Used on the queue.
    std::unordered_map<ObjectId, Moment> m_scheduled;
    std::atomic<bool> m_abandoned{false};
    Block m_due;
    /// Whether a timer of each kind is running, and whether the last write failed. Used on the queue.
    bool m_afterCheck = false;
    bool m_periodic = false;
    bool m_failing = false;
};

} // namespace guide
