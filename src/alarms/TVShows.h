#pragma once

#include "alarms/Favorites.h"
#include "core/MirroredFile.h"
#include "platform/KeyValueStore.h"
#include "platform/files/Folders.h"
#include "platform/queues/DispatchQueue.h"

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace guide {

/// The user's rules on show titles, in the order in which they were added, kept in the documents folder and
/// mirrored to the key-value store after every change.
///
/// Readers get a snapshot and never wait for a write to the disk; a change is visible when setFavorites
/// returns and is written afterwards. In a profile that cannot be written it lives in memory.
class TVShows final : public FavoritesSource {
  public:
    /// The key-value store must outlive this object.
    TVShows(const Folders& folders, KeyValueStore& keyValueStore, DispatchQueues& queues);

    /// The rules. The first call reads the file; a file that is damaged is kept under another name, and the
    /// copy in the key-value store takes its place. Nothing without a readable file and a copy: then the next
    /// call tries again. Any thread.
    std::optional<std::vector<Favorite>> favorites();

    /// Replaces the rules. An equal list writes nothing. `before` runs in the background before the new ones
    /// replace the file; it may be empty. Any thread.
    void setFavorites(std::vector<Favorite> rules, Block before = {});

    /// Replaces the rules by those that another device stored as `stored`. The key-value store gets them in
    /// the form of this device, unless that is equal or another device has stored others meanwhile. `before`
    /// runs in the background before rules that differ replace the file. Any thread.
    void takeFavorites(std::vector<Favorite> rules, const QCborValue& stored, Block before);

    /// Whether rules that were set here have not reached the key-value store yet. Any thread.
    bool hasUnshared() const { return m_file.hasUnshared(); }

    /// Changes the date of the first rule of a title that was read or set so far; false when there is none.
    /// A date alone is not worth writing: it is written with the next change of the rules. Any thread.
    bool setDate(const QString& title, Moment date);

    /// Whether rules were read or set so far. Any thread.
    bool isLoaded() const;

    /// What was read or set so far: empty until the first successful call of one of the functions above.
    std::shared_ptr<const FavoritesSnapshot> snapshot() const override;

    /// Retries, in the background, a write that failed.
    void retryWriting() { m_file.retryWriting(); }
    /// Blocks until the pending write is done, retrying one that failed. Called at shutdown. False when the
    /// write failed again.
    bool finishWriting() { return m_file.finishWriting(); }
    /// Removes, in the background, the copies of files that could not be read.
    void removeDamaged() { m_file.removeDamaged(); }

  private:
    using Snapshot = std::shared_ptr<const FavoritesSnapshot>;

    void read();
    bool replace(std::vector<Favorite> rules);
    std::function<MirroredFile::Content()> content() const;

    MirroredFile m_file;
    const Snapshot m_none = std::make_shared<const FavoritesSnapshot>();
    mutable std::mutex m_guard;
    Snapshot m_current; // guarded; null until the first successful read
};

} // namespace guide
