#pragma once

#include "platform/queues/MainInbox.h"
#include "platform/queues/WorkerPool.h"

namespace guide {

class QueueHost;

/// Queues on real threads. Must be created, shut down and destroyed on the main thread.
///
/// Labels: "main", "global.background", "global.default" and "global.user-initiated".
class ThreadedQueues final : public DispatchQueues {
  public:
    /// `wakeMainThread` is called on any thread when the main thread must call runMainQueue; `threadStart` is
    /// called first on every new worker thread.
    explicit ThreadedQueues(Block wakeMainThread, const WorkerPool::ThreadStart& threadStart = nullptr);
    ThreadedQueues(const ThreadedQueues&) = delete;
    ThreadedQueues& operator=(const ThreadedQueues&) = delete;
    ~ThreadedQueues() override;

    DispatchQueue& mainQueue() override { return *m_main; }
    DispatchQueue& globalQueue(QueuePriority priority) override;
    std::shared_ptr<DispatchQueue> makeQueue(std::string label, QueueKind kind,
                                             QueuePriority priority = QueuePriority::Default) override;

    /// Runs the pending blocks of the main queue. Main thread.
    void runMainQueue() { m_main->runPending(); }

    /// Waits for running blocks, drops pending ones, joins the threads and empties the main queue. Captures
    /// of dropped blocks are released; later blocks are dropped at once. Queues that are still referenced
    /// stay safe to use.
    void shutDown();

  private:
    const std::shared_ptr<QueueHost> m_host;
    const std::shared_ptr<MainInbox> m_main;
    const std::shared_ptr<DispatchQueue> m_background;
    const std::shared_ptr<DispatchQueue> m_default;
    const std::shared_ptr<DispatchQueue> m_userInitiated;
};

} // namespace guide
