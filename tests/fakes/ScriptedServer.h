#pragma once

#include "demo/server/RequestRouter.h"

#include <QUrl>

#include <deque>

namespace guide {

using ScriptedReply = ServerReply;

/// The demo's HTTP server, scripted by a test. A target given to serve() always gets that reply; any other
/// request gets the next reply from the queue. When the queue is empty, the connection is closed without a
/// reply. Thread-safe.
class ScriptedServer {
  public:
    using Request = ServerRequest;

    /// Listens on the port, or on any free one.
    explicit ScriptedServer(std::uint16_t port = 0)
        : m_server(HTTPServer::start([this](const Request& request) { return scripted(request); }, port)) {
        if (!m_server) {
            qFatal("no loopback socket");
        }
    }

    std::uint16_t port() const { return m_server->port(); }
    QString authority() const { return m_server->authority(); }
    QString base() const { return m_server->base(); }
    /// The path begins with a slash. The host may be another name that the client resolves to loopback.
    QUrl url(const QString& path = QStringLiteral("/"),
             const QString& host = QStringLiteral("127.0.0.1")) const {
        return QUrl(QStringLiteral("http://%1:%2%3").arg(host).arg(port()).arg(path));
    }

    /// Appends a reply to the queue; it is sent once.
    void reply(ServerReply next) {
        const std::lock_guard lock(m_mutex);
        m_queue.push_back(std::move(next));
    }
    /// Sends this reply to every request for the target (path and query).
    void serve(const QByteArray& target, const ServerReply& always) { m_router.serve(target, always); }
    RequestRouter& router() { return m_router; }

    /// All requests, in the order of arrival.
    std::vector<Request> requests() const {
        const std::lock_guard lock(m_mutex);
        return m_requests;
    }
    void forgetRequests() {
        const std::lock_guard lock(m_mutex);
        m_requests.clear();
    }
    /// Blocks until that many requests have arrived; false when they have not within a minute.
    bool waitForRequests(std::size_t count) const {
        std::unique_lock lock(m_mutex);
        return m_arrived.wait_for(lock, std::chrono::minutes(1), [&] { return m_requests.size() >= count; });
    }

    void stop() { m_server->stop(); }

  private:
    ServerReply scripted(const Request& request) {
        ServerReply next;
        const std::optional<ServerReply> served = m_router.reply(request);
        {
            const std::lock_guard lock(m_mutex);
            m_requests.push_back(request);
            if (!served && !m_queue.empty()) {
                next = std::move(m_queue.front());
                m_queue.pop_front();
            }
        }
        m_arrived.notify_all();
        return served.value_or(next);
    }

    RequestRouter m_router;
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_arrived;
    std::deque<ServerReply> m_queue;
    std::vector<Request> m_requests;
    /// Last, so that its threads end before the rest is destroyed.
    std::unique_ptr<HTTPServer> m_server;
};

} // namespace guide
