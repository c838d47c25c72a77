#pragma once

#include "core/own/Playlist.h"
#include "core/own/SourceStatus.h"
#include "platform/Moment.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

namespace guide {

/// What a person gave as a source of schedules.
enum class SourceKind { Feed, Playlist, Page, Empty, Unknown };

/// A show as a preview names it.
struct PreviewShow {
    QString title;
    Moment start;
    std::optional<Moment> end;
};

/// A channel that a feed names, or that only its shows name.
struct PreviewChannel {
    QString id;
    /// Every name that the feed gives it, in its order.
    QStringList names;
    /// As written in the feed; may be empty.
    QString icon;
    /// Of its texts; empty when it could not be told.
    QString language;
    int shows = 0;
    /// Whether a show runs within the next 24 hours.
    bool live = false;
    std::optional<PreviewShow> running;

    /// The first name with a letter, otherwise the first name or the id.
    QString title() const;
};

struct PreviewNews {
    QString channel;
    PreviewShow show;
};

enum class SourceWarning {
    /// Fewer than a quarter of the channels are live.
    Poor,
    /// The last show is over.
    Over,
    /// The evening news are not in the evening.
    Shifted,
    Incomplete,
    /// Single bytes were no characters and were replaced.
    Repaired,
};

/// What a source has to offer, before anything of it is kept.
struct SourcePreview {
    SourceKind kind = SourceKind::Unknown;
    /// Of a feed, in its order.
    std::vector<PreviewChannel> channels;
    /// Of a playlist.
    Playlist playlist;
    int channelsWithShows = 0;
    /// With a show that is running.
    int channelsOnAir = 0;
    int channelsLive = 0;
    int shows = 0;
    std::optional<Moment> first;
    /// The start of the last show.
    std::optional<Moment> last;
    /// The number of channels with shows by language, empty for one that could not be told.
    QMap<QString, int> languages;
    /// The evening news of a channel with many shows, by which a wrong zone is seen; else its show at 20:00.
    std::optional<PreviewNews> news;
    std::int64_t unpackedBytes = 0;
    std::int64_t replacedBytes = 0;
    std::vector<SourceWarning> warnings;
    /// Why it cannot be used, or SourceResult::Read.
    SourceResult result = SourceResult::Unknown;

    /// Of most channels; empty if none could be told.
    QString commonLanguage() const;
};

} // namespace guide
