#pragma once

#include "platform/memory/ManualClock.h"
#include "platform/queues/DispatchQueue.h"
#include "platform/queues/ThreadWaiting.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace guide {

class SteppedQueue;

/// State shared by the queues of one SteppedQueues.
struct SteppedQueuesState {
    struct Frame {
        const SteppedQueue* queue;
        /// False for a sync, which runs on its caller's thread.
        bool ownThread;
    };

    SteppedQueuesState(ManualClock& ownClock, std::function<void(const std::string&)> ownMisused)
        : clock(ownClock)
        , misused(std::move(ownMisused)) {}

    ManualClock& clock;
    const std::function<void(const std::string&)> misused;
    const std::thread::id thread = std::this_thread::get_id();
    std::vector<std::shared_ptr<SteppedQueue>> queues;
    std::multimap<Moment, std::pair<std::shared_ptr<SteppedQueue>, Block>> timers;
    /// The running blocks, innermost last.
    std::vector<Frame> frames;
    std::uint64_t submitted = 0;
    bool ended = false;
};

class SteppedQueue final : public DispatchQueue, public std::enable_shared_from_this<SteppedQueue> {
  public:
    enum class Kind { Serial, Concurrent, Main };

    SteppedQueue(const std::shared_ptr<SteppedQueuesState>& state, std::string label, Kind kind)
        : m_state(state)
        , m_label(std::move(label))
        , m_kind(kind) {}

    const std::string& label() const override { return m_label; }
    void async(Block block) override { submit(std::move(block), false); }
    void asyncBarrier(Block block) override { submit(std::move(block), true); }
    void sync(const Block& block) override { runInline(block); }

    void asyncAfter(std::chrono::milliseconds delay, Block block) override {
        const auto state = checkedState();
        if (!state || state->ended) {
            return;
        }
        if (delay <= std::chrono::milliseconds::zero()) {
            async(std::move(block));
        } else {
            state->timers.emplace(state->clock.now() + delay,
                                  std::make_pair(shared_from_this(), std::move(block)));
        }
    }

    SuspensionToken suspend() override {
        ++m_suspensions;
        return SuspensionToken([self = shared_from_this()] { --self->m_suspensions; });
    }

    bool suspended() const { return m_suspensions > 0; }

    // ---- for SteppedQueues

    bool canRun() const {
        return !m_pending.empty() && m_suspensions == 0 && !m_exclusiveRunning &&
               (m_readersRunning == 0 || !exclusive(m_pending.front().barrier));
    }
    bool isCurrent() const {
        const auto state = m_state.lock();
        if (!state) {
            return true;
        }
        for (auto frame = state->frames.rbegin(); frame != state->frames.rend(); ++frame) {
            if (frame->queue == this) {
                return true;
            }
            if (frame->ownThread) {
                return false;
            }
        }
        // The code that steps the queues counts as the main thread.
        return m_kind == Kind::Main;
    }
    std::uint64_t frontOrder() const { return m_pending.front().order; }

    void runFront() {
        Item item = std::move(m_pending.front());
        m_pending.pop_front();
        run(item.block, exclusive(item.barrier), true);
        item.block = nullptr;
    }

    std::deque<Block> takePending() {
        std::deque<Block> blocks;
        for (Item& item : m_pending) {
            blocks.push_back(std::move(item.block));
        }
        m_pending.clear();
        return blocks;
    }

  private:
    struct Item {
        Block block;
        bool barrier;
        std::uint64_t order;
    };

    std::shared_ptr<SteppedQueuesState> checkedState() const {
        auto state = m_state.lock();
        if (state && state->thread != std::this_thread::get_id()) {
            state->misused("stepped queue " + m_label + " used from a second thread");
            std::abort();
        }
        return state;
    }

    bool exclusive(bool barrier) const { return barrier || m_kind != Kind::Concurrent; }

    void submit(Block block, bool barrier) {
        const auto state = checkedState();
        if (state && !state->ended) {
            m_pending.push_back({std::move(block), barrier, state->submitted++});
        }
    }

    void runInline(const Block& block) {
        const auto state = checkedState();
        if (!state) {
            return;
        }
        if (m_kind == Kind::Main) {
            state->misused("sync on the main queue");
        }
        if (m_suspensions > 0) {
            state->misused("sync on the suspended queue " + m_label + " would deadlock");
        }
        const bool nestedReader = !exclusive(false) && m_readersRunning > 0 && isCurrent();
        // A real queue would run these blocks first.
        for (std::size_t ahead = nestedReader ? 0 : m_pending.size(); ahead > 0 && canRun(); --ahead) {
            runFront();
        }
        if (m_exclusiveRunning) {
            state->misused("sync on " + m_label + " from one of its own blocks would not return");
        }
        run(block, exclusive(false), false);
    }

    void run(const Block& block, bool alone, bool ownThread) {
        const auto state = m_state.lock();
        if (!state) {
            return;
        }
        const bool wasExclusive = std::exchange(m_exclusiveRunning, m_exclusiveRunning || alone);
        m_readersRunning += alone ? 0 : 1;
        state->frames.push_back({this, ownThread});
        block();
        state->frames.pop_back();
        m_readersRunning -= alone ? 0 : 1;
        m_exclusiveRunning = wasExclusive;
    }

    const std::weak_ptr<SteppedQueuesState> m_state;
    const std::string m_label;
    const Kind m_kind;
    std::deque<Item> m_pending;
    int m_suspensions = 0;
    int m_readersRunning = 0;
    bool m_exclusiveRunning = false;
};

