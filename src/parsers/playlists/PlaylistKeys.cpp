#include "parsers/playlists/PlaylistKeys.h"

#include <QHash>

namespace guide {

QStringList playlistKeys(const Playlist& playlist) {
    QStringList keys;
    keys.reserve(static_cast<qsizetype>(playlist.entries.size()));
    QHash<QString, int> seen;
    for (const PlaylistEntry& entry : playlist.entries) {
        QString key = entry.id + u'\n' + entry.name;
        if (const int earlier = seen[key]++; earlier > 0) {
            key += u'\n' + QString::number(earlier + 1);
        }
        keys << key;
    }
    return keys;
}

} // namespace guide
