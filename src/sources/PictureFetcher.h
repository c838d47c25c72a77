#pragma once

#include "platform/Clock.h"
#include "platform/http/HTTPClient.h"
#include "sources/HTTPUserAgent.h"
#include "sources/NetworkActivity.h"

#include <QByteArray>
#include <QCache>
#include <QUrl>

#include <functional>
#include <mutex>

namespace guide {

/// What the fetcher works with; all of it must outlive the fetcher.
struct PictureFetcherEnvironment {
    const Clock& clock;
    HTTPClient& client;
    NetworkActivity& networkActivity;
    const HTTPUserAgent& userAgent;
    /// Called on the fetching thread for each transfer that failed. May be empty.
    std::function<void(const TransferError&)> noRemoteHostAlert = {};
};

/// Fetches the files of pictures, which stay out of the cache of pages: a few megabytes of them are kept
/// here. Any thread.
class PictureFetcher {
  public:
    static constexpr qsizetype kMostKept = qsizetype(12) << 20;

    explicit PictureFetcher(PictureFetcherEnvironment environment)
        : m_environment(std::move(environment)) {}

    enum class Load {
        /// Only from what is kept.
        No,
        /// Not what failed in the last minutes.
        Yes,
        /// The user waits for it.
        Again,
    };

    /// The file; empty when it cannot be fetched or is larger than a picture may be. Blocks; must not be
    /// called on the main thread.
    QByteArray fetch(const QUrl& url, Load load);

    /// Drops the files that are kept.
    void dropFiles();

  private:
    QByteArray transfer(const QUrl& url) const;

    const PictureFetcherEnvironment m_environment;
    std::mutex m_guard;
    QCache<QUrl, QByteArray> m_files{kMostKept}; // guarded
    QCache<QUrl, Moment> m_failedAt{1'000};      // guarded
};

} // namespace guide
