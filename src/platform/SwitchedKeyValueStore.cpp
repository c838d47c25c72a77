#include "platform/SwitchedKeyValueStore.h"

#include <mutex>
#include <utility>

namespace guide {

SwitchedKeyValueStore::SwitchedKeyValueStore(std::shared_ptr<KeyValueStore> store)
    : m_store(std::move(store)) {}

SwitchedKeyValueStore::~SwitchedKeyValueStore() = default;

std::optional<QCborValue> SwitchedKeyValueStore::valueForKey(const QString& key) const {
    const std::shared_lock lock(m_guard);
    return m_store->valueForKey(key);
}

bool SwitchedKeyValueStore::setValue(const QString& key, const QCborValue& value) {
    const std::shared_lock lock(m_guard);
    return m_store->setValue(key, value);
}

void SwitchedKeyValueStore::removeKey(const QString& key) {
    const std::shared_lock lock(m_guard);
    m_store->removeKey(key);
}

bool SwitchedKeyValueStore::setMissingValue(const QString& key, const QCborValue& value) {
    const std::shared_lock lock(m_guard);
    return m_store->setMissingValue(key, value);
}

bool SwitchedKeyValueStore::flush() {
    std::shared_ptr<KeyValueStore> store;
    {
        const std::shared_lock lock(m_guard);
        store = m_store;
    }
    return store->flush();
}

void SwitchedKeyValueStore::setObserver(KeyValueStoreObserver* observer) {
    const std::shared_lock lock(m_guard);
    m_observer = observer;
    m_store->setObserver(observer);
}

std::optional<QStringList> SwitchedKeyValueStore::replace(std::shared_ptr<KeyValueStore> store,
                                                          const QStringList& keys, Keeps keeps) {
    // A value that is set meanwhile must not end in the store that goes.
    const std::lock_guard lock(m_guard);
    QStringList differing;
    for (const QString& key : keys) {
        const std::optional<QCborValue> ours = m_store->valueForKey(key);
        const std::optional<QCborValue> theirs = store->valueForKey(key);
        if (ours == theirs) {
            continue;
        }
        if (theirs && keeps == Keeps::Theirs) {
            differing << key;
        } else if (!ours) {
            store->removeKey(key);
        } else if (!store->setValue(key, *ours)) {
            return std::nullopt;
        }
    }
    m_replaced.push_back(std::exchange(m_store, std::move(store)));
    return differing;
}

void SwitchedKeyValueStore::endReplaced() {
    std::vector<std::shared_ptr<KeyValueStore>> ending;
    {
        const std::lock_guard lock(m_guard);
        ending.swap(m_replaced);
    }
    for (const auto& store : ending) {
        store->setObserver(nullptr);
    }
}

void SwitchedKeyValueStore::announce(const QStringList& keys) const {
    if (m_observer && !keys.isEmpty()) {
        m_observer->valuesChangedExternally(keys);
    }
}

} // namespace guide
