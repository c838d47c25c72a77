#include "platform/linux/InstanceLock.h"

#include "platform/linux/LocalSocket.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QFile>

#include <atomic>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace guide {

namespace {

constexpr qsizetype kLongestRequest = 64 * 1024;
constexpr std::chrono::milliseconds kHandOverTimeout{3000};
constexpr std::chrono::milliseconds kRetryInterval{20};
constexpr std::chrono::milliseconds kReadTime{1000};
constexpr char kTaken[] = "taken";

QByteArray socketName(const QByteArray& lockFolder) {
    return "instance-" + QCryptographicHash::hash(lockFolder, QCryptographicHash::Sha256).toHex().left(16) +
           ".socket";
}

} // namespace

struct InstanceLock::Listener {
    std::shared_ptr<DispatchQueue> queue;
    RequestHandler handler;
    RequestFilter takes;
    std::atomic<bool> ended{false};
};

InstanceLock::InstanceLock(const QString& lockFolder, const QString& socketFolder,
                           const std::optional<QByteArray>& request) {
    const QByteArray folder = QFile::encodeName(lockFolder);
    m_socketPath = QFile::encodeName(socketFolder) + '/' + socketName(folder);
    m_lock = FileDescriptor(::open((folder + "/instance.lock").constData(),
                                   O_RDWR | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0600));
    struct stat found{};
    if (!m_lock || ::fstat(m_lock.get(), &found) != 0 || !S_ISREG(found.st_mode)) {
        return;
    }
    const auto end = std::chrono::steady_clock::now() + kHandOverTimeout;
    do {
        if (lock()) {
            m_outcome = Outcome::First;
            openSocket();
            return;
        }
        if (!request) {
            return;
        }
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        if (handOver(*request, left)) {
            m_outcome = Outcome::HandedOver;
            return;
        }
        std::this_thread::sleep_for(kRetryInterval);
    } while (std::chrono::steady_clock::now() < end);
}

InstanceLock::~InstanceLock() {
    stopListening();
}

void InstanceLock::stopListening() {
    if (m_listener) {
        m_listener->ended.store(true);
        ::eventfd_write(m_stop.get(), 1);
        m_thread.join();
        m_listener.reset();
    }
    if (m_socket) {
        ::unlink(m_socketPath.constData());
        m_socket = FileDescriptor();
    }
}

// The kernel releases the lock however the process ends. The file is never removed: if it were, two
// processes could each lock a file of that name.
bool InstanceLock::lock() {
    return ::flock(m_lock.get(), LOCK_EX | LOCK_NB) == 0;
}

// The lock file contains the path of the socket: another session may use another socket folder.
void InstanceLock::openSocket() {
    m_socket = listeningSocket(m_socketPath);
    const bool noted = m_socket && ::ftruncate(m_lock.get(), 0) == 0 &&
                       ::pwrite(m_lock.get(), m_socketPath.constData(),
                                static_cast<std::size_t>(m_socketPath.size()), 0) == m_socketPath.size();
    if (!noted) {
        qWarning("cannot listen for requests at %s", m_socketPath.constData());
    }
}

bool InstanceLock::handOver(const QByteArray& request, std::chrono::milliseconds time) const {
    char path[4096];
    const ssize_t length = ::pread(m_lock.get(), path, sizeof path, 0);
    if (length <= 0) {
        return false;
    }
    const FileDescriptor connection = connectedSocket(QByteArray(path, length));
    QByteArray line = request.left(kLongestRequest);
    line.replace('\n', ' ');
    return connection && isSameUser(connection) && writeLine(connection, line) &&
           readLine(connection, sizeof kTaken, time) == QByteArray(kTaken);
}

void InstanceLock::listen(std::shared_ptr<DispatchQueue> queue, RequestHandler handler, RequestFilter takes) {
    if (!m_socket || m_listener) {
        return;
    }
    m_listener = std::make_shared<Listener>();
    m_listener->queue = std::move(queue);
    m_listener->handler = std::move(handler);
    m_listener->takes = std::move(takes);
    m_stop = FileDescriptor(::eventfd(0, EFD_CLOEXEC));
    m_thread = std::thread([this, listener = m_listener] { serve(m_socket, m_stop.get(), listener); });
}

void InstanceLock::serve(const FileDescriptor& socket, int stop, const std::shared_ptr<Listener>& listener) {
    for (;;) {
        pollfd watched[] = {{socket.get(), POLLIN, 0}, {stop, POLLIN, 0}};
        if (::poll(watched, 2, -1) < 0) {
            continue;
        }
        if (watched[1].revents != 0) {
            return;
        }
        const FileDescriptor connection(::accept4(socket.get(), nullptr, nullptr, SOCK_CLOEXEC));
        if (!connection || !isSameUser(connection)) {
            continue;
        }
        std::optional<QByteArray> request = readLine(connection, kLongestRequest, kReadTime, stop);
        if (!request) {
            continue;
        }
        const bool isTaken = listener->takes(*request);
        listener->queue->async([listener, asked = *std::move(request)] {
            if (!listener->ended.load()) {
                listener->handler(asked);
            }
        });
        if (isTaken) {
            writeLine(connection, kTaken);
        }
    }
}

} // namespace guide
