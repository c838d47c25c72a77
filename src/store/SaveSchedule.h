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

/// Keeps track of the lists that have changed since their files were written, and writes the files on a
/// serial background queue. The constructor's arguments must outlive the last block on that queue. Any
/// thread.
class SaveSchedule : public std::enable_shared_from_this<SaveSchedule> {
  public:
    SaveSchedule(DispatchQueues& queues, const Clock& clock, const Folders& folders,
                 BackgroundTasks& backgroundTasks);

    DispatchQueue& queue() { return *m_queue; }

    /// Schedules the lists, asynchronously. Their files get the current time as their date.
    void add(std::vector<ObjectId> channels);
    /// Blocks on the queue.
    bool contains(const ObjectId& channel);
    bool empty();

    /// Writes the files of the scheduled lists under a background task. Must run on the queue. The file of a
    /// list whose shows have all ended is left alone; a list that could not be written stays scheduled.
    void write(const ChannelLists& lists);

    /// While set, write() stops after the current file, and the remaining lists stay scheduled.
    void setAbandoned(bool abandoned) { m_abandoned.store(abandoned, std::memory_order_relaxed); }

  private:
    enum class Written { Done, Failed };
    Written writeList(const ObjectId& channel, const ChannelList& list, Moment loaded, Moment now) const;

    DispatchQueues& m_queues;
    const Clock& m_clock;
    const QString m_cachesFolder;
    BackgroundTasks& m_backgroundTasks;
    const std::shared_ptr<DispatchQueue> m_queue;
    /// The load time of each list, which becomes its file's date. Used on the queue.
    std::unordered_map<ObjectId, Moment> m_scheduled;
    std::atomic<bool> m_abandoned{false};
};

} // namespace guide
