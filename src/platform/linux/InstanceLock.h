#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/queues/DispatchQueue.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace guide {

/// Ensures that only one process at a time uses a set of folders. The first process holds the lock while this
/// object lives and receives the requests of later ones. The lock of a process that died is free.
class InstanceLock {
  public:
    /// The request of another instance: one line without a line end.
    using RequestHandler = std::function<void(const QByteArray& request)>;
    /// Whether this process can carry a request out.
    using RequestFilter = std::function<bool(const QByteArray& request)>;

    enum class Outcome {
        /// This process holds the lock.
        First,
        /// Another process holds the lock and has received the request; this one may exit.
        HandedOver,
        /// Another process holds the lock and does not answer, or the folders cannot be locked.
        Unavailable,
    };

    /// Creates the lock in `lockFolder` and the socket in `socketFolder`. If another process holds the lock,
    /// sends it `request` (one line, at most 64 KB), waiting a few seconds for a process that is starting or
    /// ending. Without a request it neither disturbs the other process nor waits: the outcome is Unavailable.
    InstanceLock(const QString& lockFolder, const QString& socketFolder,
                 const std::optional<QByteArray>& request);
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;
    ~InstanceLock();

    Outcome outcome() const { return m_outcome; }

    /// For the holder of the lock: calls the handler on the queue for each request, including those that
    /// arrived earlier. May be called once. Once this object has been destroyed on that queue, the handler
    /// is not called again. A request that `takes` refuses (it is called on a thread of its own) reaches the
    /// handler too, but stays with the process that sent it. That one asks again, and takes the lock when
    /// this process ends soon.
    void listen(
        std::shared_ptr<DispatchQueue> queue, RequestHandler handler,
        RequestFilter takes = [](const QByteArray&) { return true; });

    /// For a holder of the lock that is about to end: accepts no more requests. A process that starts now
    /// waits for the lock. Must be called on the queue of the requests.
    void stopListening();

  private:
    struct Listener;

    bool lock();
    void openSocket();
    bool handOver(const QByteArray& request, std::chrono::milliseconds time) const;
    static void serve(const FileDescriptor& socket, int stop, const std::shared_ptr<Listener>& listener);

    Outcome m_outcome = Outcome::Unavailable;
    QByteArray m_socketPath;
    FileDescriptor m_lock;
    FileDescriptor m_socket;
    FileDescriptor m_stop;
    std::shared_ptr<Listener> m_listener;
    std::thread m_thread;
};

} // namespace guide
