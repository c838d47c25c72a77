#include "store/SaveSchedule.h"

#include "core/ListingsFile.h"
#include "platform/files/FileReplacement.h"
#include "store/ScheduleQueries.h"
#include "store/ShowCoding.h"

#include <QDebug>

namespace guide {

namespace {

/// Owns a background task. The task ends on the main queue, when this is destroyed or when the device expires
/// it.
class WritingTask {
  public:
    WritingTask(BackgroundTasks& tasks, DispatchQueue& mainQueue)
        : m_end([&tasks, &mainQueue, task = m_task] {
            mainQueue.async(
                [&tasks, task] { tasks.endBackgroundTask(task->exchange(kBackgroundTaskInvalid)); });
        }) {
        *m_task = tasks.beginBackgroundTask(m_end);
    }
    WritingTask(const WritingTask&) = delete;
    WritingTask& operator=(const WritingTask&) = delete;
    ~WritingTask() { m_end(); }

  private:
    using Id = std::atomic<BackgroundTaskId>;
    const std::shared_ptr<Id> m_task = std::make_shared<Id>(kBackgroundTaskInvalid);
    const Block m_end;
};

} // namespace

SaveSchedule::SaveSchedule(DispatchQueues& queues, const Clock& clock, const Folders& folders,
                           BackgroundTasks& backgroundTasks)
    : m_queues(queues)
    , m_clock(clock)
    , m_cachesFolder(folders.caches)
    , m_backgroundTasks(backgroundTasks)
    , m_queue(queues.makeQueue("vorel.listings.file.io", QueueKind::Serial, QueuePriority::Background)) {}

void SaveSchedule::add(std::vector<ObjectId> channels) {
    m_queue->async([self = shared_from_this(), channels = std::move(channels), loaded = m_clock.now()] {
        for (const ObjectId& channel : channels) {
            self->m_scheduled.insert_or_assign(channel, loaded);
        }
    });
}

bool SaveSchedule::contains(const ObjectId& channel) {
    bool scheduled = false;
    m_queue->sync([&] { scheduled = m_scheduled.contains(channel); });
    return scheduled;
}

bool SaveSchedule::empty() {
    bool empty = true;
    m_queue->sync([&] { empty = m_scheduled.empty(); });
    return empty;
}

SaveSchedule::Written SaveSchedule::writeList(const ObjectId& channel, const ChannelList& list, Moment loaded,
                                              Moment now) const {
    std::span<const ShowItem> shows(*list.shows());
    shows = shows.subspan(firstNotEnded(shows, now));
    if (shows.empty()) {
        return Written::Done;
    }
    const QString path = m_cachesFolder + u'/' + listingsFileFromChannelIdentificator(channel);
    if (!replaceFile(path, archivedShows(shows), loaded)) {
        qWarning().noquote() << "TVListings: could not write" << path;
        return Written::Failed;
    }
    return Written::Done;
}

void SaveSchedule::write(const ChannelLists& lists) {
    const WritingTask task(m_backgroundTasks, m_queues.mainQueue());
    const Moment now = m_clock.now();
    std::erase_if(m_scheduled, [&](const auto& scheduled) {
        if (m_abandoned.load(std::memory_order_relaxed)) {
            return false;
        }
        const auto& [channel, loaded] = scheduled;
        const auto list = lists.find(channel);
        return list == lists.end() || writeList(channel, *list->second, loaded, now) == Written::Done;
    });
}

} // namespace guide
