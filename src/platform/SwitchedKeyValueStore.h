#pragma once

#include "platform/KeyValueStore.h"

#include <QStringList>

#include <memory>
#include <shared_mutex>
#include <vector>

namespace guide {

/// A key-value store in whose place another one can be put while it is used. Any thread unless told
/// otherwise.
class SwitchedKeyValueStore final : public KeyValueStore {
  public:
    explicit SwitchedKeyValueStore(std::shared_ptr<KeyValueStore> store);
    /// The stores end on the main thread.
    ~SwitchedKeyValueStore() override;

    std::optional<QCborValue> valueForKey(const QString& key) const override;
    bool setValue(const QString& key, const QCborValue& value) override;
    void removeKey(const QString& key) override;
    void setObserver(KeyValueStoreObserver* observer) override;

    /// Puts the store in the place of the current one. It gets the values of those of the keys that it lacks;
    /// returned are those whose values differ. False when a value could not be stored: then nothing changes
    /// here. Blocks on the disk, and others meanwhile.
    std::optional<QStringList> replace(std::shared_ptr<KeyValueStore> store, const QStringList& keys);
    /// Observes the current store instead of an earlier one. Main thread, after replace().
    void observe();
    /// Tells the observer that the values of the keys have changed. Main thread.
    void announce(const QStringList& keys) const;

  private:
    mutable std::shared_mutex m_guard;
    std::shared_ptr<KeyValueStore> m_store;
    /// Earlier ones, until the end: they belong to the main thread, and others may still use them.
    std::vector<std::shared_ptr<KeyValueStore>> m_retired;
    KeyValueStoreObserver* m_observer = nullptr;
};

} // namespace guide
