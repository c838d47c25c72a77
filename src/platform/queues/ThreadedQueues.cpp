#include "platform/queues/ThreadedQueues.h"

#include "platform/queues/QueueFrame.h"
#include "platform/queues/ThreadedQueue.h"

namespace guide {

namespace {

std::shared_ptr<DispatchQueue> addQueue(const std::shared_ptr<QueueHost>& host, std::string label,
                                        QueueKind kind, QueuePriority priority) {
    auto queue = std::make_shared<ThreadedQueue>(host, std::move(label), kind, priority);
    host->add(queue);
    return queue;
}

} // namespace

ThreadedQueues::ThreadedQueues(Block wakeMainThread, const WorkerPool::ThreadStart& threadStart)
    : m_host(std::make_shared<QueueHost>(threadStart))
    , m_main(std::make_shared<MainInbox>(std::move(wakeMainThread),
                                         [host = m_host](std::chrono::milliseconds delay,
                                                         std::shared_ptr<DispatchQueue> queue, Block block) {
                                             host->timer.submitAfter(delay, std::move(queue),
                                                                     std::move(block));
                                         }))
    , m_background(addQueue(m_host, "global.background", QueueKind::Concurrent, QueuePriority::Background))
    , m_default(addQueue(m_host, "global.default", QueueKind::Concurrent, QueuePriority::Default))
    , m_userInitiated(
          addQueue(m_host, "global.user-initiated", QueueKind::Concurrent, QueuePriority::UserInitiated)) {}

ThreadedQueues::~ThreadedQueues() {
    shutDown();
}

DispatchQueue& ThreadedQueues::globalQueue(QueuePriority priority) {
    switch (priority) {
    case QueuePriority::Background:
        return *m_background;
    case QueuePriority::Default:
        break;
    case QueuePriority::UserInitiated:
        return *m_userInitiated;
    }
    return *m_default;
}

std::shared_ptr<DispatchQueue> ThreadedQueues::makeQueue(std::string label, QueueKind kind,
                                                         QueuePriority priority) {
    return addQueue(m_host, std::move(label), kind, priority);
}

void ThreadedQueues::shutDown() {
    m_main->requireMainThread();
    m_host->stop();
    m_main->discardAll();
}

} // namespace guide
