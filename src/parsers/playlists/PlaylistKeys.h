#pragma once

#include "core/own/Playlist.h"

#include <QStringList>

namespace guide {

/// A key for each entry, which stays the same as long as its id and name do, wherever the list puts it: a
/// list may give one id, or one name, to several entries.
QStringList playlistKeys(const Playlist& playlist);

} // namespace guide
