#pragma once

#include "core/own/SourceStatus.h"
#include "platform/Clock.h"
#include "platform/Moment.h"
#include "store/ShowItem.h"
#include "text/display/Alphabet.h"

#include <QLocale>
#include <QString>
#include <QTimeZone>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace guide {

/// A channel to be read from a feed.
struct OwnFeedItem {
    ObjectId channel;
    /// The channel's id in the feed. Several items may share one.
    QString feedChannel;
    QString language;
    /// Added to its times.
    std::chrono::minutes shift{0};
};

struct OwnFeedEnvironment {
    const Clock& clock;
    const Alphabet& alphabet;
    QLocale locale = {};
    /// Of the source: the time of dates without an offset from UTC. Invalid for UTC.
    QTimeZone zone = {};
    /// In bytes.
    std::uint64_t physicalMemory = 0;
    std::function<bool()> stopped = {};
};

/// What was read of a feed: the lists of the wanted channels, and counts of the whole of it.
struct OwnFeed {
    /// Read, Incomplete, or why there is nothing.
    SourceResult result = SourceResult::Unknown;
    ParsedLists lists;
    int channels = 0;
    int channelsWithShows = 0;
    int shows = 0;
    /// The start of the last show.
    std::optional<Moment> newest;
    std::int64_t unpackedBytes = 0;
};

/// Reads the programmes of the wanted channels from a feed's file, packed or not, in windows: what it takes
/// depends on these channels and not on the size of the feed. `charset` was declared by a server and may be
/// empty. Not on the main thread.
OwnFeed readOwnFeed(const QString& path, const QString& charset, const std::vector<OwnFeedItem>& items,
                    const OwnFeedEnvironment& environment);

} // namespace guide
