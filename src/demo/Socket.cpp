#include "demo/Socket.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace guide {

namespace {

constexpr int kBacklog = 128;

} // namespace

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    if (this != &other) {
        close();
        m_fd = other.release();
    }
    return *this;
}

int Descriptor::release() {
    const int fd = m_fd;
    m_fd = -1;
    return fd;
}

void Descriptor::close() {
    if (m_fd >= 0) {
        ::close(m_fd);
        m_fd = -1;
    }
}

std::optional<ListeningSocket> listeningSocket() {
    Descriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (!socket.valid() || ::bind(socket.get(), generic, length) != 0 ||
        ::listen(socket.get(), kBacklog) != 0 || ::getsockname(socket.get(), generic, &length) != 0) {
        return std::nullopt;
    }
    return ListeningSocket{std::move(socket), ntohs(address.sin_port)};
}

Connection::Connection(Descriptor socket, int stop)
    : m_socket(std::move(socket))
    , m_stop(stop) {}

Connection::Outcome Connection::wait(short events, Milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (true) {
        const auto left =
            std::chrono::ceil<Milliseconds>(deadline - std::chrono::steady_clock::now()).count();
        std::array<pollfd, 2> sockets{pollfd{m_stop, POLLIN, 0}, pollfd{m_socket.get(), events, 0}};
        // Without events only the stop counts: a negative descriptor is passed over.
        if (events == 0) {
            sockets[1].fd = -1;
        }
        const int ready = ::poll(sockets.data(), sockets.size(), int(std::max<std::int64_t>(0, left)));
        if (ready < 0 && errno == EINTR) {
            continue;
        }
        if (ready < 0 || sockets[0].revents != 0) {
            return Outcome::Stopped;
        }
        return ready == 0 ? Outcome::TimedOut : Outcome::Done;
    }
}

Connection::Outcome Connection::readSome(QByteArray& to, Milliseconds timeout) {
    if (const Outcome outcome = wait(POLLIN, timeout); outcome != Outcome::Done) {
        return outcome;
    }
    std::array<char, 4096> buffer;
    const ssize_t count = ::recv(m_socket.get(), buffer.data(), buffer.size(), 0);
    if (count <= 0) {
        return Outcome::Closed;
    }
    to.append(buffer.data(), qsizetype(count));
    return Outcome::Done;
}

Connection::Outcome Connection::write(QByteArrayView bytes, Milliseconds timeout) {
    while (!bytes.isEmpty()) {
        if (const Outcome outcome = wait(POLLOUT, timeout); outcome != Outcome::Done) {
            return outcome;
        }
        const ssize_t count =
            ::send(m_socket.get(), bytes.data(), std::size_t(bytes.size()), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
            continue;
        }
        if (count < 0) {
            return Outcome::Closed;
        }
        bytes = bytes.sliced(qsizetype(count));
    }
    return Outcome::Done;
}

Connection::Outcome Connection::waitForClose(Milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (true) {
        const auto left = std::chrono::ceil<Milliseconds>(deadline - std::chrono::steady_clock::now());
        QByteArray ignored;
        const Outcome outcome = readSome(ignored, std::max(left, Milliseconds(0)));
        if (outcome != Outcome::Done) {
            return outcome;
        }
    }
}

void Connection::finishWriting() {
    ::shutdown(m_socket.get(), SHUT_WR);
}

Connection::Outcome Connection::pause(Milliseconds duration) {
    return wait(0, duration);
}

} // namespace guide
