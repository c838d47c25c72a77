#pragma once

#include "platform/Moment.h"
#include "platform/TakePiece.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>
#include <utility>

namespace guide {

/// How a request uses the response cache.
enum class CachePolicy {
    ReturnCacheDataElseLoad = 2,
    ReturnCacheDataDontLoad = 3,
    ReloadIgnoringCache = 1,
};

struct HTTPRequest {
    QUrl url;
    QByteArray method = "GET";
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;
    CachePolicy cachePolicy = CachePolicy::ReturnCacheDataElseLoad;
    /// Ignores responses that were cached before this moment.
    Moment cachedSince = Moment::min();
    /// Limit for the time without any data.
    std::chrono::milliseconds timeout{20'000};
    /// Limit for the whole transfer.
    std::chrono::milliseconds resourceTimeout{60'000};
    /// Without a network, waits for one (within resourceTimeout) instead of failing at once.
    bool waitsForConnectivity = false;
    /// In bytes, instead of the client's limit, before and after content decoding.
    std::optional<qint64> maximumBodySize = std::nullopt;
    /// How long the transfer may crawl before it fails, instead of the client's limit.
    std::optional<std::chrono::seconds> leastSpeedTime = std::nullopt;
    /// Asked several times a second on the calling thread; true cancels the transfer. May be empty.
    std::function<bool()> stopped = {};
};

struct HTTPResponse {
    int statusCode = 0;
    QList<std::pair<QByteArray, QByteArray>> headers;

    /// The value of the named header, ignoring case; the last one if it is repeated.
    std::optional<QByteArray> header(const QByteArray& name) const;
};

/// Why a transfer failed. The texts are for the user and may be empty.
struct TransferError {
    QString description;
    QString failureReason;
    QString recoverySuggestion;
    bool cancelled = false;
};

/// The result of a transfer: a response and its body, content encodings decoded; or an error, the response if
/// one arrived, and an empty body. Partial bodies are discarded.
struct TransferResult {
    std::optional<HTTPResponse> response;
    QByteArray body;
    std::optional<TransferError> error;
};

/// Blocking transfers for background queues; must not be called on the main thread. Only http and https are
/// supported, redirects are not followed, cookies live as long as the process, and a body over the size limit
/// is an error. Uses the response cache according to the policy of the request. May be called from any
/// thread.
class HTTPClient {
  public:
    virtual ~HTTPClient() = default;
    TransferResult perform(const HTTPRequest& request) { return perform(request, nullptr); }

    /// With a `takePiece`, the body of a response with a success status (200 to 299) goes to `takePiece`
    /// as it arrives, on the calling thread, and the result's body is empty. Content encodings are decoded
    /// and the size limit counts all pieces. An error afterwards means that the pieces are not the whole
    /// body. When `takePiece` returns false the transfer ends with a cancelled error. Bodies of other
    /// statuses are collected in the result. A cached response arrives as one piece; a response that is
    /// delivered in pieces is not stored, and an older one for the same URL is removed.
    virtual TransferResult perform(const HTTPRequest& request, const TakePiece& takePiece) = 0;

    /// Removes the cached response for the request's URL.
    virtual void removeCachedResponse(const HTTPRequest& request) = 0;
    /// Cancels every running transfer and every later one. Used for shutting down.
    virtual void cancelAll() = 0;
};

} // namespace guide
