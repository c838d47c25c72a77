#pragma once

#include "parsers/playlists/Playlist.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace guide {

/// A channel that a feed names.
struct FeedChannel {
    QString id;
    /// Every name that the feed gives it, in its order.
    QStringList names;
    /// The place of its feed.
    int feed = 0;
};

struct ChannelMatch {
    MatchKind kind = MatchKind::None;
    /// The place of the channel; -1 unless matched by its id or name.
    int channel = -1;
    /// The places of the channels to choose from.
    std::vector<int> candidates;
};

/// Finds the channel of each entry: by its id, then by its names. The number of a channel is never used,
/// because lists number channels as they like. Of feeds that name the same channel the earlier one is taken;
/// several channels of one feed, or one whose name is only similar, are candidates. Takes time proportional
/// to entries and channels.
std::vector<ChannelMatch> matchChannels(const std::vector<PlaylistEntry>& entries,
                                        const std::vector<FeedChannel>& channels);

} // namespace guide
