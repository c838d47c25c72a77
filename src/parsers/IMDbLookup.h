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

/// The searches for a show: none when the look-up does not apply.
struct IMDbSearches {
    /// False when the look-up does not apply, or the address of a search could not be formed; those before it
    /// are made.
    bool started = false;
    /// For the title, and for the subtitle where there is one of some length.
    std::vector<QUrl> urls;
};

/// Only films and series with a title that says something are looked for.
IMDbSearches imdbSearches(const std::optional<QString>& title, const std::optional<QString>& subtitle,
                          TVListingsCategory categories, const SourceHostTable& hosts);

struct IMDbAnswer {
    std::optional<QUrl> imdbURL;
    std::optional<QUrl> pictureURL;

    friend bool operator==(const IMDbAnswer&, const IMDbAnswer&) = default;
};

/// What the first row of a page of results says. Both are unset for an episode, and for a film where a series
/// is looked for.
IMDbAnswer imdbAnswer(const QByteArray& page, const QUrl& search, bool isSeries);

/// What the look-up works with; all of it outlives the last search.
struct IMDbLookupEnvironment {
    HTTPClient& client;
    const HTTPUserAgent& userAgent;
    const SourceHostTable& hosts;
    DispatchQueues& queues;
};

/// The number of the search, and what it found.
using IMDbClosure = std::function<void(unsigned index, const IMDbAnswer& answer)>;

/// Starts the searches for a show on background threads, all at the same time, and answers as
/// IMDbSearches::started. The closure is called on those threads, once for each search, also when nothing was
/// found.
bool imdbLinkWithClosure(const ExtendedTVEntry& show, const IMDbLookupEnvironment& environment,
                         const IMDbClosure& closure);

} // namespace guide
