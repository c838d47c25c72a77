#pragma once

#include "demo/server/ServerMessage.h"

#include <QString>

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace guide {

/// An HTTP/1.1 server on 127.0.0.1: one request and one thread per connection, a bounded number of
/// connections, a deadline for each request. Sends the bytes that the handler returns, so that it can also
/// break the protocol. Needs no event loop.
class HTTPServer {
  public:
    /// Called on the connections' threads, possibly concurrently.
    using Handler = std::function<ServerReply(const ServerRequest&)>;

    /// Listens on the port, or on any free one. Null, with a log line, when that fails.
    static std::unique_ptr<HTTPServer> start(Handler handler, std::uint16_t port = 0);
    /// Calls stop().
    ~HTTPServer();

    HTTPServer(const HTTPServer&) = delete;
    HTTPServer& operator=(const HTTPServer&) = delete;

    std::uint16_t port() const { return m_port; }
    /// "127.0.0.1:PORT"
    QString authority() const;
    /// "http://127.0.0.1:PORT", without a trailing slash.
    QString base() const;

    /// Closes the port and all connections and joins the threads.
    void stop();

  private:
    struct Connection {
        int socket;
        std::thread thread;
    };

    HTTPServer(Handler handler, int listener, std::uint16_t port);
    void accept();
    void serveConnection(int socket);
    bool send(int socket, const ServerReply::Piece& piece);

    const Handler m_handler;
    const int m_listener;
    const std::uint16_t m_port;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_stopping = false;
    std::list<Connection> m_open;
    /// Closed connections whose threads have not been joined.
    std::list<Connection> m_ended;
    std::thread m_acceptor;
};

} // namespace guide
