#pragma once

#include "platform/queues/DispatchQueue.h"

#include <array>
#include <functional>
#include <memory>

namespace guide {

/// Something to run once on a worker thread.
class Work {
  public:
    virtual ~Work() = default;
    virtual void runOnWorker() = 0;
};

/// Worker threads in three service classes. Each class has its own workers, so that long work of one never
/// delays another. Threads are created on demand. A worker that waits (see ThreadWaiting) is replaced
/// meanwhile, up to a cap. May be used from any thread.
class WorkerPool {
  public:
    /// Called first on every new worker, to set its name and priority. May be empty.
    using ThreadStart = std::function<void(QueuePriority)>;

    /// The number of workers of one class that may run at the same time, waiting ones not counted, and the
    /// total number of workers of one class.
    explicit WorkerPool(const ThreadStart& threadStart, unsigned atWork = defaultAtWork(), unsigned cap = 64);
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;
    ~WorkerPool();

    /// The number of processors, at least 8: up to four transfers wait for the network without reporting it.
    static unsigned defaultAtWork();

    /// Runs in order of submission within a class. Does nothing after stop.
    void submit(QueuePriority priority, std::shared_ptr<Work> work);

    /// Drops work that has not started, waits for running work and joins the threads. Must not be called from
    /// a worker.
    void stop();

    /// Whether the calling thread is a worker of this pool.
    bool isWorker() const;

  private:
    class ServiceClass;
    ServiceClass& serviceClass(QueuePriority priority);

    std::array<std::unique_ptr<ServiceClass>, 3> m_classes;
};

} // namespace guide
