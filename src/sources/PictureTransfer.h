#pragma once

#include "platform/http/HTTPClient.h"
#include "sources/HTTPUserAgent.h"
#include "sources/NetworkActivity.h"

#include <QByteArray>
#include <QUrl>

#include <functional>
#include <optional>

namespace guide {

struct PictureTransferLimits {
    qint64 bytes = 0;
    int redirects = 2;
    /// Without any data, and in all.
    std::chrono::milliseconds silence{20'000};
    std::chrono::milliseconds longest{30'000};
    bool waitsForConnectivity = false;
    /// Asked for each address, also those that are redirected to. May be empty.
    std::function<bool(const QUrl&)> mayAsk = {};
    std::function<bool()> stopped = {};
};

struct PictureTransfer {
    /// Empty when it cannot be fetched, is larger than it may be, or is not asked for.
    QByteArray file;
    /// Whether a server answered, with whatever status.
    bool answered = false;
    bool tooLarge = false;
    std::optional<TransferError> error;
};

/// Fetches a file over http or https, following redirects. Blocks; not on the main thread.
PictureTransfer transferPicture(HTTPClient& client, NetworkActivity& networkActivity,
                                const HTTPUserAgent& userAgent, QUrl url,
                                const PictureTransferLimits& limits);

} // namespace guide
