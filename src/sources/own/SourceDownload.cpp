#include "sources/own/SourceDownload.h"

#include "platform/files/FileReplacement.h"
#include "sources/Redirect.h"
#include "sources/WebURL.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTimeZone>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostRedirects = 5;
/// A server that sends a little now and then ends at some time.
constexpr std::chrono::hours kLongest{6};
/// Whatever the server asks for.
constexpr std::chrono::hours kLongestDelay{7 * 24};
constexpr qint64 kLargestPiece = 1 << 20;
constexpr qsizetype kLongestValidator = 1024;

constexpr int kNotModified = 304;
constexpr int kTooManyRequests = 429;
constexpr int kUnavailable = 503;

bool isSuccess(int status) {
    return status >= 200 && status < 300;
}

QUrl withoutUser(const QUrl& url) {
    return url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
}

QByteArray authorizationOf(const QUrl& url) {
    if (url.userInfo().isEmpty()) {
        return {};
    }
    const QString credentials = url.userName(QUrl::FullyDecoded) + u':' + url.password(QUrl::FullyDecoded);
    return "Basic " + credentials.toUtf8().toBase64();
}

int portOf(const QUrl& url) {
    return url.port(url.scheme() == "https"_L1 ? 443 : 80);
}

/// Whether a redirect leads to the server that the user trusts with the password, or to the encrypted port
/// of its host.
bool isSameServer(const QUrl& typed, const QUrl& target) {
    if (typed.host() != target.host()) {
        return false;
    }
    const bool isSame = typed.scheme() == target.scheme() && portOf(typed) == portOf(target);
    const bool isUpgrade = typed.scheme() == "http"_L1 && target.scheme() == "https"_L1 &&
                           portOf(typed) == 80 && portOf(target) == 443;
    return isSame || isUpgrade;
}

std::optional<Moment> httpDate(const QByteArray& text) {
    // "Sun, 06 Nov 1994 08:49:37 GMT"; the two older forms are not sent any more.
    const QDateTime date =
        QLocale::c().toDateTime(QString::fromLatin1(text), u"ddd, dd MMM yyyy hh:mm:ss 'GMT'"_s);
    if (!date.isValid()) {
        return std::nullopt;
    }
    const QDateTime utc(date.date(), date.time(), QTimeZone::utc());
    return Moment(std::chrono::milliseconds(utc.toMSecsSinceEpoch()));
}

/// From "Retry-After", which has seconds or a date.
std::optional<Moment> notBefore(const HTTPResponse& response, Moment now) {
    const std::optional<QByteArray> value = response.header("Retry-After");
    if (!value) {
        return std::nullopt;
    }
    bool isNumber = false;
    const qlonglong seconds = value->trimmed().toLongLong(&isNumber);
    if (isNumber) {
        return seconds < 0 ? std::nullopt
                           : std::optional(now + std::min(std::chrono::seconds(seconds),
                                                          std::chrono::seconds(kLongestDelay)));
    }
    const std::optional<Moment> date = httpDate(value->trimmed());
    return date ? std::optional(std::clamp(*date, now, now + kLongestDelay)) : std::nullopt;
}

QString charsetOf(const HTTPResponse& response) {
    const QByteArray type = response.header("Content-Type").value_or(QByteArray());
    const QList<QByteArray> parameters = type.split(';');
    for (qsizetype i = 1; i < parameters.size(); ++i) {
        const QByteArray parameter = parameters[i].trimmed();
        if (parameter.toLower().startsWith("charset=")) {
            return QString::fromLatin1(parameter.mid(8)).remove(u'"').remove(u'\'').trimmed();
        }
    }
    return {};
}

/// A value to ask with later; nothing for one of a length that no server means.
QByteArray validator(const HTTPResponse& response, const QByteArray& name) {
    const QByteArray value = response.header(name).value_or(QByteArray());
    return value.size() <= kLongestValidator ? value : QByteArray();
}

QLatin1StringView reasonOf(SourceResult result) {
    switch (result) {
    case SourceResult::Status:
    case SourceResult::Busy:
        return "status"_L1;
    case SourceResult::Empty:
        return "it is empty"_L1;
    case SourceResult::TooLarge:
        return "it is too large"_L1;
    case SourceResult::NoRoom:
        return "it cannot be written"_L1;
    case SourceResult::TooManyRedirects:
        return "too many redirects"_L1;
    case SourceResult::ForbiddenRedirect:
        return "a redirect to the scheme"_L1;
    default:
        return "no answer"_L1;
    }
}

class Download {
  public:
    Download(const SourceDownloadEnvironment& environment, const SourceDownloadRequest& request)
        : m_environment(environment)
        , m_request(request)
        , m_content(QFileInfo(request.path).absolutePath()) {}

    SourceDownload run() {
        QUrl url = withoutUser(m_request.url);
        for (int redirects = 0; isWebURL(url); ++redirects) {
            const TransferResult transfer = perform(url);
            const std::optional<QUrl> next = redirectOf(transfer, url);
            if (!next) {
                return result(transfer);
            }
            if (redirects == kMostRedirects) {
                return failed(SourceResult::TooManyRedirects);
            }
            url = withoutUser(*next);
            if (const QString scheme = url.scheme(); scheme != "http"_L1 && scheme != "https"_L1) {
                return failed(SourceResult::ForbiddenRedirect, scheme);
            }
        }
        return failed(SourceResult::NoAnswer);
    }

