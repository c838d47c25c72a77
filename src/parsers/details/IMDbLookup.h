#pragma once

#include "platform/http/HTTPClient.h"
#include "platform/queues/DispatchQueue.h"
#include "sources/HTTPUserAgent.h"
#include "sources/SourceHostTable.h"
#include "store/ShowItem.h"

#include <QByteArray>
#include <QUrl>

#include <functional>
#include <optional>
#include <vector>

namespace guide {

/// The searches for a show.
struct IMDbSearches {
    /// False when the look-up does not apply or the address of a search could not be formed; searches formed
    /// before that one are still made.
    bool started = false;
    /// For the title, and for the subtitle if it is long enough.
    std::vector<QUrl> urls;
};

/// Only films and series with a meaningful title are searched for.
IMDbSearches imdbSearches(const std::optional<QString>& title, const std::optional<QString>& subtitle,
                          TVListingsCategory categories, const SourceHostTable& hosts);

struct IMDbAnswer {
    std::optional<QUrl> imdbURL;
    std::optional<QUrl> pictureURL;

    friend bool operator==(const IMDbAnswer&, const IMDbAnswer&) = default;
};

/// Reads the first row of a page of results. Both are unset for an episode, and for a film when a series is
/// searched for.
IMDbAnswer imdbAnswer(const QByteArray& page, const QUrl& search, bool isSeries);

/// Everything referred to must outlive the last search.
struct IMDbLookupEnvironment {
    HTTPClient& client;
    const HTTPUserAgent& userAgent;
    const SourceHostTable& hosts;
    DispatchQueues& queues;
};

/// Receives the index of the search and its result.
using IMDbClosure = std::function<void(unsigned index, const IMDbAnswer& answer)>;

/// Starts the searches for a show in parallel on background threads and returns IMDbSearches::started. The
/// closure is called on those threads once for each search, even when nothing was found.
bool imdbLinkWithClosure(const ExtendedTVEntry& show, const IMDbLookupEnvironment& environment,
                         const IMDbClosure& closure);

} // namespace guide
