#include "app/own/OwnSourceUpdates.h"

#include "app/BackgroundTask.h"
#include "app/own/OwnSourceLoad.h"
#include "app/own/SourceSchedule.h"
#include "core/own/SourceAddress.h"

#include <algorithm>
#include <atomic>
#include <deque>
#include <iterator>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace guide {

namespace {

using namespace std::chrono_literals;

/// Asking twice within it by hand gives the answer of the first time.
constexpr std::chrono::seconds kSameRequest{60};
constexpr std::chrono::milliseconds kLongestTimer = 1h;
constexpr std::chrono::milliseconds kShortestTimer = 5s;

} // namespace

struct OwnSourceUpdates::State : std::enable_shared_from_this<State> {
    const OwnSourceUpdatesEnvironment environment;
    /// Serial: guards what follows it.
    const std::shared_ptr<DispatchQueue> queue;
    const std::shared_ptr<DispatchQueue> fetchQueue;
    DispatchGroup blocks;
    std::atomic<bool> cancelled = false;
    std::atomic<bool> running = false;

    // On the queue.
    std::unordered_set<OwnSourceId> loading;
    std::unordered_set<QString> busyHosts;
    std::deque<OwnSourceLoad::Plan> waiting;
    /// Were asked for while they were being loaded.
    std::unordered_set<OwnSourceId> again;
    /// The records of channels for which a source was read: what it does not have is not looked for again. A
    /// channel that was selected anew has another record.
    std::unordered_map<ObjectId, std::weak_ptr<const TVChannel>> tried;
    /// Channels whose lists are to be read again.
    std::unordered_set<ObjectId> unread;
    /// A source was passed over because it was being loaded.
    bool hasPassedOver = false;
    /// Plans that wait for the numbers of shows.
    int planning = 0;
    /// Wait until nothing is planned or loaded.
    std::vector<Block> idle;
    std::shared_ptr<BackgroundTask> task;

    // On the main queue.
    bool isActive = false;
    std::shared_ptr<const Moment> timer;

    explicit State(OwnSourceUpdatesEnvironment ownEnvironment)
        : environment(std::move(ownEnvironment))
        , queue(environment.queues.makeQueue("vorel.tv.ownSources", QueueKind::Serial,
                                             QueuePriority::Background))
        , fetchQueue(environment.queues.makeQueue("vorel.tv.ownSources.fetch", QueueKind::Concurrent,
                                                  QueuePriority::Background)) {}

    void onQueue(std::function<void(State&)> block) {
        blocks.async(*queue, [state = shared_from_this(), block = std::move(block)] {
            if (!state->cancelled) {
                block(*state);
            }
        });
    }

    void plan(std::unordered_set<OwnSourceId> byHand) {
        ++planning;
        environment.listings.showCountForSelectedChannelsForQueue(
            queue, [state = shared_from_this(), byHand = std::move(byHand)](const ShowCounts& counts) {
                if (!state->cancelled) {
                    --state->planning;
                    state->plan(byHand, counts);
                    state->endIdle();
                }
            });
    }

    void plan(const std::unordered_set<OwnSourceId>& byHand, const ShowCounts& counts) {
        const SharedOwnSources sources = environment.sources.snapshot();
        for (const OwnSource& source : *sources) {
            const bool isByHand = byHand.contains(source.id);
            if (loading.contains(source.id)) {
                hasPassedOver = true;
                if (isByHand) {
                    again.insert(source.id);
                }
                continue;
            }
            plan(source, *sources, counts, isByHand);
        }
        start();
        arm();
    }

    void plan(const OwnSource& source, const OwnSourceList& sources, const ShowCounts& counts, bool byHand) {
        std::vector<OwnFeedItem> items = ownFeedItems(sources, source.id, environment.channels);
        const bool isIdle = source.kind == OwnSourceKind::Playlist ? !hasSelected(source) : items.empty();
        if (isIdle && !byHand) {
            return;
        }
        const SourceStatus status = environment.records.record(source.id).status;
        const Moment now = environment.clock.now();
        // A list that is over asks for a reload each time it is read. That alone must not reach the source.
        const bool isDue =
            isSourceDue(status, now) || (byHand && (isOwnFile(source) || mayBeAsked(status, now)));
        const bool isWanting = std::ranges::any_of(items, [&](const OwnFeedItem& item) {
            const auto count = counts.find(item.channel);
            return unread.contains(item.channel) ||
                   ((count == counts.end() || count->second == 0) && !isTried(item.channel));
        });
        if (isDue || isWanting) {
            loading.insert(source.id);
            OwnSourceLoad::Plan planned{
                .source = source, .items = {}, .records = {}, .fetch = isDue, .isWanting = isWanting};
            for (const OwnFeedItem& item : items) {
                unread.erase(item.channel);
                planned.records.push_back(environment.channels.channelWithChannelId(item.channel));
            }
            planned.items = std::move(items);
            waiting.push_back(std::move(planned));
        } else if (byHand) {
            answerAtOnce(items);
        }
    }

