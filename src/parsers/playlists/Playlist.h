#pragma once

#include "core/own/Playlist.h"

#include <QByteArray>
#include <QString>

#include <cstddef>

namespace guide {

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
