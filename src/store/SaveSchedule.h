#pragma once

#include "core/ObjectId.h"
#include "platform/BackgroundTasks.h"
#include "platform/Clock.h"
#include "platform/files/Folders.h"
#include "platform/queues/DispatchQueue.h"
#include "store/ChannelList.h"

#include <atomic>
#include <functional>
#include <memory>
#include <unordered_map>

namespace guide {

/// Which lists have changed since their files were written, and the writing of the files, on a serial
/// background queue. What it is made of outlives its last block. Any thread.
class SaveSchedule : public std::enable_shared_from_this<SaveSchedule> {
  public:
    SaveSchedule(DispatchQueues& queues, const Clock& clock, const Folders& folders,
                 BackgroundTasks& backgroundTasks);

    DispatchQueue& queue() { return *m_queue; }

    /// Schedules the lists, in the background. Their files will bear the date of this moment.
    void add(std::vector<ObjectId> channels);
    /// Blocks on the queue.
    bool contains(const ObjectId& channel);
    bool empty();

    /// Writes the files of the scheduled lists, under a background task. On the queue. A list without shows
    /// that have not ended leaves its file alone. A list that could not be written stays scheduled.
    void write(const ChannelLists& lists);

    /// While it is set, a writing ends behind the file that it is at, and the other lists stay scheduled.
    void setAbandoned(bool abandoned) { m_abandoned.store(abandoned, std::memory_order_relaxed); }

  private:
    enum class Written { Done, Failed };
    Written writeList(const ObjectId& channel, const ChannelList& list, Moment loaded, Moment now) const;

    DispatchQueues& m_queues;
    const Clock& m_clock;
    const QString m_cachesFolder;
    BackgroundTasks& m_backgroundTasks;
    const std::shared_ptr<DispatchQueue> m_queue;
    /// When each list was loaded: a later start reads it from the file's date. On the queue.
    std::unordered_map<ObjectId, Moment> m_scheduled;
    std::atomic<bool> m_abandoned{false};
};

} // namespace guide
