#pragma once

#include "platform/MainInbox.h"
#include "platform/WorkerPool.h"

namespace guide {

class QueueHost;

/// The queues of the process on real threads. Made, shut down and destroyed on the main thread.
///
/// The main queue is labelled "main", the global ones "global.background", "global.default" and
/// "global.user-initiated".
class ThreadedQueues final : public DispatchQueues {
  public:
    /// The first is called on any thread when the main thread has to call runMainQueue; the second first on
    /// every new worker thread.
    explicit ThreadedQueues(Block wakeMainThread, const WorkerPool::ThreadStart& threadStart = nullptr);
    ThreadedQueues(const ThreadedQueues&) = delete;
    ThreadedQueues& operator=(const ThreadedQueues&) = delete;
    ~ThreadedQueues() override;

    DispatchQueue& mainQueue() override { return *m_main; }
    DispatchQueue& globalQueue(QueuePriority priority) override;
    std::shared_ptr<DispatchQueue> makeQueue(std::string label, QueueKind kind,
                                             QueuePriority priority = QueuePriority::Default) override;

    /// The main thread's answer to the wake-up.
    void runMainQueue() { m_main->runPending(); }

    /// Waits for the blocks that run, drops those that have not begun, joins the threads and throws the main
    /// queue's inbox away. What a dropped block held is released; later blocks are dropped at once. Queues
    /// that others still hold stay safe to use.
    void shutDown();

  private:
    const std::shared_ptr<QueueHost> m_host;
    const std::shared_ptr<MainInbox> m_main;
    const std::shared_ptr<DispatchQueue> m_background;
    const std::shared_ptr<DispatchQueue> m_default;
    const std::shared_ptr<DispatchQueue> m_userInitiated;
};

} // namespace guide
