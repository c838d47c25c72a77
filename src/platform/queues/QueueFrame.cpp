#include "platform/queues/QueueFrame.h"

#include <cstdio>
#include <cstdlib>

namespace guide {

namespace {

thread_local const QueueFrame* t_innermost = nullptr;

} // namespace

QueueFrame::QueueFrame(const DispatchQueue& queue, bool alone)
    : m_queue(queue)
    , m_alone(alone)
    , m_outer(t_innermost) {
    t_innermost = this;
}

QueueFrame::~QueueFrame() {
    t_innermost = m_outer;
}

QueueFrame::Access QueueFrame::accessTo(const DispatchQueue& queue) {
    for (const QueueFrame* frame = t_innermost; frame != nullptr; frame = frame->m_outer) {
        if (&frame->m_queue == &queue) {
            return frame->m_alone ? Access::Alone : Access::Shared;
        }
    }
    return Access::None;
}

void queueFault(const DispatchQueue& queue, const char* what) {
    std::fprintf(stderr, "queue %s: %s\n", queue.label().c_str(), what);
    std::abort();
}

} // namespace guide
