#include "demo/server/HTTPServer.h"

#include <QtDebug>

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <system_error>
#include <unistd.h>

namespace guide {

using namespace std::chrono_literals;

namespace {

constexpr std::size_t kMaxConnections = 64;
constexpr int kBacklog = 128;
constexpr qsizetype kMaxHead = 16 * 1024;
constexpr qsizetype kMaxBody = 1024 * 1024;
constexpr std::chrono::seconds kTransferTimeout{10};
/// How long a connection waits for the client to close first.
constexpr std::chrono::seconds kLinger{1};
/// Pause after a failed accept: the process may be out of descriptors.
constexpr std::chrono::milliseconds kAcceptPause{50};

void setTimeout(int socket, int option, std::chrono::seconds timeout) {
    const timeval time{.tv_sec = timeout.count(), .tv_usec = 0};
    ::setsockopt(socket, SOL_SOCKET, option, &time, sizeof time);
}

/// Appends received bytes; false when the client has closed or was silent for too long.
bool receiveSome(int socket, QByteArray& bytes) {
    std::array<char, 4096> buffer;
    const ssize_t count = ::recv(socket, buffer.data(), buffer.size(), 0);
    if (count > 0) {
        bytes.append(buffer.data(), qsizetype(count));
    }
    return count > 0;
}

/// Nothing when the client sends no valid request, sends too much or takes too long.
std::optional<ServerRequest> receivedRequest(int socket) {
    const auto deadline = std::chrono::steady_clock::now() + kTransferTimeout;
    const auto receiveMore = [&](QByteArray& bytes) {
        return receiveSome(socket, bytes) && std::chrono::steady_clock::now() < deadline;
    };
    QByteArray bytes;
    qsizetype end = -1;
    while ((end = bytes.indexOf("\r\n\r\n")) < 0) {
        if (bytes.size() > kMaxHead || !receiveMore(bytes)) {
            return std::nullopt;
        }
    }
    const QList<QByteArray> words = bytes.first(bytes.indexOf("\r\n")).split(' ');
    if (words.size() != 3 || !words[2].startsWith("HTTP/1.")) {
        return std::nullopt;
    }
    ServerRequest request{words[0], words[1], bytes.first(end + 2), bytes.sliced(end + 4)};
    const qint64 length = request.header("Content-Length").toLongLong();
    if (length < 0 || length > kMaxBody) {
        return std::nullopt;
    }
    while (request.body.size() < length) {
        if (!receiveMore(request.body)) {
            return std::nullopt;
        }
    }
    return request;
}

/// Reads until the client closes: closing with unread bytes would reset the connection.
void closeAfterClient(int socket) {
    ::shutdown(socket, SHUT_WR);
    setTimeout(socket, SO_RCVTIMEO, kLinger);
    QByteArray ignored;
    while (ignored.size() < kMaxBody && receiveSome(socket, ignored)) {
    }
}

void waitForClient(int socket) {
    setTimeout(socket, SO_RCVTIMEO, 0s);
    std::array<char, 64> ignored;
    while (::recv(socket, ignored.data(), ignored.size(), 0) > 0) {
    }
}

} // namespace

HTTPServer::HTTPServer(Handler handler, int listener, std::uint16_t port)
    : m_handler(std::move(handler))
    , m_listener(listener)
    , m_port(port)
    , m_acceptor([this] { accept(); }) {}

HTTPServer::~HTTPServer() {
    stop();
}

std::unique_ptr<HTTPServer> HTTPServer::start(Handler handler, std::uint16_t port) {
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    socklen_t size = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    const int reuse = 1;
    ::setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &reuse, sizeof reuse);
    if (listener < 0 || ::bind(listener, generic, size) != 0 || ::listen(listener, kBacklog) != 0 ||
        ::getsockname(listener, generic, &size) != 0) {
        qWarning("HTTP server: cannot listen on 127.0.0.1");
        if (listener >= 0) {
            ::close(listener);
        }
        return nullptr;
    }
    return std::unique_ptr<HTTPServer>(new HTTPServer(std::move(handler), listener, ntohs(address.sin_port)));
}

QString HTTPServer::authority() const {
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

QString HTTPServer::base() const {
    return QStringLiteral("http://") + authority();
}

void HTTPServer::accept() {
    while (true) {
        const int socket = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_stopping || m_open.size() < kMaxConnections; });
        if (m_stopping) {
            if (socket >= 0) {
                ::close(socket);
            }
            return;
        }
        for (Connection& ended : m_ended) {
            ended.thread.join();
        }
        m_ended.clear();
        if (socket < 0) {
            m_changed.wait_for(lock, kAcceptPause);
            continue;
        }
        const auto self = m_open.insert(m_open.end(), Connection{socket, {}});
        try {
            self->thread = std::thread([this, self, socket] {
                serveConnection(socket);
                const std::lock_guard guard(m_mutex);
                ::close(socket);
                m_ended.splice(m_ended.end(), m_open, self);
                m_changed.notify_all();
            });
        } catch (const std::system_error&) {
            // No thread could be started: the client is disconnected.
            ::close(socket);
            m_open.erase(self);
        }
    }
}

void HTTPServer::serveConnection(int socket) {
    setTimeout(socket, SO_RCVTIMEO, kTransferTimeout);
    setTimeout(socket, SO_SNDTIMEO, kTransferTimeout);
    const std::optional<ServerRequest> request = receivedRequest(socket);
    if (!request) {
        return;
    }
    const ServerReply reply = m_handler(*request);
    for (const ServerReply::Piece& piece : reply.pieces) {
        if (!send(socket, piece)) {
            return;
        }
    }
    switch (reply.end) {
    case ServerReply::End::Close:
        closeAfterClient(socket);
        break;
    case ServerReply::End::Reset: {
        const linger immediately{1, 0};
        ::setsockopt(socket, SOL_SOCKET, SO_LINGER, &immediately, sizeof immediately);
        break;
    }
    case ServerReply::End::Stall:
        waitForClient(socket);
        break;
    }
}

bool HTTPServer::send(int socket, const ServerReply::Piece& piece) {
    if (piece.wait > 0ms) {
        std::unique_lock lock(m_mutex);
        if (m_changed.wait_for(lock, piece.wait, [this] { return m_stopping; })) {
            return false;
        }
    }
    QByteArrayView left(piece.bytes);
    while (!left.isEmpty()) {
        const ssize_t count = ::send(socket, left.data(), std::size_t(left.size()), MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR) {
            return false;
        }
        left = left.sliced(std::max<ssize_t>(count, 0));
    }
    return true;
}

void HTTPServer::stop() {
    {
        const std::lock_guard guard(m_mutex);
        if (m_stopping) {
            return;
        }
        m_stopping = true;
        for (const Connection& connection : m_open) {
            ::shutdown(connection.socket, SHUT_RDWR);
        }
    }
    m_changed.notify_all();
    ::shutdown(m_listener, SHUT_RDWR);
    m_acceptor.join();
    ::close(m_listener);
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_open.empty(); });
    for (Connection& connection : m_ended) {
        connection.thread.join();
    }
    m_ended.clear();
}

} // namespace guide
