#pragma once

#include "platform/DispatchQueue.h"

#include <array>
#include <functional>
#include <memory>

namespace guide {

/// Something that wants to run on a worker thread once.
class Work {
  public:
    virtual ~Work() = default;
    virtual void runOnWorker() = 0;
};

/// Worker threads in three service classes, each with workers of its own, so that long work of one class
/// never keeps another one waiting. Threads are made when they are first needed. A worker that waits (see
/// ThreadWaiting) is replaced while it does, up to a cap. May be used from any thread.
class WorkerPool {
  public:
    /// Called first on every new worker: to name it, to set its priority. May be empty.
    using ThreadStart = std::function<void(QueuePriority)>;

    /// How many workers of one class work at the same time, waiting ones not counted; and how many there are
    /// at most.
    explicit WorkerPool(const ThreadStart& threadStart, unsigned atWork = defaultAtWork(), unsigned cap = 64);
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;
    ~WorkerPool();

    /// The processors of the machine, at least 4: some work waits for the network without saying so.
    static unsigned defaultAtWork();

    /// First come, first served within a class. After stop it does nothing.
    void submit(QueuePriority priority, std::shared_ptr<Work> work);

    /// Drops what no worker has taken, waits for what runs and joins the threads. Not from a worker.
    void stop();

    /// Whether the calling thread is a worker of this pool.
    bool isWorker() const;

  private:
    class ServiceClass;
    ServiceClass& serviceClass(QueuePriority priority);

    std::array<std::unique_ptr<ServiceClass>, 3> m_classes;
};

} // namespace guide
