#include "platform/linux/EventLoopQueues.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

namespace guide {

namespace {

constexpr int kBackgroundNice = 10;

const QEvent::Type kWakeUpEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

void startWorker(QueuePriority priority) {
    // The system limits names to 15 bytes. A failure of either call does no harm.
    switch (priority) {
    case QueuePriority::Background:
        pthread_setname_np(pthread_self(), "background");
        setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), kBackgroundNice);
        break;
    case QueuePriority::Default:
        pthread_setname_np(pthread_self(), "default");
        break;
    case QueuePriority::UserInitiated:
        pthread_setname_np(pthread_self(), "user-initiated");
        break;
    }
}

} // namespace

/// Receives the wake-ups as events without data.
class EventLoopQueues::Loop final : public QObject {
  public:
    bool event(QEvent* event) override {
        if (event->type() == kWakeUpEvent) {
            queues.runMainQueue();
            return true;
        }
        return QObject::event(event);
    }

    ThreadedQueues queues{[this] { QCoreApplication::postEvent(this, new QEvent(kWakeUpEvent)); },
                          startWorker};
};

EventLoopQueues::EventLoopQueues()
    : m_loop(std::make_unique<Loop>()) {}

EventLoopQueues::~EventLoopQueues() = default;

DispatchQueue& EventLoopQueues::mainQueue() {
    return m_loop->queues.mainQueue();
}

DispatchQueue& EventLoopQueues::globalQueue(QueuePriority priority) {
    return m_loop->queues.globalQueue(priority);
}

std::shared_ptr<DispatchQueue> EventLoopQueues::makeQueue(std::string label, QueueKind kind,
                                                          QueuePriority priority) {
    return m_loop->queues.makeQueue(std::move(label), kind, priority);
}

void EventLoopQueues::shutDown() {
    m_loop->queues.shutDown();
}

} // namespace guide
