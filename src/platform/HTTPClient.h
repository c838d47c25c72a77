#pragma once

#include "platform/Moment.h"
#include "platform/TakePiece.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <chrono>
#include <optional>
#include <utility>

namespace guide {

/// What a request may take from the response cache.
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
    /// A cached response from before counts as absent.
    Moment cachedSince = Moment::min();
    /// Ends the transfer when nothing came for so long.
    std::chrono::milliseconds timeout{20'000};
    /// Ends the transfer as a whole.
    std::chrono::milliseconds resourceTimeout{60'000};
    /// While the device has no network, waits for one, as a part of the whole, instead of failing at once.
    bool waitsForConnectivity = false;
};

struct HTTPResponse {
    int statusCode = 0;
    QList<std::pair<QByteArray, QByteArray>> headers;

    /// The value of the named header, compared without case; the last one where it stands twice.
    std::optional<QByteArray> header(const QByteArray& name) const;
};

/// Why a transfer brought nothing. Texts for a person, or empty.
struct TransferError {
    QString description;
    QString failureReason;
    QString recoverySuggestion;
    bool cancelled = false;
};

/// What one transfer brought: a response and its body (content encodings undone); or an error, with the
/// response as far as one came, and an empty body: partial bodies are discarded.
struct TransferResult {
    std::optional<HTTPResponse> response;
    QByteArray body;
    std::optional<TransferError> error;
};

/// Blocking transfers for background queues; never to be called on the main thread. Only http and https are
/// opened, redirects are not followed, cookies are kept for the process, and a body past the size bound ends
/// as an error. Goes through the response cache as the request's policy says. May be called from any thread.
class HTTPClient {
  public:
    virtual ~HTTPClient() = default;
    TransferResult perform(const HTTPRequest& request) { return perform(request, nullptr); }

    /// With a `takePiece`, the body of a response with a status of success (200 to 299) goes to `takePiece`
    /// as it arrives, on the calling thread, and the result's body is empty. Content encodings are undone and
    /// the size bound counts all pieces. An error afterwards means that the pieces are not the whole body.
    /// When `takePiece` returns false the transfer ends with a cancelled error. Bodies of other statuses are
    /// collected in the result. A cached response arrives as one piece; a response that is delivered in
    /// pieces is not stored, and an older one of the same URL is forgotten.
    virtual TransferResult perform(const HTTPRequest& request, const TakePiece& takePiece) = 0;

    /// Forgets the cached response of the request's URL.
    virtual void removeCachedResponse(const HTTPRequest& request) = 0;
    /// Ends every running transfer with a cancelled error, and every later one at once: the way to shut down.
    virtual void cancelAll() = 0;
};

} // namespace guide
