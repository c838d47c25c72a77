#pragma once

#include "core/Catalogue.h"
#include "core/TVChannel.h"
#include "platform/KeyValueStore.h"
#include "platform/files/Folders.h"
#include "platform/queues/DispatchQueue.h"

#include <memory>
#include <mutex>
#include <optional>
#include <unordered_map>
#include <vector>

namespace guide {

/// The user's selection of channels, in the user's order, kept in the documents folder and mirrored to the
/// key-value store, with a record for each selected channel that the catalogue knows. A replaced catalogue
/// creates, renews and drops records; the selection does not change.
///
/// Readers get a snapshot and never wait for a write to the disk; a change is visible when setSelected
/// returns and is written afterwards, in order. In a profile that cannot be written it lives in memory.
class TVChannels {
  public:
    /// The key-value store and the catalogue must outlive this object.
    TVChannels(const Folders& folders, KeyValueStore& keyValueStore, DispatchQueues& queues,
               const Catalogue& catalogue);
    ~TVChannels();

    /// The selected channels; empty when there are none. A file that cannot be read is kept under another
    /// name, and the copy in the key-value store takes its place. Any thread.
    std::vector<ObjectId> selected() const;

    /// Replaces the selection. An equal one writes nothing. `before` runs in the background before the new
    /// one replaces the file; it may be empty. Any thread.
    void setSelected(std::vector<ObjectId> selected, Block before = {});

    /// Replaces the selection by the one that another device stored as `stored`. Unless they are equal, the
    /// key-value store gets it in the form of this device, unless another device has stored another one
    /// meanwhile, and `before` runs in the background before the file is replaced. Any thread.
    void takeSelected(std::vector<ObjectId> selected, const QCborValue& stored, Block before);

    /// Whether a selection that was set here has not reached the key-value store yet. Any thread.
    bool hasUnshared() const;

    /// The record of a selected channel; null when it is not selected or not in the catalogue. Any thread.
    std::shared_ptr<TVChannel> channelWithChannelId(const ObjectId& channel) const;

    /// Retries, in the background, a write that failed.
    void retryWriting();

    /// Blocks until the pending write is done, retrying one that failed. Called at shutdown. False when the
    /// write failed again.
    bool finishWriting();

    /// Removes, in the background, the copies of files that could not be read.
    void removeDamaged();

  private:
    struct State;
    const std::unique_ptr<State> m_state;
};

} // namespace guide
