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
/// key. Any thread.
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

    /// Makes what is to be written, on the writer's queue. Replaces a content that is not written yet.
    void write(std::function<Content()> makeContent);
    /// Retries, in the background, a write that failed.
    void retryWriting();
    /// Blocks until the pending write is done, retrying one that failed. False when it failed again.
    bool finishWriting();

  private:
    struct State;
    const std::shared_ptr<State> m_state;
};

} // namespace guide
