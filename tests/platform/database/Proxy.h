#pragma once

#include <QByteArray>

#include <arpa/inet.h>
#include <atomic>
#include <cstdint>
#include <gtest/gtest.h>
#include <mutex>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace guide::test {

/// Stands between a client and a server on this machine, on a thread of its own, and breaks connections.
class Proxy {
  public:
    /// Without a server, it answers a request for encryption as a server that has none.
    explicit Proxy(std::uint16_t server)
        : m_server(server)
        , m_listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address = loopback(0);
        socklen_t length = sizeof address;
        EXPECT_EQ(::bind(m_listener, reinterpret_cast<const sockaddr*>(&address), length), 0);
        EXPECT_EQ(::listen(m_listener, 16), 0);
        ::getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &length);
        m_port = ntohs(address.sin_port);
        m_thread = std::thread([this] { run(); });
    }
    Proxy(const Proxy&) = delete;
    Proxy& operator=(const Proxy&) = delete;
    ~Proxy() {
        m_isEnding = true;
        m_thread.join();
        ::close(m_listener);
    }

    std::uint16_t port() const { return m_port; }
    /// The next thing that the client or the server sends is dropped, and the connection closed.
    void cutRequest() { m_cuts = Cut::Request; }
    void cutAnswer() { m_cuts = Cut::Answer; }
    bool hasCut() const { return m_cuts == Cut::Nothing; }
    /// What clients sent.
    QByteArray received() const {
        const std::lock_guard lock(m_guard);
        return m_received;
    }

  private:
    enum class Cut { Nothing, Request, Answer };
    struct Pair {
        int client = -1;
        int server = -1;
    };

    static sockaddr_in loopback(std::uint16_t port) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(port);
        return address;
    }

    void run() {
        std::vector<Pair> pairs;
        while (!m_isEnding) {
            std::vector<pollfd> polled{{m_listener, POLLIN, 0}};
            for (const Pair& pair : pairs) {
                polled.push_back({pair.client, POLLIN, 0});
                polled.push_back({pair.server, POLLIN, 0});
            }
            ::poll(polled.data(), polled.size(), 20);
            for (std::size_t i = pairs.size(); i-- > 0;) {
                const Pair pair = pairs[i];
                if ((polled[1 + 2 * i].revents != 0 && !forward(pair.client, pair.server, Cut::Request)) ||
                    (polled[2 + 2 * i].revents != 0 && !forward(pair.server, pair.client, Cut::Answer))) {
                    close(pair);
                    pairs.erase(pairs.begin() + static_cast<std::ptrdiff_t>(i));
                }
            }
            if (polled[0].revents != 0) {
                pairs.push_back(accept());
            }
        }
        for (const Pair& pair : pairs) {
            close(pair);
        }
    }

    Pair accept() const {
        Pair pair{.client = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC)};
        if (m_server != 0) {
            pair.server = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
            const sockaddr_in address = loopback(m_server);
            ::connect(pair.server, reinterpret_cast<const sockaddr*>(&address), sizeof address);
        }
        return pair;
    }

    bool forward(int from, int to, Cut direction) {
        char buffer[65'536];
        const ssize_t size = ::recv(from, buffer, sizeof buffer, 0);
        Cut cut = direction;
        if (size <= 0 || m_cuts.compare_exchange_strong(cut, Cut::Nothing)) {
            return false;
        }
        if (to < 0) {
            const std::lock_guard lock(m_guard);
            m_received.append(buffer, size);
            return ::send(from, "N", 1, MSG_NOSIGNAL) == 1;
        }
        for (ssize_t sent = 0; sent < size;) {
            const ssize_t piece =
                ::send(to, buffer + sent, static_cast<std::size_t>(size - sent), MSG_NOSIGNAL);
            if (piece <= 0) {
                return false;
            }
            sent += piece;
        }
        return true;
    }

    static void close(const Pair& pair) {
        ::close(pair.client);
        if (pair.server >= 0) {
            ::close(pair.server);
        }
    }

    const std::uint16_t m_server;
    const int m_listener;
    std::uint16_t m_port = 0;
    std::atomic<bool> m_isEnding = false;
    std::atomic<Cut> m_cuts = Cut::Nothing;
    mutable std::mutex m_guard;
    QByteArray m_received; // guarded
    std::thread m_thread;
};

} // namespace guide::test