/// Queues that run blocks only when they are asked to, all on one thread, one at a time and in the
/// order of submission across queues. asyncAfter submits when the manual clock reaches its time. A sync first
/// runs what is pending on its queue; where a real queue would deadlock, it reports a misuse. Waiting
/// for a group runs blocks until the group is done.
///
/// Labels besides those given to makeQueue: "main", "global.background", "global.default",
/// "global.user-initiated".
class SteppedQueues : public DispatchQueues, private ThreadWaiting {
  public:
    /// `misused` is called with what the caller did where a real queue would deadlock.
    SteppedQueues(ManualClock& clock, std::function<void(const std::string&)> misused)
        : m_state(std::make_shared<SteppedQueuesState>(clock, std::move(misused))) {
        m_main = add("main", SteppedQueue::Kind::Main);
        for (const auto& [priority, label] :
             {std::pair(QueuePriority::Background, "global.background"),
              std::pair(QueuePriority::Default, "global.default"),
              std::pair(QueuePriority::UserInitiated, "global.user-initiated")}) {
            m_global[priority] = add(label, SteppedQueue::Kind::Concurrent);
        }
        clock.onMove([state = std::weak_ptr(m_state)] {
            if (const auto held = state.lock()) {
                fireTimers(*held);
            }
        });
        m_outerWaiting = ThreadWaiting::exchangeForThisThread(this);
    }
    SteppedQueues(const SteppedQueues&) = delete;
    SteppedQueues& operator=(const SteppedQueues&) = delete;
    ~SteppedQueues() override {
        ThreadWaiting::exchangeForThisThread(m_outerWaiting);
        shutDown();
    }

    DispatchQueue& mainQueue() override { return *m_main; }
    DispatchQueue& globalQueue(QueuePriority priority) override { return *m_global.at(priority); }
    std::shared_ptr<DispatchQueue> makeQueue(std::string label, QueueKind kind,
                                             QueuePriority = QueuePriority::Default) override {
        return add(std::move(label),
                   kind == QueueKind::Serial ? SteppedQueue::Kind::Serial : SteppedQueue::Kind::Concurrent);
    }

    /// Runs the earliest submitted block that can start; false when there is none.
    bool runOne() {
        return runOneOf([](const SteppedQueue&) { return true; });
    }
    /// Runs until no block can start. Returns the number of blocks run.
    std::size_t runAll() {
        return runWhile([](const SteppedQueue&) { return true; });
    }
    /// The same, for queues with this label only.
    std::size_t run(const std::string& label) {
        return runWhile([&label](const SteppedQueue& queue) { return queue.label() == label; });
    }

    /// Whether the caller runs on this queue, which must be one of these. The code that steps the queues
    /// runs on the main queue.
    static bool isCurrent(const DispatchQueue& queue) {
        return static_cast<const SteppedQueue&>(queue).isCurrent();
    }

    /// The number of asyncAfter blocks whose time has not come.
    std::size_t delayed() const { return m_state->timers.size(); }

    /// Whether a call of asyncAfter on this queue has not been submitted yet.
    bool hasTimers(const std::string& label) const {
        return std::ranges::any_of(
            m_state->timers, [&label](const auto& timer) { return timer.second.first->label() == label; });
    }

    bool suspended(const std::string& label) const {
        return std::any_of(m_state->queues.begin(), m_state->queues.end(), [&label](const auto& queue) {
            return queue->label() == label && queue->suspended();
        });
    }

    /// Drops all blocks that have not started and all that are submitted from now on.
    void shutDown() {
        m_state->ended = true;
        const auto timers = std::exchange(m_state->timers, {});
        std::deque<std::deque<Block>> blocks;
        for (const auto& queue : m_state->queues) {
            blocks.push_back(queue->takePending());
        }
    }

  private:
    std::shared_ptr<SteppedQueue> add(std::string label, SteppedQueue::Kind kind) {
        return m_state->queues.emplace_back(std::make_shared<SteppedQueue>(m_state, std::move(label), kind));
    }

    static void fireTimers(SteppedQueuesState& state) {
        while (!state.timers.empty() && state.timers.begin()->first <= state.clock.now()) {
            auto timer = state.timers.extract(state.timers.begin());
            timer.mapped().first->async(std::move(timer.mapped().second));
        }
    }

    template <class Takes>
    bool runOneOf(const Takes& takes) {
        std::shared_ptr<SteppedQueue> next;
        for (const auto& queue : m_state->queues) {
            if (takes(*queue) && queue->canRun() && (!next || queue->frontOrder() < next->frontOrder())) {
                next = queue;
            }
        }
        if (next) {
            next->runFront();
        }
        return next != nullptr;
    }
    template <class Takes>
    std::size_t runWhile(const Takes& takes) {
        constexpr std::size_t kEndless = 1'000'000;
        std::size_t ran = 0;
        while (ran < kEndless && runOneOf(takes)) {
            ++ran;
        }
        if (ran == kEndless) {
            m_state->misused("blocks submit blocks endlessly");
        }
        return ran;
    }
    bool wait(std::unique_lock<std::mutex>& guard, std::condition_variable&,
              std::optional<std::chrono::milliseconds> atMost, const std::function<bool()>& done) override {
        while (!done()) {
            guard.unlock();
            // A waiting main thread runs none of its blocks.
            const bool ran = runOneOf(
                [this](const SteppedQueue& queue) { return &queue != m_main.get() || !m_main->isCurrent(); });
            guard.lock();
            if (!ran && !done()) {
                if (!atMost) {
                    m_state->misused("a wait that would never end");
                }
                return false;
            }
        }
        return true;
    }

    const std::shared_ptr<SteppedQueuesState> m_state;
    std::shared_ptr<SteppedQueue> m_main;
    std::map<QueuePriority, std::shared_ptr<SteppedQueue>> m_global;
    ThreadWaiting* m_outerWaiting = nullptr;
};

} // namespace guide
