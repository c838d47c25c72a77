#include "app/UpdateCycle.h"

#include "app/ChannelLoad.h"
#include "sources/SourceDay.h"

#include <QtGlobal>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <unordered_map>

namespace guide {

struct UpdateCycle::State {
    explicit State(UpdateCycleEnvironment ownEnvironment)
        : environment(std::move(ownEnvironment)) {}

    const UpdateCycleEnvironment environment;
    std::atomic<bool> cancelled = false;
    /// A check was requested and has not started.
    std::atomic<bool> waiting = false;
};

namespace {

/// The background task of one check.
class ListingsUpdateTask : public std::enable_shared_from_this<ListingsUpdateTask> {
  public:
    ListingsUpdateTask(DispatchQueues& queues, BackgroundTasks& tasks)
        : m_queues(queues)
        , m_tasks(tasks) {}

    void begin() {
        // Held until the id is stored, because the device may expire the task at once.
        const std::lock_guard guard(m_mutex);
        m_task = m_tasks.beginBackgroundTask([self = shared_from_this()] { self->endOnMainQueue(); });
    }

    void endOnMainQueue() {
        m_queues.mainQueue().async([self = shared_from_this()] {
            BackgroundTaskId task = kBackgroundTaskInvalid;
            {
                const std::lock_guard guard(self->m_mutex);
                task = std::exchange(self->m_task, kBackgroundTaskInvalid);
            }
            if (task != kBackgroundTaskInvalid) {
                self->m_tasks.endBackgroundTask(task);
            }
        });
    }

  private:
    DispatchQueues& m_queues;
    BackgroundTasks& m_tasks;
    std::mutex m_mutex;
    BackgroundTaskId m_task = kBackgroundTaskInvalid;
};

/// Marks the channels of a load as loading while its pages are read.
class LoadingMark {
  public:
    LoadingMark(const TVChannels& channels, const std::vector<LoadItem>& items) {
        m_marked.reserve(items.size());
        for (const LoadItem& item : items) {
            if (auto channel = channels.channelWithChannelId(item.channel)) {
                channel->setLoading(true);
                m_marked.push_back(std::move(channel));
            }
        }
    }
    LoadingMark(const LoadingMark&) = delete;
    LoadingMark& operator=(const LoadingMark&) = delete;
    ~LoadingMark() {
        for (const auto& channel : m_marked) {
            channel->setLoading(false);
        }
    }

  private:
    std::vector<std::shared_ptr<TVChannel>> m_marked;
};

} // namespace

/// One run over the selected channels, on the check queue.
class UpdateCycle::Check {
  public:
    explicit Check(State& state)
        : m_state(state)
        , m_environment(state.environment) {}

    void run(const ShowCounts& counts) {
        const auto task =
            std::make_shared<ListingsUpdateTask>(m_environment.queues, m_environment.backgroundTasks);
        task->begin();
        m_environment.sourceHealth.read();
        std::vector<ObjectId> wanted = wantedChannels(counts);
        while (!loadFromSources(wanted)) {
            // A new day has begun. The rest is planned again; pages of the previous day would be misdated.
            wanted = dueOf(std::move(wanted));
        }
        recordHealth();
        task->endOnMainQueue();
        if (m_anythingParsed && !m_state.cancelled) {
            m_environment.loadQueue->sync([this] { m_environment.listings.updatePopularList(); });
        }
        m_environment.listings.checkEnded();
    }

  private:
    using PlannedChannels = std::vector<std::pair<ObjectId, std::vector<PlannedSource>>>;

    unsigned showCount() const { return static_cast<unsigned>(std::max(0, m_environment.showCount())); }

    bool reloadNeeded(const TVChannel& channel) const {
        return channel.reloadNeeded(m_environment.clock.now(),
                                    m_environment.settings.automaticUpdateInterval());
    }