    bool isTried(const ObjectId& channel) const {
        const auto found = tried.find(channel);
        return found != tried.end() &&
               found->second.lock() == environment.channels.channelWithChannelId(channel);
    }

    bool isUsed(const OwnSource& source, const OwnSourceList& sources) const {
        return source.kind == OwnSourceKind::Playlist
                   ? hasSelected(source)
                   : !ownFeedItems(sources, source.id, environment.channels).empty();
    }

    bool hasSelected(const OwnSource& source) const {
        return std::ranges::any_of(source.channels, [&](const OwnChannel& channel) {
            return environment.channels.channelWithChannelId(ownChannelId(source.id, channel.key)) != nullptr;
        });
    }

    /// Whether a person's request goes to the source: not twice in a minute, nor before the time that it
    /// named itself.
    static bool mayBeAsked(const SourceStatus& status, Moment now) {
        const bool isBusy = status.result == SourceResult::Busy && status.nextTry && *status.nextTry > now;
        const bool isAnswered = status.lastTry && *status.lastTry <= now &&
                                now - *status.lastTry < kSameRequest &&
                                status.result != SourceResult::NoAnswer;
        return !isBusy && !isAnswered;
    }

    /// Ends what turns on the screens.
    void answerAtOnce(const std::vector<OwnFeedItem>& items) {
        LoadResults results;
        for (const OwnFeedItem& item : items) {
            if (const auto record = environment.channels.channelWithChannelId(item.channel)) {
                record->endReloadRequest();
                results.failureChanged.insert(item.channel);
            }
        }
        tell(std::move(results));
    }

    void tell(LoadResults results) {
        environment.queues.mainQueue().async([state = shared_from_this(), results = std::move(results)] {
            if (state->cancelled) {
                return;
            }
            state->environment.statusChanged();
            if (!results.failureChanged.empty() || !results.stored.empty()) {
                state->environment.loadsEnded(results);
            }
        });
    }

    /// Of one host, or of programs, or of files, one source after the other.
    static QString laneOf(const OwnSourceLoad::Plan& plan) {
        const QString host = hostOfAddress(plan.source.address);
        return host.isEmpty() ? QString::number(static_cast<int>(plan.source.kind)) : host;
    }

    void start() {
        std::deque<OwnSourceLoad::Plan> later;
        for (OwnSourceLoad::Plan& plan : std::exchange(waiting, {})) {
            if (busyHosts.insert(laneOf(plan)).second) {
                load(std::move(plan));
            } else {
                later.push_back(std::move(plan));
            }
        }
        waiting = std::move(later);
        if (!loading.empty() && !task) {
            running = true;
            task = std::make_shared<BackgroundTask>(environment.queues, environment.backgroundTasks);
            task->begin();
        }
    }

    void load(OwnSourceLoad::Plan plan) {
        environment.records.setRunning(plan.source.id, true);
        tell({});
        blocks.async(*fetchQueue, [state = shared_from_this(), plan = std::move(plan)] {
            OwnSourceLoad load(state->environment, state->cancelled, plan);
            load.run();
            state->onQueue([plan, results = load.results()](State& own) { own.ended(plan, results); });
        });
    }

    void ended(const OwnSourceLoad::Plan& plan, const LoadResults& results) {
        loading.erase(plan.source.id);
        busyHosts.erase(laneOf(plan));
        environment.records.setRunning(plan.source.id, false);
        for (const auto& record : plan.records) {
            if (record) {
                tried.insert_or_assign(record->identificator(), record);
            }
        }
        tell(results);
        if (again.erase(plan.source.id) > 0) {
            this->plan({plan.source.id});
        } else if (std::exchange(hasPassedOver, false) || !unread.empty()) {
            this->plan({});
        }
        start();
        if (loading.empty()) {
            finishRun();
        }
        arm();
        endIdle();
    }

