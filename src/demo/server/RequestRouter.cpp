#include "demo/server/RequestRouter.h"

#include <algorithm>

namespace guide {

void RequestRouter::serve(const QByteArray& target, Handler handler) {
    const std::lock_guard guard(m_mutex);
    m_targets[target] = std::move(handler);
}

void RequestRouter::serve(const QByteArray& target, const ServerReply& reply) {
    serve(target, [reply](const ServerRequest&) { return reply; });
}

void RequestRouter::serveBelow(const QByteArray& prefix, Handler handler) {
    const std::lock_guard guard(m_mutex);
    m_prefixes[prefix] = std::move(handler);
}

void RequestRouter::remove(const QByteArray& target) {
    const std::lock_guard guard(m_mutex);
    m_targets.erase(target);
}

RequestRouter::Handler RequestRouter::handlerFor(const QByteArray& target) const {
    const std::lock_guard guard(m_mutex);
    if (const auto exact = m_targets.find(target); exact != m_targets.end()) {
        return exact->second;
    }
    // Of two matching prefixes, the longer one sorts later.
    const auto below = std::find_if(m_prefixes.rbegin(), m_prefixes.rend(),
                                    [&target](const auto& entry) { return target.startsWith(entry.first); });
    return below == m_prefixes.rend() ? Handler() : below->second;
}

std::optional<ServerReply> RequestRouter::reply(const ServerRequest& request) const {
    const Handler handler = handlerFor(request.target);
    return handler ? std::optional(handler(request)) : std::nullopt;
}

} // namespace guide
