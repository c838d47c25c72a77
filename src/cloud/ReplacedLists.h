#pragma once

#include "alarms/Favorites.h"
#include "cloud/ReplacedList.h"
#include "core/Catalogue.h"
#include "core/ObjectId.h"
#include "platform/Clock.h"
#include "platform/files/Folders.h"

#include <QString>

#include <cstddef>
#include <mutex>
#include <optional>
#include <vector>

namespace guide {

/// Copies of the favourites and of the selections that other devices have replaced, at most ten of each, in
/// the folder "replaced" of the documents: the oldest, the newest, and of those between them the fewer the
/// longer ago. All functions use the disk, so they are for background queues; any thread.
class ReplacedLists {
  public:
    ReplacedLists(const Folders& folders, const Clock& clock);

    // An empty list, and one that equals the newest copy, are not kept. In a profile that cannot be written
    // nothing is.

    void keep(const std::vector<Favorite>& rules);
    void keep(const std::vector<ObjectId>& selected);

    /// What the copies are compared with.
    struct Present {
        const FavoritesSnapshot& rules;
        const std::vector<ObjectId>& selected;
        const CatalogueSnapshot& catalogue;
    };
    /// The newest first.
    std::vector<ReplacedList> all(const Present& present) const;
    /// How many copies there are.
    std::size_t count() const;
    /// The copies; nothing when there is none of this name or it is damaged.
    std::optional<std::vector<Favorite>> favorites(const QString& name) const;
    std::optional<std::vector<ObjectId>> selection(const QString& name) const;

    /// Returns how many were removed.
    std::size_t removeAll();

  private:
    void keep(ReplacedList::Kind kind, const QByteArray& content);
    std::optional<QByteArray> content(const QString& name, ReplacedList::Kind kind) const;

    const QString m_folder;
    const bool m_writable;
    const Clock& m_clock;
    /// Held while the folder is read or changed.
    mutable std::mutex m_guard;
};

} // namespace guide