  private:
    HTTPRequest requestOf(const QUrl& url) const {
        HTTPRequest request;
        request.url = url;
        // Undoes the encoding of a transfer. A packed file has none and stays packed.
        request.headers = {{"User-Agent", m_environment.userAgent.value()},
                           {"Accept-Encoding", "gzip,deflate"}};
        if (!m_request.etag.isEmpty()) {
            request.headers.append({"If-None-Match", m_request.etag});
        }
        if (!m_request.lastModified.isEmpty()) {
            request.headers.append({"If-Modified-Since", m_request.lastModified});
        }
        if (const QByteArray authorization = authorizationOf(m_request.url);
            !authorization.isEmpty() && isSameServer(m_request.url, url)) {
            request.headers.append({"Authorization", authorization});
        }
        request.cachePolicy = CachePolicy::ReloadIgnoringCache;
        request.timeout = m_request.longestSilence;
        request.leastSpeedTime = std::chrono::ceil<std::chrono::seconds>(m_request.longestSilence);
        request.resourceTimeout = kLongest;
        // Beyond the own limit, which tells what is too large from what broke off.
        request.maximumBodySize = m_request.mostBytes + kLargestPiece;
        request.stopped = m_request.stopped;
        return request;
    }

    TransferResult perform(const QUrl& url) {
        m_environment.networkActivity.startNetworkActivity();
        TransferResult transfer = m_environment.client.perform(
            requestOf(url), [this](QByteArrayView piece) { return take(piece); });
        m_environment.networkActivity.stopNetworkActivity();
        return transfer;
    }

    bool take(QByteArrayView piece) {
        if (m_request.stopped && m_request.stopped()) {
            m_isStopped = true;
            return false;
        }
        if (piece.size() > m_request.mostBytes - m_content.size()) {
            m_isTooLarge = true;
            return false;
        }
        if (!m_content.append(piece)) {
            m_hasNoRoom = true;
            return false;
        }
        if (m_request.progress) {
            m_request.progress(m_content.size());
        }
        return true;
    }

    SourceDownload result(const TransferResult& transfer) {
        if (m_hasNoRoom) {
            return failed(SourceResult::NoRoom);
        }
        if (m_isTooLarge || (transfer.error && isAnnouncedTooLarge(transfer))) {
            return failed(SourceResult::TooLarge);
        }
        const int status = transfer.response ? transfer.response->statusCode : 0;
        if (transfer.error) {
            if (m_isStopped || transfer.error->cancelled) {
                return failed(SourceResult::Cancelled);
            }
            return m_content.size() == 0 || !isSuccess(status)
                       ? failed(SourceResult::NoAnswer, {}, transfer.error->description)
                       : written(SourceResult::Incomplete, *transfer.response);
        }
        if (!transfer.response) {
            return failed(SourceResult::NoAnswer);
        }
        if (status == kNotModified && (!m_request.etag.isEmpty() || !m_request.lastModified.isEmpty())) {
            return unchanged(*transfer.response);
        }
        if (isSuccess(status)) {
            return m_content.size() == 0 ? failed(SourceResult::Empty)
                                         : written(SourceResult::Read, *transfer.response);
        }
        SourceDownload download = failed(SourceResult::Status, QString::number(status));
        download.notBefore = notBefore(*transfer.response, m_environment.clock.now());
        if (download.notBefore || status == kTooManyRequests || status == kUnavailable) {
            download.result = SourceResult::Busy;
        }
        return download;
    }

    bool isAnnouncedTooLarge(const TransferResult& transfer) const {
        const std::optional<QByteArray> length =
            transfer.response ? transfer.response->header("Content-Length") : std::nullopt;
        return length && length->toLongLong() > m_request.mostBytes;
    }

    SourceDownload written(SourceResult result, const HTTPResponse& response) {
        const bool isWhole = result == SourceResult::Read;
        const QString file = isWhole ? m_request.path : beginningOf(m_request.path);
        if (!m_content.commit(QFileInfo(file).fileName())) {
            return failed(SourceResult::NoRoom);
        }
        SourceDownload download;
        download.result = result;
        download.file = file;
        download.charset = charsetOf(response);
        if (isWhole) {
            // It would pass for the beginning of a later document.
            QFile::remove(beginningOf(m_request.path));
            download.etag = validator(response, "ETag");
            download.lastModified = validator(response, "Last-Modified");
        }
        return download;
    }

    SourceDownload unchanged(const HTTPResponse& response) const {
        SourceDownload download;
        download.result = SourceResult::Unchanged;
        const QByteArray etag = validator(response, "ETag");
        const QByteArray lastModified = validator(response, "Last-Modified");
        download.etag = etag.isEmpty() ? m_request.etag : etag;
        download.lastModified = lastModified.isEmpty() ? m_request.lastModified : lastModified;
        return download;
    }

    SourceDownload failed(SourceResult result, const QString& detail = {}, const QString& reason = {}) const {
        if (result != SourceResult::Cancelled) {
            qInfo().noquote().nospace() << "downloadSource: no document from " << m_request.url.host() << ": "
                                        << (reason.isEmpty() ? reasonOf(result) : reason)
                                        << (detail.isEmpty() ? ""_L1 : " "_L1) << detail;
        }
        SourceDownload download;
        download.result = result;
        download.detail = detail;
        return download;
    }

    const SourceDownloadEnvironment& m_environment;
    const SourceDownloadRequest& m_request;
    ReplacementInPieces m_content;
    bool m_isStopped = false;
    bool m_isTooLarge = false;
    bool m_hasNoRoom = false;
};

} // namespace

QString beginningOf(const QString& path) {
    return path + u".beginning"_s;
}

SourceDownload downloadSource(const SourceDownloadEnvironment& environment,
                              const SourceDownloadRequest& request) {
    return Download(environment, request).run();
}

} // namespace guide
