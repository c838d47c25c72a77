#pragma once

#include "platform/queues/DispatchQueue.h"

namespace guide {

/// Marks that the calling thread runs a block of a queue while the object lives. Must be on the stack.
class QueueFrame {
  public:
    enum class Access { None, Shared, Alone };

    QueueFrame(const DispatchQueue& queue, bool alone);
    QueueFrame(const QueueFrame&) = delete;
    QueueFrame& operator=(const QueueFrame&) = delete;
    ~QueueFrame();

    /// How the calling thread runs on the queue now, enclosing blocks included.
    static Access accessTo(const DispatchQueue& queue);

  private:
    const DispatchQueue& m_queue;
    const bool m_alone;
    const QueueFrame* const m_outer;
};

/// Ends the process: the queue was used in a way that would deadlock.
[[noreturn]] void queueFault(const DispatchQueue& queue, const char* what);

} // namespace guide
