#pragma once

#include <QByteArray>

#include <chrono>
#include <cstdint>
#include <optional>

namespace guide {

/// A file descriptor with one owner.
class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int fd)
        : m_fd(fd) {}
    Descriptor(Descriptor&& other) noexcept
        : m_fd(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept;
    ~Descriptor() { close(); }

    bool valid() const { return m_fd >= 0; }
    int get() const { return m_fd; }
    int release();
    void close();

  private:
    int m_fd = -1;
};

/// A listening socket on 127.0.0.1 and a port that the system chooses; nothing when there is none.
struct ListeningSocket {
    Descriptor descriptor;
    std::uint16_t port = 0;
};
std::optional<ListeningSocket> listeningSocket();

/// Blocking reads and writes on one connection that end early when `stop` becomes readable.
class Connection {
  public:
    using Milliseconds = std::chrono::milliseconds;

    /// `stop` outlives the connection.
    Connection(Descriptor socket, int stop);

    enum class Outcome { Done, Closed, TimedOut, Stopped };

    /// Appends what has come, once something has.
    Outcome readSome(QByteArray& to, Milliseconds timeout);
    Outcome write(QByteArrayView bytes, Milliseconds timeout);
    /// Waits for the other side to leave, and throws away what it still says.
    Outcome waitForClose(Milliseconds timeout);
    /// Tells the other side that nothing more comes.
    void finishWriting();
    /// Lets time pass. Stopped when it was cut short.
    Outcome pause(Milliseconds duration);

  private:
    Outcome wait(short events, Milliseconds timeout);

    Descriptor m_socket;
    int m_stop;
};

} // namespace guide