    void endIdle() {
        if (planning > 0 || !loading.empty()) {
            return;
        }
        for (Block& block : std::exchange(idle, {})) {
            environment.queues.mainQueue().async(std::move(block));
        }
    }

    void finishRun() {
        running = false;
        if (const auto ended = std::exchange(task, nullptr)) {
            ended->endOnMainQueue();
        }
        environment.loadQueue->sync([this] { environment.listings.updatePopularList(); });
        environment.listings.checkEnded();
    }

    /// Starts the next check when the first of the sources in use is due.
    void arm() {
        const SharedOwnSources sources = environment.sources.snapshot();
        std::optional<Moment> next;
        for (const OwnSource& source : *sources) {
            const auto at = environment.records.record(source.id).status.nextTry;
            if (at && !loading.contains(source.id) && isUsed(source, *sources)) {
                next = std::min(next.value_or(*at), *at);
            }
        }
        environment.queues.mainQueue().async([state = shared_from_this(), next] { state->setTimer(next); });
    }

    /// Main queue.
    void setTimer(std::optional<Moment> next) {
        timer.reset();
        if (!next || !isActive || cancelled) {
            return;
        }
        const Moment now = environment.clock.now();
        const auto wait = std::clamp(std::chrono::milliseconds(*next - now), kShortestTimer, kLongestTimer);
        timer = std::make_shared<const Moment>(now + wait);
        environment.queues.mainQueue().asyncAfter(
            wait, [state = weak_from_this(), mark = std::weak_ptr(timer)] {
                if (const auto self = state.lock(); self && !mark.expired()) {
                    self->onQueue([](State& own) { own.plan({}); });
                }
            });
    }
};

OwnSourceUpdates::OwnSourceUpdates(OwnSourceUpdatesEnvironment environment)
    : m_state(std::make_shared<State>(std::move(environment))) {}

OwnSourceUpdates::~OwnSourceUpdates() {
    m_state->cancelled = true;
}

void OwnSourceUpdates::check() {
    m_state->onQueue([](State& state) { state.plan({}); });
}

void OwnSourceUpdates::askNow(const std::vector<OwnSourceId>& sources) {
    m_state->onQueue([asked = std::unordered_set<OwnSourceId>(sources.begin(), sources.end())](State& state) {
        state.plan(asked);
    });
}

void OwnSourceUpdates::askNowFor(const std::vector<ObjectId>& channels) {
    m_state->onQueue([asked = std::unordered_set<ObjectId>(channels.begin(), channels.end())](State& state) {
        std::unordered_set<OwnSourceId> feeds;
        const SharedOwnSources sources = state.environment.sources.snapshot();
        for (const OwnSource& source : *sources) {
            for (const OwnChannel& channel : source.channels) {
                if (channel.guide && asked.contains(ownChannelId(source.id, channel.key))) {
                    feeds.insert(channel.guide->source);
                }
            }
        }
        if (!feeds.empty()) {
            state.plan(feeds);
        }
    });
}

void OwnSourceUpdates::readAgain(std::vector<ObjectId> channels) {
    m_state->onQueue([channels = std::move(channels)](State& state) {
        // The records of channels that left the sources meanwhile are of no use.
        std::ranges::copy_if(channels, std::inserter(state.unread, state.unread.end()),
                             [&state](const ObjectId& channel) {
                                 return state.environment.channels.channelWithChannelId(channel) != nullptr;
                             });
        state.plan({});
    });
}

void OwnSourceUpdates::setActive(bool active) {
    m_state->isActive = active;
    if (active) {
        check();
    } else {
        m_state->timer.reset();
    }
}

bool OwnSourceUpdates::isRunning() const {
    return m_state->running;
}

void OwnSourceUpdates::whenIdle(Block block) {
    m_state->onQueue([block = std::move(block)](State& state) {
        state.idle.push_back(block);
        state.endIdle();
    });
}

bool OwnSourceUpdates::finish(std::chrono::milliseconds atMost) {
    m_state->cancelled = true;
    m_state->timer.reset();
    m_state->blocks.async(*m_state->queue, [] {});
    return m_state->blocks.wait(atMost);
}

} // namespace guide
