#pragma once

#include "platform/KeyValueStore.h"
#include "platform/queues/DispatchQueue.h"

#include <QByteArray>
#include <QCborValue>
#include <QString>

#include <functional>
#include <memory>

namespace guide {

/// A file of the profile and its copy under a key of the key-value store. Writes run in the background; of
/// several contents that wait only the newest is written, first to the file and, if that succeeds, to the
/// key. A copy that the key-value store refuses is kept, also beyond the end of the process, which a file
/// "NAME.unshared" marks. Any thread.
class MirroredFile {
  public:
    struct Place {
        QString path;
        QString key;
        /// A longer file counts as damaged.
        qint64 mostBytes = 0;
        /// False in a profile that cannot be written: nothing is.
        bool writable = true;
    };
    struct Content {
        QByteArray file;
        QCborValue copy;
    };
    enum class Found { Nothing, File, Copy };

    /// The key-value store must outlive this object. The queue is serial.
    MirroredFile(Place place, KeyValueStore& keyValueStore, std::shared_ptr<DispatchQueue> writer);
    MirroredFile(const MirroredFile&) = delete;
    MirroredFile& operator=(const MirroredFile&) = delete;
    /// Finishes writing.
    ~MirroredFile();

    /// Offers the file's content to `takeFile`, which returns whether it could use it. If not, and the file
    /// exists, it is damaged: the copy is offered to `takeCopy`, and the next write keeps the damaged file as
    /// "NAME.damaged-1" beside the new one. Earlier damaged files are renumbered, and only three are kept.
    Found read(const std::function<bool(const QByteArray&)>& takeFile,
               const std::function<bool(const QCborValue&)>& takeCopy);
    bool hasCopy() const;
    /// Whether the key-value store has refused the newest copy.
    bool wasRefused() const;

    /// Makes what is to be written, on the writer's queue. Replaces a content that is not written yet.
    void write(std::function<Content()> makeContent);
    /// The same for a content that was made from the copy of another device, `taken`. The key is written only
    /// while it has that value and the content's copy differs: a newer one will be taken over next.
    void writeTaken(std::function<Content()> makeContent, QCborValue taken);
    /// The same for a content that was read from the file: the key is written only while it has no value.
    void writeMissing(std::function<Content()> makeContent);
    /// Runs the block, if it is not empty, on the writer's queue, before every write that is asked for later.
    void beforeWriting(Block block);
    /// Whether a content of this device is not in the file and in the key-value store yet.
    bool hasUnshared() const;
    /// Retries, in the background, a write that failed.
    void retryWriting();
    /// Blocks until the pending write is done, retrying one that failed. False when it failed again.
    bool finishWriting();
    /// Removes, in the background, the damaged files that were kept, and a damaged one that was not replaced.
    void removeDamaged();

  private:
    struct State;
    const std::shared_ptr<State> m_state;
};

} // namespace guide
