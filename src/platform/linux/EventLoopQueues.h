#pragma once

#include "platform/ThreadedQueues.h"

#include <memory>

namespace guide {

/// The queues of the process with Qt's event loop of the thread that makes them as the main queue. Workers
/// carry the name of their class; background ones leave the processor to the others.
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
