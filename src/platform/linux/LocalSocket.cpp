#include "platform/linux/LocalSocket.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace guide {

namespace {

// A socket address holds about a hundred bytes, so the folder is referenced by its descriptor.
struct Address {
    FileDescriptor folder;
    sockaddr_un address{};

    explicit Address(const QByteArray& path) {
        const qsizetype nameAt = path.lastIndexOf('/') + 1;
        folder = FileDescriptor(::open(path.left(nameAt).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        const QByteArray link = "/proc/self/fd/" + QByteArray::number(folder.get()) + '/' + path.mid(nameAt);
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, link.constData(), sizeof address.sun_path);
    }
    const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&address); }
};

FileDescriptor streamSocket() {
    return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
}

} // namespace

FileDescriptor listeningSocket(const QByteArray& path) {
    const Address address(path);
    FileDescriptor listener = streamSocket();
    ::unlink(path.constData());
    if (!address.folder || !listener || ::bind(listener.get(), address.get(), sizeof address.address) != 0 ||
        ::listen(listener.get(), 16) != 0) {
        return {};
    }
    return listener;
}

FileDescriptor connectedSocket(const QByteArray& path) {
    const Address address(path);
    FileDescriptor connection = streamSocket();
    if (!address.folder || !connection ||
        ::connect(connection.get(), address.get(), sizeof address.address) != 0) {
        return {};
    }
    return connection;
}

bool isSameUser(const FileDescriptor& connection) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(connection.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::getuid();
}

std::optional<QByteArray> readLine(const FileDescriptor& connection, qsizetype limit,
                                   std::chrono::milliseconds time, int stop) {
    const auto end = std::chrono::steady_clock::now() + time;
    QByteArray line;
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        pollfd watched[] = {{connection.get(), POLLIN, 0}, {stop, POLLIN, 0}};
        const int ready = left.count() > 0 ? ::poll(watched, 2, static_cast<int>(left.count())) : 0;
        if (ready < 0 && errno == EINTR) {
            continue;
        }
        if (ready <= 0 || watched[1].revents != 0) {
            return std::nullopt;
        }
        char buffer[4096];
        const ssize_t count = ::recv(connection.get(), buffer, sizeof buffer, 0);
        if (count <= 0) {
            return std::nullopt;
        }
        line.append(buffer, count);
        if (const qsizetype lineEnd = line.indexOf('\n'); lineEnd >= 0) {
            return line.left(lineEnd);
        }
        if (line.size() > limit) {
            return std::nullopt;
        }
    }
}

bool writeLine(const FileDescriptor& connection, const QByteArray& line) {
    const QByteArray bytes = line + '\n';
    qsizetype sent = 0;
    while (sent < bytes.size()) {
        const ssize_t count = ::send(connection.get(), bytes.constData() + sent,
                                     static_cast<std::size_t>(bytes.size() - sent), MSG_NOSIGNAL);
        if (count <= 0) {
            return false;
        }
        sent += count;
    }
    return true;
}

} // namespace guide
