#pragma once

#include "platform/Moment.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>

namespace guide {

/// What a feed has to offer, before anything of it is kept.
struct FeedPreview {
    /// Named by the feed, or only by its shows.
    int channels = 0;
    int channelsWithShows = 0;
    /// With a show that is running.
    int channelsOnAir = 0;
    /// With a show within the next day.
    int channelsLive = 0;
    /// With a start that can be read.
    int shows = 0;
    std::optional<Moment> first;
    /// The start of the last show.
    std::optional<Moment> last;
    /// The number of channels by the language of their texts, empty for a language that could not be told.
    QMap<QString, int> languages;
    /// The document broke off.
    bool incomplete = false;

    /// Fewer than a quarter of the channels are live.
    bool isPoor() const { return channelsLive * 4 < channels; }
    bool isOver(Moment now) const { return last && *last < now; }
};

/// Reads a whole feed, a document in UTF-8 that owns its bytes. `expected` is the language of its country, or
/// empty.
FeedPreview feedPreview(const QByteArray& document, Moment now, const QString& expected = {});

} // namespace guide
