#pragma once

#include "demo/Misbehaviour.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace guide {

using HTTPHeaders = QList<std::pair<QByteArray, QByteArray>>;

struct ServedRequest {
    QByteArray method;
    /// Path and query as they came, percent escapes included.
    QByteArray path;
    HTTPHeaders headers;

    /// The value of the named header, compared without case; the first one where it stands twice.
    std::optional<QByteArray> header(const QByteArray& name) const;
};

struct ServedResponse {
    int status = 200;
    /// No Content-Type at all when empty.
    QByteArray contentType;
    QByteArray body;
    HTTPHeaders headers = {};
};

/// Makes the answer of a path. Called on the server's threads, also by several at once.
using Responder = std::function<ServedResponse(const ServedRequest&)>;

/// A small HTTP/1.1 server on 127.0.0.1: one answer a connection, GET and HEAD, a bounded number of
/// connections at a time, each with a deadline for its request. It serves feeds as any source does and, told
/// to misbehave, serves them in every way that goes wrong. Needs no event loop. May be used from any thread.
class DemoServer {
  public:
    /// Listens on a free port; null, with a log line, when there is none.
    static std::unique_ptr<DemoServer> start();
    /// Stops.
    ~DemoServer();

    DemoServer(const DemoServer&) = delete;
    DemoServer& operator=(const DemoServer&) = delete;

    std::uint16_t port() const;
    /// "http://127.0.0.1:PORT", without a closing slash.
    QString base() const;

    /// Answers the path (with its query) from now on; 404 for all others.
    void serve(const QByteArray& path, Responder responder);
    void serve(const QByteArray& path, const ServedResponse& response);
    /// Answers every path that begins so and that nobody else answers; of several the longest.
    void serveBelow(const QByteArray& prefix, Responder responder);
    void remove(const QByteArray& path);

    /// Serves the path wrongly from now on, also one that nobody serves. Replaces what was said before.
    void misbehave(const QByteArray& path, const Misbehaviour& how);
    /// As above for every path that has no misbehaviour of its own.
    void misbehaveEverywhere(const Misbehaviour& how);
    /// Serves everything well again.
    void behave();

    /// The requests so far, in order, redirected ones included; at most the last thousand.
    std::vector<ServedRequest> requests() const;
    /// How often the path was asked for, since the start or the last time that they were forgotten.
    int requestCount(const QByteArray& path) const;
    int requestCount() const;
    void forgetRequests();

    /// Closes the port and every connection, and joins the threads; the port refuses connections from then
    /// on.
    void stop();

  private:
    struct State;
    explicit DemoServer(std::unique_ptr<State> state);
    std::unique_ptr<State> m_state;
};

} // namespace guide
