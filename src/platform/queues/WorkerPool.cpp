#include "platform/queues/WorkerPool.h"

#include "platform/queues/ThreadWaiting.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace guide {

class WorkerPool::ServiceClass final : public ThreadWaiting {
  public:
    ServiceClass(QueuePriority priority, ThreadStart threadStart, unsigned atWork, unsigned cap)
        : m_priority(priority)
        , m_threadStart(std::move(threadStart))
        , m_atWorkLimit(atWork)
        , m_cap(cap) {}

    void submit(std::shared_ptr<Work> work) {
        const std::lock_guard guard(m_mutex);
        if (!m_stopping) {
            m_work.push_back(std::move(work));
            callWorker();
        }
    }

    void beginStop() {
        std::deque<std::shared_ptr<Work>> dropped;
        const std::lock_guard guard(m_mutex);
        m_stopping = true;
        dropped.swap(m_work);
        m_changed.notify_all();
    }

    void join() {
        for (std::thread& thread : m_threads) {
            if (thread.joinable()) {
                thread.join();
            }
        }
    }

    bool isWorker() const { return t_class == this; }

    bool wait(std::unique_lock<std::mutex>& guard, std::condition_variable& changed,
              std::optional<std::chrono::milliseconds> atMost, const std::function<bool()>& done) override {
        const Away away(*this);
        return ThreadWaiting::wait(guard, changed, atMost, done);
    }

  private:
    /// Excludes the calling worker from m_atWork while it waits.
    class Away {
      public:
        explicit Away(ServiceClass& own)
            : m_own(own) {
            const std::lock_guard guard(m_own.m_mutex);
            --m_own.m_atWork;
            m_own.callWorker();
        }
        Away(const Away&) = delete;
        Away& operator=(const Away&) = delete;
        ~Away() {
            const std::lock_guard guard(m_own.m_mutex);
            ++m_own.m_atWork;
        }

      private:
        ServiceClass& m_own;
    };

    /// Wakes or creates a worker if work may start. Requires the mutex.
    void callWorker() {
        if (m_stopping || m_work.empty() || m_atWork >= m_atWorkLimit) {
            return;
        }
        const bool enoughIdle = m_idle >= m_work.size() || m_atWork + m_idle >= m_atWorkLimit;
        if (!enoughIdle && m_threads.size() < m_cap) {
            try {
                m_threads.emplace_back([this] { run(); });
                ++m_idle;
                return;
            } catch (const std::system_error&) {
                // No more threads available: the existing workers continue.
                if (m_threads.empty()) {
                    throw;
                }
            }
        }
        m_changed.notify_one();
    }

    void run() {
        t_class = this;
        ThreadWaiting::exchangeForThisThread(this);
        if (m_threadStart) {
            m_threadStart(m_priority);
        }
        std::unique_lock guard(m_mutex);
        for (;;) {
            m_changed.wait(guard,
                           [this] { return m_stopping || (!m_work.empty() && m_atWork < m_atWorkLimit); });
            if (m_stopping) {
                return;
            }
            std::shared_ptr<Work> work = std::move(m_work.front());
            m_work.pop_front();
            --m_idle;
            ++m_atWork;
            guard.unlock();
            work->runOnWorker();
            work.reset();
            guard.lock();
            --m_atWork;
            ++m_idle;
        }
    }

    static thread_local const ServiceClass* t_class;

    const QueuePriority m_priority;
    const ThreadStart m_threadStart;
    const unsigned m_atWorkLimit;
    const unsigned m_cap;

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::shared_ptr<Work>> m_work;
    std::vector<std::thread> m_threads;
    /// Workers that wait for work, including those being created.
    std::size_t m_idle = 0;
    /// Workers that run work and do not wait in it. Temporarily exceeds the limit when one returns from
    /// waiting.
    std::size_t m_atWork = 0;
    bool m_stopping = false;
};

thread_local const WorkerPool::ServiceClass* WorkerPool::ServiceClass::t_class = nullptr;

WorkerPool::WorkerPool(const ThreadStart& threadStart, unsigned atWork, unsigned cap)
    : m_classes{std::make_unique<ServiceClass>(QueuePriority::Background, threadStart, atWork, cap),
                std::make_unique<ServiceClass>(QueuePriority::Default, threadStart, atWork, cap),
                std::make_unique<ServiceClass>(QueuePriority::UserInitiated, threadStart, atWork, cap)} {}

WorkerPool::~WorkerPool() {
    stop();
}

unsigned WorkerPool::defaultAtWork() {
    return std::max(8U, std::thread::hardware_concurrency());
}

void WorkerPool::submit(QueuePriority priority, std::shared_ptr<Work> work) {
    serviceClass(priority).submit(std::move(work));
}

void WorkerPool::stop() {
    for (const auto& serviceClass : m_classes) {
        serviceClass->beginStop();
    }
    for (const auto& serviceClass : m_classes) {
        serviceClass->join();
    }
}

bool WorkerPool::isWorker() const {
    return std::any_of(m_classes.begin(), m_classes.end(),
                       [](const auto& serviceClass) { return serviceClass->isWorker(); });
}

WorkerPool::ServiceClass& WorkerPool::serviceClass(QueuePriority priority) {
    switch (priority) {
    case QueuePriority::Background:
        return *m_classes[0];
    case QueuePriority::Default:
        break;
    case QueuePriority::UserInitiated:
        return *m_classes[2];
    }
    return *m_classes[1];
}

} // namespace guide
