#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace guide {

/// One channel of a playlist. Empty texts were not given.
struct PlaylistEntry {
    /// What the list shows, and `tvg-name`, by which guides are found.
    QString name;
    QString guideName;
    /// The id of the channel in a feed.
    QString id;
    /// For display, such as "6.1"; says nothing about the channel.
    QString number;
    QString logo;
    QStringList groups;
    QString language;
    QString country;
    /// To be added to the times of the feed, in hours.
    double shift = 0;
    /// As written in the list: it may be a command, or have options behind a bar.
    QString stream;
};

/// A list of channels with their streams.
struct Playlist {
    QString name;
    /// The web addresses of feeds that the list names, in its order, each once.
    QStringList feeds;
    std::vector<PlaylistEntry> entries;
    /// Whether entries beyond kMostPlaylistEntries were left out.
    bool truncated = false;
};

/// What an entry was matched to a channel of a feed by. Review: it has candidates, and none is certain.
enum class MatchKind { Id, Name, Review, None };

} // namespace guide
