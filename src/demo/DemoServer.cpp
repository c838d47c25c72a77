#include "demo/DemoServer.h"

#include "demo/HTTPMessage.h"
#include "demo/Socket.h"
#include "demo/SpoiledAnswer.h"

#include <QtDebug>

#include <algorithm>
#include <array>
#include <condition_variable>
#include <deque>
#include <list>
#include <map>
#include <mutex>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

using Milliseconds = std::chrono::milliseconds;
using Outcome = Connection::Outcome;

constexpr std::size_t kMostConnections = 64;
constexpr std::size_t kMostRequestsKept = 1000;
constexpr qsizetype kLongestHead = 16 * 1024;
constexpr qsizetype kLongestBody = 1024 * 1024;
constexpr int kSlowPieces = 20;
constexpr Milliseconds kRequestDeadline{10'000};
constexpr Milliseconds kWriteTimeout{10'000};
constexpr Milliseconds kLinger{500};
constexpr Milliseconds kLongestSilence{3'600'000};
const QByteArray kMoved = QByteArrayLiteral("/moved");

/// The request's head, without the empty line; its body is read and thrown away. Nothing when the client
/// takes too long, says too much or leaves.
std::optional<QByteArray> readHead(Connection& connection) {
    const auto deadline = std::chrono::steady_clock::now() + kRequestDeadline;
    const auto left = [deadline] {
        return std::max(Milliseconds(0),
                        std::chrono::ceil<Milliseconds>(deadline - std::chrono::steady_clock::now()));
    };
    QByteArray bytes;
    qsizetype end = -1;
    while ((end = bytes.indexOf("\r\n\r\n")) < 0) {
        if (bytes.size() > kLongestHead || connection.readSome(bytes, left()) != Outcome::Done) {
            return std::nullopt;
        }
    }
    QByteArray head = bytes.first(end);
    const std::optional<ServedRequest> request = parsedRequestHead(head);
    const qsizetype announced = request ? request->header("Content-Length").value_or("0").toLongLong() : 0;
    if (announced < 0 || announced > kLongestBody) {
        return std::nullopt;
    }
    while (bytes.size() < end + 4 + announced) {
        if (connection.readSome(bytes, left()) != Outcome::Done) {
            return std::nullopt;
        }
    }
    return head;
}

ServedResponse plainAnswer(int status) {
    return {status, "text/plain; charset=utf-8",
            QByteArray::number(status) + ' ' + reasonPhrase(status) + '\n'};
}

} // namespace

std::optional<QByteArray> ServedRequest::header(const QByteArray& name) const {
    const auto it = std::find_if(headers.begin(), headers.end(), [&name](const auto& header) {
        return header.first.compare(name, Qt::CaseInsensitive) == 0;
    });
    return it == headers.end() ? std::nullopt : std::optional(it->second);
}

struct DemoServer::State {
    Descriptor listener;
    /// Readable from the stop on.
    Descriptor stopping;
    std::uint16_t port = 0;
    std::thread acceptor;

    std::mutex mutex;
    std::map<QByteArray, Responder> responders;
    std::map<QByteArray, Responder> prefixes;
    std::map<QByteArray, Misbehaviour> misbehaviours;
    Misbehaviour everywhere;
    /// How often each path has been served wrongly, for Misbehaviour::times.
    std::map<QByteArray, int> spoiledCounts;
    std::deque<ServedRequest> requests;
    std::map<QByteArray, int> counts;
    int total = 0;
    std::list<std::thread> connections;
    std::list<std::thread> ended;
    std::condition_variable connectionEnded;
    bool stopped = false;

    QByteArray base() const { return "http://127.0.0.1:" + QByteArray::number(port); }
    void accept();
    void converse(Connection connection);
    SpoiledAnswer answer(const ServedRequest& request);
    void log(const ServedRequest& request);
    std::pair<Responder, Misbehaviour> claims(const QByteArray& path);
    Responder responderFor(const QByteArray& path) const;
};

void DemoServer::State::log(const ServedRequest& request) {
    const std::lock_guard guard(mutex);
    requests.push_back(request);
    if (requests.size() > kMostRequestsKept) {
        requests.pop_front();
    }
    ++counts[request.path];
    ++total;
}

Responder DemoServer::State::responderFor(const QByteArray& path) const {
    if (const auto exact = responders.find(path); exact != responders.end()) {
        return exact->second;
    }
    // Of two that fit, the longer one sorts behind.
    const auto below = std::find_if(prefixes.rbegin(), prefixes.rend(),
                                    [&path](const auto& entry) { return path.startsWith(entry.first); });
    return below == prefixes.rend() ? Responder() : below->second;
}

/// Who answers the path, and how. A place that a redirect leads to has the answer of the path that it stands
/// for.
std::pair<Responder, Misbehaviour> DemoServer::State::claims(const QByteArray& path) {
    const std::lock_guard guard(mutex);
    QByteArray original = path;
    while (!responderFor(original) && original.startsWith(kMoved + '/')) {
        original = original.sliced(kMoved.size());
    }
    const auto own = misbehaviours.find(original);
    Misbehaviour how = own == misbehaviours.end() ? everywhere : own->second;
    const bool moved = original.size() != path.size();
    if (moved && how.kind != Misbehaviour::Kind::RedirectForever) {
        how = {};
    }
    if (how.kind != Misbehaviour::Kind::None && how.times > 0 && ++spoiledCounts[original] > how.times) {
        how = {};
    }
    return {responderFor(original), how};
}

SpoiledAnswer DemoServer::State::answer(const ServedRequest& request) {
    if (request.method != "GET" && request.method != "HEAD") {
        return spoiled(plainAnswer(405), {}, {});
    }
    const auto [responder, how] = claims(request.path);
    const ServedResponse good = responder ? responder(request) : plainAnswer(404);
    return spoiled(good, how, base() + kMoved + request.path);
}

void DemoServer::State::converse(Connection connection) {
    const std::optional<QByteArray> head = readHead(connection);
    if (!head) {
        return;
    }
    const std::optional<ServedRequest> request = parsedRequestHead(*head);
    if (request) {
        log(*request);
    }
    const SpoiledAnswer answered = request ? answer(*request) : spoiled(plainAnswer(400), {}, {});
    Outcome outcome = Outcome::Done;
    if (!answered.mute) {
        const QByteArray& body = answered.response.body;
        outcome = connection.write(responseHead(answered.response, body.size()), kWriteTimeout);
        const QByteArrayView sent = request && request->method == "HEAD"
                                        ? QByteArrayView()
                                        : QByteArrayView(body).first(answered.sent);
        const int pieces = answered.duration.count() > 0 ? kSlowPieces : 1;
        for (int piece = 0; piece < pieces && outcome == Outcome::Done; ++piece) {
            if (pieces > 1 && connection.pause(answered.duration / pieces) == Outcome::Stopped) {
                return;
            }
            const qsizetype from = sent.size() * piece / pieces;
            outcome =
                connection.write(sent.sliced(from, sent.size() * (piece + 1) / pieces - from), kWriteTimeout);
        }
    }
    if (outcome != Outcome::Done) {
        return;
    }
    if (answered.ending == SpoiledAnswer::Ending::KeepSilent) {
        connection.waitForClose(kLongestSilence);
    } else if (!answered.mute) {
        // A close with bytes of the client unread would take back what was just sent.
        connection.finishWriting();
        connection.waitForClose(kLinger);
    }
}

void DemoServer::State::accept() {
    while (true) {
        {
            std::unique_lock guard(mutex);
            connectionEnded.wait(guard, [this] { return stopped || connections.size() < kMostConnections; });
            if (stopped) {
                return;
            }
            std::list<std::thread> leaving;
            leaving.swap(ended);
            guard.unlock();
            for (std::thread& thread : leaving) {
                thread.join();
            }
        }
        std::array<pollfd, 2> sockets{pollfd{stopping.get(), POLLIN, 0}, pollfd{listener.get(), POLLIN, 0}};
        ::poll(sockets.data(), sockets.size(), -1);
        if (sockets[0].revents != 0) {
            return;
        }
        Descriptor socket(::accept4(listener.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
        if (!socket.valid()) {
            continue;
        }
        const std::lock_guard guard(mutex);
        const auto self = connections.emplace(connections.end());
        try {
            *self = std::thread([this, self, fd = socket.get()] {
                converse(Connection(Descriptor(fd), stopping.get()));
                const std::lock_guard leaving(mutex);
                ended.splice(ended.end(), connections, self);
                connectionEnded.notify_all();
            });
            socket.release();
        } catch (const std::system_error&) {
            // No thread to be had: this client is turned away, the next one may fare better.
            connections.erase(self);
        }
    }
}

DemoServer::DemoServer(std::unique_ptr<State> state)
    : m_state(std::move(state)) {}

DemoServer::~DemoServer() {
    stop();
}

std::unique_ptr<DemoServer> DemoServer::start() {
    std::optional<ListeningSocket> listening = listeningSocket();
    Descriptor stopping(::eventfd(0, EFD_CLOEXEC));
    if (!listening || !stopping.valid()) {
        qWarning("demo server: no port on 127.0.0.1");
        return nullptr;
    }
    auto state = std::make_unique<State>();
    state->listener = std::move(listening->descriptor);
    state->port = listening->port;
    state->stopping = std::move(stopping);
    State* const running = state.get();
    state->acceptor = std::thread([running] { running->accept(); });
    return std::unique_ptr<DemoServer>(new DemoServer(std::move(state)));
}

std::uint16_t DemoServer::port() const {
    return m_state->port;
}

QString DemoServer::base() const {
    return QString::fromLatin1(m_state->base());
}

void DemoServer::serve(const QByteArray& path, Responder responder) {
    const std::lock_guard guard(m_state->mutex);
    m_state->responders[path] = std::move(responder);
}

void DemoServer::serve(const QByteArray& path, const ServedResponse& response) {
    serve(path, [response](const ServedRequest&) { return response; });
}

void DemoServer::serveBelow(const QByteArray& prefix, Responder responder) {
    const std::lock_guard guard(m_state->mutex);
    m_state->prefixes[prefix] = std::move(responder);
}

void DemoServer::remove(const QByteArray& path) {
    const std::lock_guard guard(m_state->mutex);
    m_state->responders.erase(path);
}

void DemoServer::misbehave(const QByteArray& path, const Misbehaviour& how) {
    const std::lock_guard guard(m_state->mutex);
    m_state->misbehaviours[path] = how;
    m_state->spoiledCounts.erase(path);
}

void DemoServer::misbehaveEverywhere(const Misbehaviour& how) {
    const std::lock_guard guard(m_state->mutex);
    m_state->everywhere = how;
    m_state->spoiledCounts.clear();
}

void DemoServer::behave() {
    const std::lock_guard guard(m_state->mutex);
    m_state->misbehaviours.clear();
    m_state->everywhere = {};
    m_state->spoiledCounts.clear();
}

std::vector<ServedRequest> DemoServer::requests() const {
    const std::lock_guard guard(m_state->mutex);
    return {m_state->requests.begin(), m_state->requests.end()};
}

int DemoServer::requestCount(const QByteArray& path) const {
    const std::lock_guard guard(m_state->mutex);
    const auto it = m_state->counts.find(path);
    return it == m_state->counts.end() ? 0 : it->second;
}

int DemoServer::requestCount() const {
    const std::lock_guard guard(m_state->mutex);
    return m_state->total;
}

void DemoServer::forgetRequests() {
    const std::lock_guard guard(m_state->mutex);
    m_state->requests.clear();
    m_state->counts.clear();
    m_state->total = 0;
}

void DemoServer::stop() {
    {
        const std::lock_guard guard(m_state->mutex);
        if (m_state->stopped) {
            return;
        }
        m_state->stopped = true;
    }
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(m_state->stopping.get(), &one, sizeof one);
    m_state->connectionEnded.notify_all();
    m_state->acceptor.join();
    m_state->listener.close();
    std::list<std::thread> leaving;
    {
        std::unique_lock guard(m_state->mutex);
        m_state->connectionEnded.wait(guard, [this] { return m_state->connections.empty(); });
        leaving.swap(m_state->ended);
    }
    for (std::thread& thread : leaving) {
        thread.join();
    }
}

} // namespace guide
