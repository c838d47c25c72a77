#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <arpa/inet.h>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <netinet/in.h>
#include <set>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace guide {

/// What one connection of a ScriptedServer gets: pieces of raw bytes, each after a wait, and an end.
struct ScriptedReply {
    enum class End {
        /// The connection is closed in order.
        Close,
        /// The connection is reset.
        Cut,
        /// Nothing more comes, and the connection stays open for as long as the server lives.
        Stall,
    };
    struct Piece {
        std::chrono::milliseconds wait{0};
        QByteArray bytes;
    };

    std::vector<Piece> pieces;
    End end = End::Close;

    /// A whole answer with its Content-Length. Header lines go without line ends ("Content-Type: text/html").
    static ScriptedReply answer(int status, const QByteArray& body, const QList<QByteArray>& headers = {}) {
        return raw(
            head(status, headers + QList<QByteArray>{"Content-Length: " + QByteArray::number(body.size())}) +
            body);
    }
    static ScriptedReply ok(const QByteArray& body, const QList<QByteArray>& headers = {}) {
        return answer(200, body, headers);
    }
    static ScriptedReply redirect(const QByteArray& location, int status = 301) {
        return answer(status, {}, {"Location: " + location});
    }
    /// These bytes and nothing else.
    static ScriptedReply raw(const QByteArray& bytes, End end = End::Close) {
        ScriptedReply reply;
        reply.pieces.push_back({{}, bytes});
        reply.end = end;
        return reply;
    }
    /// A status line and headers, closed by the empty line.
    static QByteArray head(int status, const QList<QByteArray>& headers = {}) {
        QByteArray bytes = "HTTP/1.1 " + QByteArray::number(status) + " Scripted\r\nConnection: close\r\n";
        for (const QByteArray& header : headers) {
            bytes += header + "\r\n";
        }
        return bytes + "\r\n";
    }

    ScriptedReply& then(const QByteArray& bytes, std::chrono::milliseconds wait = {}) {
        pieces.push_back({wait, bytes});
        return *this;
    }
};

/// An HTTP server on loopback that says what a test tells it. A request for a path with a reply of its own
/// gets that one, any other the next reply of the queue; when there is none, the connection is closed without
/// a word. Every connection carries one request and has its own thread. May be used from any thread.
class ScriptedServer {
  public:
    struct Request {
        QByteArray method;
        /// Path and query, as sent.
        QByteArray target;
        /// The request line and the headers, as sent.
        QByteArray head;
        QByteArray body;

        /// The header's value, compared without case; null without it.
        QByteArray header(const QByteArray& name) const {
            for (const QByteArray& line : head.split('\n')) {
                const qsizetype colon = line.indexOf(':');
                if (colon > 0 && line.left(colon).compare(name, Qt::CaseInsensitive) == 0) {
                    return line.mid(colon + 1).trimmed();
                }
            }
            return {};
        }
    };

    /// At the port, or at any that is free.
    explicit ScriptedServer(std::uint16_t port = 0) {
        m_listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(port);
        const int again = 1;
        ::setsockopt(m_listener, SOL_SOCKET, SO_REUSEADDR, &again, sizeof again);
        socklen_t size = sizeof address;
        if (m_listener < 0 || ::bind(m_listener, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
            ::listen(m_listener, 64) != 0 ||
            ::getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
            qFatal("no loopback socket");
        }
        m_port = ntohs(address.sin_port);
        m_acceptor = std::thread([this] { accept(); });
    }
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;

    ~ScriptedServer() {
        {
            const std::lock_guard lock(m_mutex);
            m_ending = true;
            for (const int connection : m_connections) {
                ::shutdown(connection, SHUT_RDWR);
            }
        }
        m_changed.notify_all();
        ::shutdown(m_listener, SHUT_RDWR);
        m_acceptor.join();
        for (std::thread& worker : m_workers) {
            worker.join();
        }
        ::close(m_listener);
    }

    std::uint16_t port() const { return m_port; }
    /// The path with its slash. The host can be another name that the client resolves to loopback.
    QUrl url(const QString& path = QStringLiteral("/"),
             const QString& host = QStringLiteral("127.0.0.1")) const {
        return QUrl(QStringLiteral("http://%1:%2%3").arg(host).arg(m_port).arg(path));
    }

    /// Appends a reply to the queue, to be given once.
    void reply(ScriptedReply next) {
        const std::lock_guard lock(m_mutex);
        m_queue.push_back(std::move(next));
    }
    /// Gives this reply to every request for the target (path and query).
    void serve(const QByteArray& target, ScriptedReply always) {
        const std::lock_guard lock(m_mutex);
        m_served[target] = std::move(always);
    }

    /// What has been asked, in the order of arrival.
    std::vector<Request> requests() const {
        const std::lock_guard lock(m_mutex);
        return m_requests;
    }
    /// Blocks until so many requests have come; false when they have not within five seconds.
    bool waitForRequests(std::size_t count) const {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::seconds(60), [&] { return m_requests.size() >= count; });
    }

