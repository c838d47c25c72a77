#pragma once

#include "platform/Clock.h"
#include "platform/KeyValueStore.h"
#include "platform/SharedStoreState.h"
#include "platform/linux/SharedValues.h"
#include "platform/queues/DispatchQueue.h"

#include <chrono>
#include <functional>
#include <memory>

namespace guide {

struct SharedFolderOptions {
    QString folder;
    /// Identifies this device: a name for people, "-" and something unique.
    QString device;
    /// Where the last values and what is still to be written are kept, each folder in a file of its own.
    QString keepsIn;
    /// Keeps nothing of an earlier use: the folder is joined.
    bool joins = false;
    /// Between attempts that fail.
    std::chrono::milliseconds firstRetry{30'000};
    std::chrono::milliseconds longestRetry{600'000};
};

/// The values in a folder that other devices share (see KeyValueFiles), which may be missing, slow or full.
/// Reads are answered from memory, also before the folder has been read. Changes apply at once on this device
/// and are written as soon as that is possible; one that waits wins over a file that arrives. Only a queue of
/// the store's own waits for the folder.
class SharedFolderKeyValueStore final : public KeyValueStore, public SharedStore {
  public:
    /// Begins to read. The clock must outlive the queues. Main thread, on which the store also ends.
    SharedFolderKeyValueStore(const SharedFolderOptions& options, const Clock& clock, DispatchQueues& queues);
    ~SharedFolderKeyValueStore() override;

    std::optional<QCborValue> valueForKey(const QString& key) const override;
    /// False for a value that cannot be expressed or is too large.
    bool setValue(const QString& key, const QCborValue& value) override;
    void removeKey(const QString& key) override;
    bool setMissingValue(const QString& key, const QCborValue& value) override;
    bool flush() override { return m_values->save(); }
    void setObserver(KeyValueStoreObserver* observer) override;

    /// The other device that stored a value last, and when, by its clock.
    SharedStoreState sharedState() const override;
    void setStateObserver(std::function<void()> changed) override;

    /// Another name for people, with the digits of the former, from the next change on. Any thread.
    void setDevice(const QString& device);
    /// Looks at the folder now instead of after a pause. Any thread.
    void retryNow();
    /// Waits until what this device changed has been written; false when that takes longer or failed.
    bool finishWriting(std::chrono::milliseconds atMost);
    /// Leaves nothing of the values in the profile: the folder is left. Any thread.
    void forget();

  private:
    bool set(const QString& key, const QCborValue& value, SharedValues::Yields yields);

    class Exchange;
    struct Observers;

    const std::shared_ptr<Observers> m_observers;
    const std::shared_ptr<SharedValues> m_values;
    const std::shared_ptr<DispatchQueue> m_queue;
    std::shared_ptr<Exchange> m_exchange;
};

} // namespace guide
