#pragma once

#include "platform/KeyValueStore.h"
#include "platform/SharedStoreState.h"
#include "platform/queues/DispatchQueue.h"

#include <functional>
#include <memory>

namespace guide {

class FolderWatcher;

/// The values in a folder of the profile (see KeyValueFiles), read and written by whoever asks for them:
/// everything waits for its disk. Files are read again when they change.
class FolderKeyValueStore final : public KeyValueStore, public SharedStore {
  public:
    /// `device` identifies this one: a name for people, "-" and something unique.
    FolderKeyValueStore(const QString& folder, const QString& device, DispatchQueues& queues);
    ~FolderKeyValueStore() override;

    std::optional<QCborValue> valueForKey(const QString& key) const override;
    bool setValue(const QString& key, const QCborValue& value) override;
    void removeKey(const QString& key) override;
    /// Changes are announced together, shortly after the first one. While the folder is missing, the values
    /// last read remain, none can be set, and nothing is announced; when it reappears, the keys whose values
    /// differ are.
    void setObserver(KeyValueStoreObserver* observer) override;

    /// As far as the files have been read: the other device that stored a value last, and when, by its clock.
    SharedStoreState sharedState() const override;
    void setStateObserver(std::function<void()> changed) override;

  private:
    class Values;
    struct Observation;

    const QString m_folder;
    DispatchQueues& m_queues;
    const std::shared_ptr<DispatchQueue> m_queue;
    const std::shared_ptr<Values> m_values;
    std::shared_ptr<Observation> m_observation;
    const std::shared_ptr<std::function<void()>> m_stateChanged = std::make_shared<std::function<void()>>();
};

} // namespace guide
