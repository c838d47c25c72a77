#pragma once

#include "core/own/SourceStatus.h"
#include "platform/Clock.h"
#include "platform/http/HTTPClient.h"
#include "sources/HTTPUserAgent.h"
#include "sources/NetworkActivity.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

namespace guide {

struct SourceDownloadEnvironment {
    const Clock& clock;
    HTTPClient& client;
    NetworkActivity& networkActivity;
    const HTTPUserAgent& userAgent;
};

struct SourceDownloadRequest {
    /// User and password in it are sent only to its own host.
    QUrl url;
    /// Of the answer that the caller has; asked conditionally where one is not empty.
    QByteArray etag = {};
    QByteArray lastModified = {};
    /// Replaced only by a whole answer. The beginning of one that broke off goes to beginningOf(path), so
    /// that the caller can compare before it replaces what is better. Its folder exists.
    QString path;
    /// Without any data.
    std::chrono::milliseconds longestSilence{60'000};
    std::int64_t mostBytes = std::int64_t{1} << 30;
    /// Ends the transfer; may be empty.
    std::function<bool()> stopped = {};
    /// May be empty.
    std::function<void(std::int64_t bytes)> progress = {};
};

struct SourceDownload {
    /// Read when there is a file, Incomplete when it is the beginning of one, Unchanged (no file is written),
    /// or why there is none.
    SourceResult result = SourceResult::None;
    QString detail = {};
    /// What was written; empty for nothing.
    QString file = {};
    /// Of a whole answer, or of one that says that nothing has changed; what was asked with where that does
    /// not repeat them.
    QByteArray etag = {};
    QByteArray lastModified = {};
    /// That the server declared; may be empty.
    QString charset = {};
    /// Before it the server does not want to be asked again.
    std::optional<Moment> notBefore = {};
};

/// Where the beginning of a document that broke off is kept: beside the file.
QString beginningOf(const QString& path);

/// Fetches an address into a file, following up to five redirects within http and https. Blocks; not on the
/// main thread. Logs hosts, not addresses: those may be secret.
SourceDownload downloadSource(const SourceDownloadEnvironment& environment,
                              const SourceDownloadRequest& request);

} // namespace guide