    /// The selected channels to plan.
    std::vector<ObjectId> wantedChannels(const ShowCounts& counts) const {
        std::vector<ObjectId> wanted;
        for (const ObjectId& id : m_environment.channels.selected()) {
            const std::shared_ptr<TVChannel> channel = m_environment.channels.channelWithChannelId(id);
            if (!channel) {
                continue;
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
            if (decision.plan) {
                wanted.push_back(id);
            }
        }
        return wanted;
    }

    /// Sets or clears the failure of each channel according to the state of its load: a load that begins has
    /// none, unless no source can be asked.
    void updateFailures(const std::vector<ObjectId>& ids) const {
        std::unordered_set<ObjectId> changed;
        for (const ObjectId& id : ids) {
            const auto load = m_loads.find(id);
            const std::shared_ptr<TVChannel> channel = m_environment.channels.channelWithChannelId(id);
            if (load != m_loads.end() && channel && channel->setLoadFailure(load->second.failure())) {
                changed.insert(id);
            }
        }
        if (!changed.empty()) {
            m_environment.queues.mainQueue().async([loadsEnded = m_environment.loadsEnded,
                                                    changed = std::move(changed)] { loadsEnded(changed); });
        }
    }

    void updateFailures(const std::vector<LoadItem>& items) const {
        std::vector<ObjectId> ids;
        ids.reserve(items.size());
        for (const LoadItem& item : items) {
            ids.push_back(item.channel);
        }
        updateFailures(ids);
    }

    PlannedChannels plannedChannels(const std::vector<ObjectId>& wanted) {
        PlannedChannels planned;
        for (const ObjectId& id : wanted) {
            const CatalogueChannel* channel = m_catalogue->find(id);
            if (!channel || m_state.cancelled) {
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

    std::vector<ObjectId> dueOf(std::vector<ObjectId> wanted) const {
        std::erase_if(wanted, [this](const ObjectId& id) {
            const std::shared_ptr<TVChannel> channel = m_environment.channels.channelWithChannelId(id);
            return !channel || !reloadNeeded(*channel);
        });
        return wanted;
    }

    /// Returns false when a new day has begun and a step depends on the day.
    bool loadFromSources(const std::vector<ObjectId>& wanted) {
        m_day = dayBegan();
        const std::vector<UpdateStep> steps = planSteps(plannedChannels(wanted));
        updateFailures(dueOf(wanted));
        for (const UpdateStep& step : steps) {
            if (m_state.cancelled) {
                break;
            }
            if (!load(step)) {
                return false;
            }
        }
        return true;
    }

    Moment dayBegan() const {
        return startOfSourceDay(m_environment.clock.now(), m_environment.device.timeZone());
    }

    bool load(const UpdateStep& step) {
        auto [items, type] = dueItems(step, [this](const ObjectId& id) -> std::optional<QString> {
            const std::shared_ptr<TVChannel> channel = m_environment.channels.channelWithChannelId(id);
            return channel && reloadNeeded(*channel) ? std::optional(channel->language()) : std::nullopt;
        });
        if (items.empty()) {
            return true;
        }
        // Many other pages are dated only by their position, or relative to today.
        const bool isDated = type == ListingsType::XMLTV;
        if (!isDated && dayBegan() != m_day) {
            return false;
        }
        NetPage missing;
        const std::vector<QByteArray> pages = fetch(step.urls, isDated ? Moment::min() : m_day, missing);
        // Pages cut off by the end of the program must not replace a whole list.
        if (m_state.cancelled) {
            return true;
        }
        if (pages.empty()) {
            for (const LoadItem& item : items) {
                m_loads.at(item.channel).recordMissingPage(item.sourceId, missing);
            }
            updateFailures(items);
            return true;
        }
        bool isOfToday = true;
        m_environment.loadQueue->sync([&, &items = items, type = type] {
            isOfToday = isDated || dayBegan() == m_day;
            // Avoids parsing the lists of channels that have been deselected meanwhile.
            std::erase_if(items, [this](const LoadItem& item) {
                return !m_environment.channels.channelWithChannelId(item.channel);
            });
            if (isOfToday && !items.empty()) {
                parse(items, pages, type);
            }
        });
        return isOfToday;
    }

    /// Fetches pages up to the first failure, whose answer is stored in `missing`. An empty page is not a
    /// failure.
    std::vector<QByteArray> fetch(const QList<QUrl>& urls, Moment cachedSince, NetPage& missing) {
        std::vector<QByteArray> pages;
        pages.reserve(static_cast<std::size_t>(urls.size()));
        for (const QUrl& url : urls) {
            if (m_state.cancelled) {
                break;
            }
            HTTPRequest request = pageRequest(url, m_environment.userAgent);
            request.cachedSince = cachedSince;
            NetPage answer = m_environment.fetcher.netPageForRequest(std::move(request), false);
            if (!answer.page) {
                if (answer.reason == PageReason::Cancelled) {
                    m_state.cancelled = true;
                }
                missing = std::move(answer);
                break;
            }
            pages.push_back(std::move(*answer.page));
        }
        return pages;
    }

    void parse(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages, ListingsType type) {
        MergeResult result;
        {
            const LoadingMark mark(m_environment.channels, items);
            result = m_environment.listDriver.netList(items, pages, m_environment.clock.now(), type);
        }
        recordSources(items, pages.size(), result);
        updateFailures(items);
        if (result.lists.empty()) {
            return;
        }
        m_anythingParsed = true;
        m_environment.listings.saveAllShows();
        m_environment.queues.mainQueue().async([&applicationState = m_environment.applicationState,
                                                offerTop = m_environment.offerTop,
                                                top = topLists(items, result, showCount())] {
            if (applicationState.applicationState() != ApplicationState::Background) {
                offerTop(top);
            }
        });
    }

    void recordSources(const std::vector<LoadItem>& items, std::size_t pages, const MergeResult& result) {
        const Moment now = m_environment.clock.now();
        for (const LoadItem& item : items) {
            const auto outcome = result.outcomes.find(item.channel);
            const auto list = result.lists.find(item.channel);
            m_loads.at(item.channel)
                .recordPages(item.sourceId, pages,
                             outcome == result.outcomes.end() ? MergeOutcome::Empty : outcome->second,
                             list == result.lists.end() ? nullptr : list->second, now);
        }
    }

    void recordHealth() {
        const Moment now = m_environment.clock.now();
        for (const auto& [channel, channelLoad] : m_loads) {
            if (auto health = channelLoad.health(now)) {
                m_environment.sourceHealth.record(channel, *std::move(health));
            }
        }
        m_environment.sourceHealth.write(m_environment.channels.selected());
    }

    State& m_state;
    const UpdateCycleEnvironment& m_environment;
    const SharedCatalogueSnapshot m_catalogue = m_environment.catalogue.snapshot();
    std::unordered_map<ObjectId, ChannelLoad> m_loads;
    /// When the day of the plan began.
    Moment m_day = Moment::min();
    bool m_anythingParsed = false;
};

UpdateCycle::UpdateCycle(UpdateCycleEnvironment environment)
    : m_state(std::make_shared<State>(std::move(environment))) {}

void UpdateCycle::checkAndUpdateAllChannels() {
    if (m_state->waiting.exchange(true)) {
        return;
    }
    // The shows are counted after the running check; otherwise what it loads would be loaded again.
    m_state->environment.checkQueue->async([state = m_state] {
        const UpdateCycleEnvironment& with = state->environment;
        with.listings.showCountForSelectedChannelsForQueue(with.checkQueue,
                                                           [state](const ShowCounts& counts) {
                                                               state->waiting = false;
                                                               if (!state->cancelled) {
                                                                   Check(*state).run(counts);
                                                               }
                                                           });
    });
}

bool UpdateCycle::finish(std::chrono::milliseconds atMost) {
    m_state->cancelled = true;
    DispatchGroup running;
    running.async(*m_state->environment.checkQueue, [] {});
    return running.wait(atMost);
}

} // namespace guide
