#pragma once

#include "platform/queues/QueueTimer.h"
#include "platform/queues/WorkerPool.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <unordered_set>
#include <vector>

namespace guide {

class ThreadedQueue;

/// Shared by the queues of one ThreadedQueues: timer, workers and the list of live queues.
class QueueHost {
  public:
    explicit QueueHost(const WorkerPool::ThreadStart& threadStart)
        : pool(threadStart) {}

    void add(const std::shared_ptr<ThreadedQueue>& queue);
    void remove(ThreadedQueue* queue);
    /// Stops the timer, the queues and the pool, in this order.
    void stop();

    WorkerPool pool;
    QueueTimer timer;

  private:
    std::mutex m_mutex;
    std::unordered_set<ThreadedQueue*> m_queues;
    bool m_stopped = false;
};

/// A queue on worker threads. Only the first pending block may begin, which keeps the order; a worker is
/// requested only when that block can begin.
class ThreadedQueue final : public DispatchQueue,
                            public Work,
                            public std::enable_shared_from_this<ThreadedQueue> {
  public:
    ThreadedQueue(std::shared_ptr<QueueHost> host, std::string label, QueueKind kind, QueuePriority priority);
    ~ThreadedQueue() override;

    const std::string& label() const override { return m_label; }
    void async(Block block) override;
    void asyncAfter(std::chrono::milliseconds delay, Block block) override;
    void sync(const Block& block) override;
    void asyncBarrier(Block block) override;
    [[nodiscard]] SuspensionToken suspend() override;

    void runOnWorker() override;

    /// Drops pending blocks and every later one. A waiting sync still gets its turn, even on a suspended
    /// queue, so that its caller can finish.
    void stop();

  private:
    /// The caller of a sync, on the stack of its thread.
    struct Waiter {
        std::condition_variable changed;
    };
    struct Item {
        Block block;
        Waiter* waiter = nullptr;
        bool alone = false;
    };

    void submit(Block block, bool alone);
    void resume();

    // These require the mutex.
    bool mayBegin(bool alone) const;
    void begin(bool alone);
    void end(bool alone);
    void advance();

    const std::shared_ptr<QueueHost> m_host;
    const std::string m_label;
    const QueueKind m_kind;
    const QueuePriority m_priority;

    std::mutex m_mutex;
    std::deque<Item> m_pending;
    std::size_t m_runningShared = 0;
    bool m_runningAlone = false;
    std::size_t m_suspensions = 0;
    /// A worker has been requested and has not started yet.
    bool m_workerCalled = false;
    bool m_stopped = false;
};

} // namespace guide
