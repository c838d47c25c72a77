#pragma once

#include "core/own/SourceStatus.h"
#include "platform/Clock.h"
#include "platform/http/HTTPClient.h"
#include "sources/HTTPUserAgent.h"
#include "sources/NetworkActivity.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

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
    QUrl url;
    /// Of the last answer; asked conditionally where not empty.
    QByteArray etag = {};
    QByteArray lastModified = {};
    /// Replaced only by a whole answer or, of one that broke off, by its beginning.
    QString path;
    /// Ends the transfer; may be empty.
    std::function<bool()> stopped = {};
    /// May be empty.
    std::function<void(std::int64_t bytes)> progress = {};
};

struct SourceDownload {
    /// Read when there is a file, Incomplete when it is the beginning of one, Unchanged (no file is written),
    /// or why there is none.
    SourceResult result = SourceResult::None;
    QString detail;
    QByteArray etag;
    QByteArray lastModified;
    /// That the server declared; may be empty.
    QString charset;
    /// Before it the server does not want to be asked again.
    std::optional<Moment> notBefore;
};

/// Fetches an address into a file, following up to five redirects within http and https. Blocks; not on the
/// main thread.
SourceDownload downloadSource(const SourceDownloadEnvironment& environment,
                              const SourceDownloadRequest& request);

} // namespace guide
