#include "app/UpdateCheck.h"

#include "app/LoadingMark.h"
#include "sources/SourceDay.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <utility>

namespace guide {

UpdateWork::UpdateWork(UpdateCycleEnvironment ownEnvironment)
    : environment(std::move(ownEnvironment))
    , fetchQueue(
          environment.queues.makeQueue("vorel.tv.fetch", QueueKind::Concurrent, QueuePriority::Background)) {}

UpdateCheck::UpdateCheck(std::shared_ptr<UpdateWork> work, Block ended)
    : m_work(std::move(work))
    , m_environment(m_work->environment)
    , m_ended(std::move(ended))
    , m_catalogue(m_environment.catalogue.snapshot())
    , m_task(std::make_shared<BackgroundTask>(m_environment.queues, m_environment.backgroundTasks)) {}

void UpdateCheck::begin(const ShowCounts& counts) {
    m_task->begin();
    m_environment.sourceHealth.read();
    for (const ObjectId& id : m_environment.channels.selected()) {
        if (isWanted(id, counts)) {
            m_wanted.push_back(id);
        }
    }
    planAndLoad();
}

void UpdateCheck::join(const ShowCounts& counts) {
    std::vector<ObjectId> joining;
    for (const ObjectId& id : m_environment.channels.selected()) {
        const auto load = m_loads.find(id);
        if (m_schedule.hasStepsFor(id)) {
            m_requested.insert(id);
        } else if (load != m_loads.end() && load->second.hasStored() ? isDue(id) : isWanted(id, counts)) {
            // What this check has stored may not be in the counts.
            joining.push_back(id);
        }
    }
    loadAgain(joining);
    startSteps();
}

unsigned UpdateCheck::showCount() const {
    return static_cast<unsigned>(std::max(0, m_environment.showCount()));
}

bool UpdateCheck::reloadNeeded(const TVChannel& channel) const {
    return channel.reloadNeeded(m_environment.clock.now(), m_environment.settings.automaticUpdateInterval());
}

bool UpdateCheck::isDue(const ObjectId& id) const {
    const std::shared_ptr<TVChannel> channel = m_environment.channels.channelWithChannelId(id);
    return channel && !id.isOwn() && reloadNeeded(*channel);
}

Moment UpdateCheck::dayBegan() const {
    return startOfSourceDay(m_environment.clock.now(), m_environment.device.timeZone());
}

/// Whether URLs must be planned for a selected channel.
bool UpdateCheck::isWanted(const ObjectId& id, const ShowCounts& counts) const {
    const std::shared_ptr<TVChannel> channel = m_environment.channels.channelWithChannelId(id);
    // OwnSourceUpdates loads the channels of the user's sources.
    if (!channel || id.isOwn()) {
        return false;
    }
    ChannelCondition condition;
    if (const auto count = counts.find(id); count != counts.end()) {
        condition.showCount = count->second;
    }
    condition.loading = channel->loading();
    condition.reloadNeeded = reloadNeeded(*channel);
    const ChannelDecision decision = decideChannel(condition, showCount());
    if (decision.requireReload) {
        channel->requireReload();
    }
    return decision.plan;
}

UpdateCheck::PlannedChannels UpdateCheck::plannedChannels(const std::vector<ObjectId>& wanted) {
    PlannedChannels planned;
    for (const ObjectId& id : wanted) {
        const CatalogueChannel* channel = m_catalogue->find(id);
        if (!channel || m_work->cancelled) {
            continue;
        }
        m_environment.loadQueue->sync([&] {
            const Moment now = m_environment.clock.now();
            const QTimeZone zone = m_environment.device.timeZone();
            planned.emplace_back(id, planSources(*channel, [&](const QString& sourceId) {
                                     return m_environment.planner.plan(sourceId, now, zone);
                                 }));
        });
        m_loads.emplace(id, ChannelLoad(planned.back().second));
    }
    return planned;
}

void UpdateCheck::planAndLoad() {
    m_planIsOld = false;
    m_day = dayBegan();
    m_schedule = StepSchedule();
    addSteps(m_wanted);
    startSteps();
}

void UpdateCheck::addSteps(const std::vector<ObjectId>& wanted) {
    m_schedule.addFirst(planSteps(plannedChannels(wanted)));
    std::vector<ObjectId> due;
    for (const ObjectId& id : wanted) {
        if (isDue(id)) {
            due.push_back(id);
        } else {
            m_schedule.release(id);
        }
    }
    announce(due);
}

/// Whether the load of the channel has ended without one, because the channel was not selected for a while.
bool UpdateCheck::isWithoutResult(const ObjectId& id) const {
    const auto load = m_loads.find(id);
    return load != m_loads.end() && !load->second.hasStored() && !load->second.failure() && isDue(id);
}

/// The channels must have no step left.
void UpdateCheck::loadAgain(const std::vector<ObjectId>& channels) {
    for (const ObjectId& id : channels) {
        m_loads.erase(id);
        if (std::ranges::find(m_wanted, id) == m_wanted.end()) {
            m_wanted.push_back(id);
        }
    }
    // Pages of two days must not be mixed: the rest is planned when the running steps have ended.
    m_planIsOld = m_planIsOld || dayBegan() != m_day;
    if (!m_planIsOld) {
        addSteps(channels);
    }
}

/// Starts what may start. When nothing is left to do or to wait for, ends the check.
void UpdateCheck::startSteps() {
    while (!m_work->cancelled && !m_planIsOld) {
        const std::optional<std::size_t> index = m_schedule.start();
        if (!index) {
            break;
        }
        if (!startStep(*index)) {
            m_schedule.finish(*index);
        }
    }
    if (m_schedule.isRunning()) {
        return;
    }
    std::vector<ObjectId> again;
    std::ranges::copy_if(std::exchange(m_requested, {}), std::back_inserter(again),
                         [this](const ObjectId& id) { return isWithoutResult(id); });
    if (!again.empty() && !m_work->cancelled) {
        loadAgain(again);
        startSteps();
        return;
    }
    if (m_planIsOld && !m_work->cancelled) {
        std::erase_if(m_wanted, [this](const ObjectId& id) { return !isDue(id); });
        planAndLoad();
    } else {
        end();
    }
}

/// False when there is nothing to fetch.
bool UpdateCheck::startStep(std::size_t index) {
    const UpdateStep& step = m_schedule.step(index);
    DueItems due = dueItems(step, [this](const ObjectId& id) -> std::optional<QString> {
        const std::shared_ptr<TVChannel> channel = m_environment.channels.channelWithChannelId(id);
        return channel && reloadNeeded(*channel) ? std::optional(channel->language()) : std::nullopt;
    });
    if (due.items.empty()) {
        return false;
    }
    // Many other pages are dated only by their position, or relative to today.
    const bool isDated = due.type == ListingsType::XMLTV;
    if (!isDated && dayBegan() != m_day) {
        m_planIsOld = true;
        return false;
    }
    m_work->blocks.async(*m_work->fetchQueue,
                         [self = shared_from_this(), index, due = std::move(due), urls = step.urls,
                          cachedSince = isDated ? Moment::min() : m_day]() mutable {
                             auto fetched = std::make_shared<const Fetched>(self->fetch(urls, cachedSince));
                             UpdateCheck& check = *self;
                             check.m_work->blocks.async(
                                 *check.m_environment.checkQueue,
                                 [self = std::move(self), index, due = std::move(due),
                                  fetched = std::move(fetched)] { self->finishStep(index, due, *fetched); });
                         });
    return true;
}

void UpdateCheck::finishStep(std::size_t index, DueItems due, const Fetched& fetched) {
    // Pages cut off by the end of the program must not replace a whole list.
    if (!m_work->cancelled) {
        std::vector<ObjectId> asked;
        asked.reserve(due.items.size());
        for (const LoadItem& item : due.items) {
            asked.push_back(item.channel);
        }
        if (fetched.pages.empty()) {
            for (const LoadItem& item : due.items) {
                m_loads.at(item.channel).recordMissingPage(item.sourceId, fetched.missing);
            }
        } else {
            ReadOutcome outcome;
            m_environment.loadQueue->sync([&] { outcome = parse(due.items, due.type, fetched); });
            if (outcome.incomplete || !outcome.isSchedule) {
                // The next load must not get the same pages from the cache.
                for (const QUrl& url : m_schedule.step(index).urls) {
                    m_environment.fetcher.forget(requestFor(url));
                }
            }
        }
        for (const ObjectId& id : asked) {
            if (!isDue(id)) {
                m_schedule.release(id);
            }
        }
        announce(asked);
    }
    m_schedule.finish(index);
    startSteps();
}

/// Fetches pages up to the first failure. An empty page is not a failure. On the fetch queue.
UpdateCheck::Fetched UpdateCheck::fetch(const QList<QUrl>& urls, Moment cachedSince) const {
    Fetched fetched;
    fetched.pages.reserve(static_cast<std::size_t>(urls.size()));
    for (const QUrl& url : urls) {
        if (m_work->cancelled) {
            break;
        }
        HTTPRequest request = requestFor(url);
        request.cachedSince = cachedSince;
        NetPage answer = m_environment.fetcher.netPageForRequest(std::move(request), false);
        if (!answer.page) {
            if (answer.reason == PageReason::Cancelled) {
                m_work->cancelled = true;
            }
            fetched.missing = std::move(answer);
            break;
        }
        fetched.incomplete = fetched.incomplete || answer.incomplete;
        fetched.pages.push_back(*std::move(answer.page));
    }
    return fetched;
}

/// On the load queue.
ReadOutcome UpdateCheck::parse(std::vector<LoadItem>& items, ListingsType type, const Fetched& fetched) {
    if (type != ListingsType::XMLTV && dayBegan() != m_day) {
        m_planIsOld = true;
        return {};
    }
    // Avoids parsing the lists of channels that have been deselected meanwhile.
    std::erase_if(items, [this](const LoadItem& item) {
        return !m_environment.channels.channelWithChannelId(item.channel);
    });
    if (items.empty()) {
        return {};
    }
    MergeResult result;
    {
        const LoadingMark mark(m_environment.channels, items | std::views::transform(&LoadItem::channel));
        result = m_environment.listDriver.netList(items, fetched.pages, m_environment.clock.now(), type,
                                                  fetched.incomplete);
    }
    // The driver stops in the middle when the program ends.
    if (m_work->cancelled) {
        return {};
    }
    recordSources(items, fetched.pages.size(), result);
    if (result.lists.empty()) {
        return result.read;
    }
    m_anythingParsed = true;
    m_environment.queues.mainQueue().async([&applicationState = m_environment.applicationState,
                                            offerTop = m_environment.offerTop,
                                            top = topLists(items, result, showCount())] {
        if (applicationState.applicationState() != ApplicationState::Background) {
            offerTop(top);
        }
    });
    return result.read;
}

void UpdateCheck::recordSources(const std::vector<LoadItem>& items, std::size_t pages,
                                const MergeResult& result) {
    const Moment now = m_environment.clock.now();
    for (const LoadItem& item : items) {
        m_loads.at(item.channel).recordPages(item, pages, result, now);
    }
}

/// Sets or clears the failure of each channel according to the state of its load: a load that begins has
/// none, unless no source can be asked.
void UpdateCheck::announce(const std::vector<ObjectId>& ids) const {
    LoadResults results;
    for (const ObjectId& id : ids) {
        const auto load = m_loads.find(id);
        const std::shared_ptr<TVChannel> channel = m_environment.channels.channelWithChannelId(id);
        if (load == m_loads.end() || !channel) {
            continue;
        }
        const std::optional<LoadFailure> failure = load->second.failure();
        if (channel->setLoadFailure(failure)) {
            results.failureChanged.insert(id);
        }
        if (failure) {
            results.failed.push_back(id);
        } else if (load->second.hasStored()) {
            results.stored.push_back(id);
        }
    }
    if (!results.failureChanged.empty() || !results.stored.empty()) {
        m_environment.queues.mainQueue().async(
            [loadsEnded = m_environment.loadsEnded, results = std::move(results)] { loadsEnded(results); });
    }
}

void UpdateCheck::recordHealth() {
    const Moment now = m_environment.clock.now();
    for (const auto& [channel, channelLoad] : m_loads) {
        if (auto health = channelLoad.health(now)) {
            m_environment.sourceHealth.record(channel, *std::move(health));
        }
    }
    m_environment.sourceHealth.write(m_environment.channels.selected());
}

void UpdateCheck::end() {
    recordHealth();
    m_task->endOnMainQueue();
    if (m_anythingParsed && !m_work->cancelled) {
        m_environment.loadQueue->sync([this] { m_environment.listings.updatePopularList(); });
    }
    m_environment.listings.checkEnded();
    m_ended();
}

} // namespace guide
