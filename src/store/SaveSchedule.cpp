#include "store/SaveSchedule.h"

#include "core/ListingsFile.h"
#include "platform/BackgroundWork.h"
#include "platform/files/FileReplacement.h"
#include "store/ScheduleQueries.h"
#include "store/ShowCoding.h"

#include <QDebug>

#include <span>
#include <vector>

namespace guide {

namespace {

std::span<const ShowItem> notEnded(const ChannelList& list, Moment now) {
    const std::span<const ShowItem> shows(*list.shows());
    return shows.subspan(firstNotEnded(shows, now));
}

} // namespace

SaveSchedule::SaveSchedule(DispatchQueues& queues, const Clock& clock, const Folders& folders,
                           BackgroundTasks& backgroundTasks)
    : m_queues(queues)
    , m_clock(clock)
    , m_cachesFolder(folders.caches)
    , m_writable(folders.writable)
    , m_backgroundTasks(backgroundTasks)
    , m_queue(queues.makeQueue("vorel.listings.file.io", QueueKind::Serial, QueuePriority::Background)) {}

void SaveSchedule::add(std::vector<ObjectId> channels, Moment loaded) {
    if (!m_writable) {
        return;
    }
    m_queue->async([self = shared_from_this(), channels = std::move(channels), loaded] {
        for (const ObjectId& channel : channels) {
            self->m_scheduled.insert_or_assign(channel, loaded);
        }
        self->writeAfter(kLongestWait, self->m_periodic);
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

void SaveSchedule::writeAfter(std::chrono::milliseconds time, bool& running) {
    if (m_scheduled.empty() || running) {
        return;
    }
    running = true;
    m_queue->asyncAfter(time, [weak = weak_from_this(), &running] {
        const auto self = weak.lock();
        if (!self) {
            return;
        }
        running = false;
        if (!self->m_scheduled.empty()) {
            self->m_due();
        }
    });
}

void SaveSchedule::write(const ChannelLists& lists) {
    const BackgroundWork task(m_backgroundTasks, m_queues.mainQueue());
    const Moment now = m_clock.now();
    ReplacementBatch batch(m_cachesFolder);
    std::vector<ObjectId> inBatch;
    std::vector<ObjectId> done;
    std::size_t failed = 0;
    const auto commit = [&] {
        const std::vector<bool> replaced = batch.commit();
        for (std::size_t i = 0; i < replaced.size(); ++i) {
            if (replaced[i]) {
                done.push_back(inBatch[i]);
            } else {
                ++failed;
            }
        }
        inBatch.clear();
    };
    for (const auto& [channel, loaded] : m_scheduled) {
        if (m_abandoned.load(std::memory_order_relaxed)) {
            break;
        }
        const auto list = lists.find(channel);
        const std::span<const ShowItem> shows =
            list == lists.end() ? std::span<const ShowItem>() : notEnded(*list->second, now);
        if (shows.empty()) {
            done.push_back(channel);
            continue;
        }
        const QString name = listingsFileFromChannelIdentificator(channel);
        const QByteArray archive = archivedShows(shows);
        bool added = batch.add(name, archive, loaded);
        if (!added && !batch.empty()) {
            // On a nearly full disk, replacing the files written so far frees the space of the old ones.
            commit();
            added = batch.add(name, archive, loaded);
        }
        if (added) {
            inBatch.push_back(channel);
        } else {
            ++failed;
        }
    }
    commit();
    for (const ObjectId& channel : done) {
        m_scheduled.erase(channel);
    }
    report(failed);
    writeAfter(kLongestWait, m_periodic);
}

// One line when writes begin to fail, not one every kLongestWait.
void SaveSchedule::report(std::size_t failed) {
    if (failed > 0 && !m_failing) {
        qWarning().noquote() << "TVListings: could not write" << failed << "lists in" << m_cachesFolder;
    }
    m_failing = failed > 0;
}

} // namespace guide