  private:
    void accept() {
        for (;;) {
            const int connection = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
            const std::lock_guard lock(m_mutex);
            if (m_ending || connection < 0) {
                if (connection >= 0) {
                    ::close(connection);
                }
                return;
            }
            m_connections.insert(connection);
            m_workers.emplace_back([this, connection] {
                handle(connection);
                const std::lock_guard ended(m_mutex);
                m_connections.erase(connection);
                ::close(connection);
            });
        }
    }

    void handle(int connection) {
        Request request;
        if (!receive(connection, request)) {
            return;
        }
        ScriptedReply reply;
        {
            const std::lock_guard lock(m_mutex);
            if (const auto served = m_served.find(request.target); served != m_served.end()) {
                reply = served->second;
            } else if (!m_queue.empty()) {
                reply = std::move(m_queue.front());
                m_queue.pop_front();
            }
            m_requests.push_back(std::move(request));
        }
        m_changed.notify_all();
        for (const ScriptedReply::Piece& piece : reply.pieces) {
            if (!wait(piece.wait) || !send(connection, piece.bytes)) {
                return;
            }
        }
        switch (reply.end) {
        case ScriptedReply::End::Close:
            closeInOrder(connection);
            break;
        case ScriptedReply::End::Cut: {
            const linger hard{1, 0};
            ::setsockopt(connection, SOL_SOCKET, SO_LINGER, &hard, sizeof hard);
            break;
        }
        case ScriptedReply::End::Stall: {
            std::unique_lock lock(m_mutex);
            m_changed.wait(lock, [this] { return m_ending; });
            break;
        }
        }
    }

    static bool receive(int connection, Request& request) {
        QByteArray received;
        qsizetype end = -1;
        while (end < 0) {
            if (!receiveMore(connection, received)) {
                return false;
            }
            end = received.indexOf("\r\n\r\n");
        }
        request.head = received.left(end + 2);
        const QList<QByteArray> words = request.head.left(request.head.indexOf('\r')).split(' ');
        request.method = words.value(0);
        request.target = words.value(1);
        const qsizetype length = request.header("Content-Length").toLongLong();
        request.body = received.mid(end + 4);
        while (request.body.size() < length) {
            if (!receiveMore(connection, request.body)) {
                return false;
            }
        }
        return true;
    }

    static bool receiveMore(int connection, QByteArray& bytes) {
        char buffer[4096];
        const ssize_t count = ::recv(connection, buffer, sizeof buffer, 0);
        if (count > 0) {
            bytes.append(buffer, count);
        }
        return count > 0;
    }

    static bool send(int connection, const QByteArray& bytes) {
        qsizetype sent = 0;
        while (sent < bytes.size()) {
            const ssize_t count = ::send(connection, bytes.constData() + sent,
                                         static_cast<std::size_t>(bytes.size() - sent), MSG_NOSIGNAL);
            if (count <= 0) {
                return false;
            }
            sent += count;
        }
        return true;
    }

    // Reads on until the client has gone too: bytes that nobody read would turn the close into a reset.
    static void closeInOrder(int connection) {
        ::shutdown(connection, SHUT_WR);
        char buffer[4096];
        while (::recv(connection, buffer, sizeof buffer, 0) > 0) {
        }
    }

    bool wait(std::chrono::milliseconds span) {
        std::unique_lock lock(m_mutex);
        return !m_changed.wait_for(lock, span, [this] { return m_ending; });
    }

    int m_listener = -1;
    std::uint16_t m_port = 0;
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    bool m_ending = false;
    std::set<int> m_connections;
    std::map<QByteArray, ScriptedReply> m_served;
    std::deque<ScriptedReply> m_queue;
    std::vector<Request> m_requests;
    std::vector<std::thread> m_workers;
    std::thread m_acceptor;
};

} // namespace guide
