#pragma once

#include "store/ShowItem.h"

#include <QByteArray>

#include <optional>
#include <span>

namespace guide {

/// The archive of a list: an array of shows, each an array of its parts.
QByteArray archivedShows(std::span<const ShowItem> shows);

/// The shows of an archive in ascending start time; shows without a title or a start are left out. Nothing
/// when the bytes are not a complete archive of shows.
std::optional<ShowItems> unarchivedShows(QByteArrayView archive, const Alphabet& alphabet);

/// The same for a file; nothing when it cannot be read.
std::optional<ShowItems> unarchivedShowsOfFile(const QString& path, const Alphabet& alphabet);

} // namespace guide
