#pragma once

#include "platform/DispatchQueue.h"
#include "platform/linux/FileDescriptor.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace guide {

/// Sees to it that one process at a time works in a set of folders. The first one holds the lock for as long
/// as this object lives, and is told the requests of those that come after it; a process that died holds
/// nothing.
class InstanceLock {
  public:
    /// One line of the other instance's wish, without a line end.
    using RequestHandler = std::function<void(const QByteArray& request)>;

    enum class Outcome {
        /// The folders are ours.
        First,
        /// Another process has them and has taken the request: this one may end.
        HandedOver,
        /// Another process has them and does not answer, or the folders cannot be locked.
        Unavailable,
    };

    /// The lock lies in `lockFolder`, the socket in `socketFolder`. When another process is there, it is sent
    /// `request` (one line, 64 KB at most); one that is just starting or ending is waited for, a few seconds.
    InstanceLock(const QString& lockFolder, const QString& socketFolder, const QByteArray& request);
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;
    ~InstanceLock();

    Outcome outcome() const { return m_outcome; }

    /// For the first one: from now on each request that comes is given to the handler, on the queue. Those
    /// that came before wait. To be called once; after the end of this object the handler is not called any
    /// more, if the end comes on that queue.
    void listen(std::shared_ptr<DispatchQueue> queue, RequestHandler handler);

    /// For the first one that is about to end: takes no request any more. Who comes now waits for the end,
    /// and is the first one then. On the queue of the requests.
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
