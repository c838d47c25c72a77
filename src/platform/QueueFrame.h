#pragma once

#include "platform/DispatchQueue.h"

namespace guide {

/// Marks, for as long as it lives, that the calling thread runs a block of a queue. Lives on the stack.
class QueueFrame {
  public:
    enum class Access { None, Shared, Alone };

    QueueFrame(const DispatchQueue& queue, bool alone);
    QueueFrame(const QueueFrame&) = delete;
    QueueFrame& operator=(const QueueFrame&) = delete;
    ~QueueFrame();

    /// How the calling thread runs on the queue now, blocks around the innermost one counted in.
    static Access accessTo(const DispatchQueue& queue);

  private:
    const DispatchQueue& m_queue;
    const bool m_alone;
    const QueueFrame* const m_outer;
};

/// Ends the process: the program has used a queue in a way that can never go well.
[[noreturn]] void queueFault(const DispatchQueue& queue, const char* what);

} // namespace guide
