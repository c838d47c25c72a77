#pragma once

#include "core/ObjectId.h"
#include "core/own/OwnSource.h"

#include <QString>

#include <mutex>
#include <optional>
#include <set>
#include <utility>

namespace guide {

/// The pictures that the user chose for own channels: small PNG files in a folder for each source, named
/// after the channels. They stay until the user removes them or the source. Any thread.
class OwnPictures {
  public:
    /// The folder need not exist. Nothing is written unless it is writable.
    OwnPictures(QString folder, bool writable);

    /// The file of the channel's picture; nothing when the user chose none.
    std::optional<QString> pathOf(const OwnSourceId& source, const ObjectId& channel) const;
    /// Keeps a copy of the picture in the file, which may have any format of icons. False when the file is
    /// not such a picture or the copy could not be written. Blocks.
    bool set(const OwnSourceId& source, const ObjectId& channel, const QString& file);
    /// Blocks.
    void remove(const OwnSourceId& source, const ObjectId& channel);
    /// Removes those of all channels that the source has or had. Blocks.
    void removeAll(const OwnSourceId& source);

  private:
    using Picture = std::pair<OwnSourceId, ObjectId>;

    QString folderOf(const OwnSourceId& source) const { return m_folder + u'/' + source.hex(); }
    QString filePath(const Picture& picture) const;

    const QString m_folder;
    const bool m_writable;
    mutable std::mutex m_guard;
    std::set<Picture> m_pictures; // guarded
};

} // namespace guide
