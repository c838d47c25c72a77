#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstddef>
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

inline constexpr std::size_t kMostPlaylistEntries = 200'000;

/// The text of a list's bytes. No list declares its character set: they are taken for UTF-8 if they are
/// valid, for UTF-16 with a byte order mark, and otherwise for the character set of Central European Windows.
QString playlistText(const QByteArray& bytes);

/// Whether a text is a playlist: its first lines have the marks of one.
bool isPlaylist(QStringView text);

/// Reads an M3U list in any of the dialects in use. Lines that it does not know are skipped; an entry without
/// a stream is kept. Several lists joined in one text count as one.
Playlist readPlaylist(QStringView text);

} // namespace guide
