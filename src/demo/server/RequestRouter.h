#pragma once

#include "demo/server/HTTPServer.h"

#include <map>

namespace guide {

/// Maps request targets to handlers. Thread-safe.
class RequestRouter {
  public:
    using Handler = HTTPServer::Handler;

    /// Handles requests for exactly this target (path and query).
    void serve(const QByteArray& target, Handler handler);
    void serve(const QByteArray& target, const ServerReply& reply);
    /// Answers targets with this prefix without an exact handler; the longest prefix wins.
    void serveBelow(const QByteArray& prefix, Handler handler);
    void remove(const QByteArray& target);

    /// Returns nothing for a target without a handler.
    std::optional<ServerReply> reply(const ServerRequest& request) const;

  private:
    Handler handlerFor(const QByteArray& target) const;

    mutable std::mutex m_mutex;
    std::map<QByteArray, Handler> m_targets;
    std::map<QByteArray, Handler> m_prefixes;
};

} // namespace guide
