#include "sources/PageFetcher.h"

#include "sources/PageText.h"
#include "sources/WebURL.h"

#include <QDebug>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAttempts = 2;
constexpr std::chrono::milliseconds kPause{1'000};
constexpr std::chrono::milliseconds kResourceTimeout{60'000};

bool isGoodStatus(int status) {
    return status >= 200 && status < 300;
}

/// The address in the answer's "Location" header; nothing when there is none or it is not a web URL.
std::optional<QUrl> redirection(const QUrl& from, const std::optional<HTTPResponse>& response) {
    const std::optional<QByteArray> location = response ? response->header("Location") : std::nullopt;
    if (!location) {
        return std::nullopt;
    }
    const QUrl target = from.resolved(QUrl::fromEncoded(location->trimmed(), QUrl::TolerantMode));
    return isWebURL(target) ? std::optional(target) : std::nullopt;
}

QString missingReason(const NetPage& answer, const TransferResult& transfer) {
    switch (answer.reason) {
    case PageReason::Transfer:
        return transfer.error ? transfer.error->description : QString();
    case PageReason::Status:
        return u"status %1"_s.arg(answer.status);
    case PageReason::Empty:
        return u"it is empty"_s;
    case PageReason::Compression:
        return u"it cannot be unpacked"_s;
    case PageReason::Encoding:
        return u"it is no text in its encoding"_s;
    case PageReason::None:
    case PageReason::Cancelled:
        break;
    }
    return {};
}

void logMissing(const QUrl& url, const NetPage& answer, const TransferResult& transfer) {
    qInfo().noquote().nospace() << "netPageForRequest: no page from " << url.toDisplayString() << ": "
                                << missingReason(answer, transfer);
}

} // namespace

HTTPRequest pageRequest(const QUrl& url, const HTTPUserAgent& userAgent, std::chrono::milliseconds timeout) {
    HTTPRequest request;
    request.url = url;
    request.headers = {{"User-Agent", userAgent.value()}, {"Accept-Encoding", "gzip,deflate"}};
    request.cachePolicy = CachePolicy::ReturnCacheDataElseLoad;
    request.timeout = timeout;
    request.resourceTimeout = kResourceTimeout;
    request.waitsForConnectivity = true;
    return request;
}

PageFetcher::PageFetcher(PageFetcherEnvironment environment)
    : m_environment(std::move(environment)) {}

NetPage PageFetcher::netPageForRequest(HTTPRequest request, bool /*userIsWaitingFor*/) const {
    NetPage answer;
    TransferResult transfer;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        m_environment.networkActivity.startNetworkActivity();
        transfer = m_environment.client.perform(request);
        m_environment.networkActivity.stopNetworkActivity();

        answer.status = transfer.response ? transfer.response->statusCode : 0;
        if (transfer.error && transfer.error->cancelled) {
            answer.reason = PageReason::Cancelled;
            return answer;
        }
        if (transfer.error) {
            answer.reason = PageReason::Transfer;
            if (transfer.body.isEmpty() && m_environment.noRemoteHostAlert) {
                m_environment.noRemoteHostAlert(*transfer.error);
            }
            // A partial body would replace a whole schedule with half of one, so it is discarded.
            transfer.body.clear();
        } else if (!isGoodStatus(answer.status)) {
            answer.reason = PageReason::Status;
            transfer.body.clear();
        } else {
            answer.reason = transfer.body.isEmpty() ? PageReason::Empty : PageReason::None;
        }
        if (!transfer.body.isEmpty()) {
            break;
        }
        if (attempt == 0) {
            if (answer.reason == PageReason::Empty) {
                // Otherwise the cache would answer the second attempt.
                m_environment.client.removeCachedResponse(request);
            }
            if (const std::optional<QUrl> target = redirection(request.url, transfer.response)) {
                request.url = *target;
            }
        }
        if (!m_environment.wait(kPause)) {
            answer.reason = PageReason::Cancelled;
            return answer;
        }
    }
    if (transfer.body.isEmpty()) {
        m_environment.client.removeCachedResponse(request);
        logMissing(request.url, answer, transfer);
        return answer;
    }
    PageText text = pageText(std::move(transfer.body), *transfer.response, m_environment.physicalMemory);
    answer.page = std::move(text.text);
    answer.reason = text.reason;
    answer.incomplete = text.incomplete;
    if (!answer.page || answer.incomplete) {
        // A later request may get a better answer from the server.
        forget(request);
    }
    if (!answer.page) {
        logMissing(request.url, answer, transfer);
    }
    return answer;
}

} // namespace guide
