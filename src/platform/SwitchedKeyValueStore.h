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
    bool setMissingValue(const QString& key, const QCborValue& value) override;
    bool flush() override;
    void setObserver(KeyValueStoreObserver* observer) override;

    /// Whose value of a key that both stores have remains when one takes the other's place.
    enum class Keeps { Theirs, Ours };

    /// Announces what changes in a store that is to take the place of the current one. Main thread.
    void observeNext(KeyValueStore& store) const { store.setObserver(m_observer); }
    /// Puts the store in the place of the current one. It gets the values of those of the keys that it lacks,
    /// or all of ours; returned are those whose values differ from what was here. Nothing when a value could
    /// not be stored: then nothing changes here. Blocks on the disk, and others meanwhile. Not on the main
    /// thread.
    std::optional<QStringList> replace(std::shared_ptr<KeyValueStore> store, const QStringList& keys,
                                       Keeps keeps);
    /// Ends the stores that were replaced. Main thread.
    void endReplaced();
    /// Tells the observer that the values of the keys have changed. Main thread.
    void announce(const QStringList& keys) const;

  private:
    mutable std::shared_mutex m_guard;
    std::shared_ptr<KeyValueStore> m_store;
    std::vector<std::shared_ptr<KeyValueStore>> m_replaced;
    KeyValueStoreObserver* m_observer = nullptr;
};

} // namespace guide
