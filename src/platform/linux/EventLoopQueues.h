#pragma once

#include "platform/queues/ThreadedQueues.h"

#include <memory>

namespace guide {

/// Queues whose main queue is Qt's event loop of the creating thread. Worker threads are named after their
/// service class; background workers run at a lower priority.
class EventLoopQueues final : public DispatchQueues {
  public:
    EventLoopQueues();
    EventLoopQueues(const EventLoopQueues&) = delete;
    EventLoopQueues& operator=(const EventLoopQueues&) = delete;
    ~EventLoopQueues() override;

    DispatchQueue& mainQueue() override;
    DispatchQueue& globalQueue(QueuePriority priority) override;
    std::shared_ptr<DispatchQueue> makeQueue(std::string label, QueueKind kind,
                                             QueuePriority priority = QueuePriority::Default) override;

    /// See ThreadedQueues::shutDown.
    void shutDown();

  private:
    class Loop;
    const std::unique_ptr<Loop> m_loop;
};

} // namespace guide
