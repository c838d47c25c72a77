#pragma once

#include "platform/KeyValueStore.h"

#include <QMap>

#include <mutex>

namespace guide {

class MemoryKeyValueStore final : public KeyValueStore {
  public:
    std::optional<QCborValue> valueForKey(const QString& key) const override {
        const std::lock_guard guard(m_guard);
        const auto found = m_values.find(key);
        return found != m_values.end() ? std::optional<QCborValue>(*found) : std::nullopt;
    }
    bool setValue(const QString& key, const QCborValue& value) override {
        const std::lock_guard guard(m_guard);
        if (writesFail) {
            return false;
        }
        if (const auto found = m_values.constFind(key); found == m_values.cend() || *found != value) {
            m_values.insert(key, value);
            ++m_writes;
        }
        return true;
    }
    void removeKey(const QString& key) override {
        const std::lock_guard guard(m_guard);
        m_values.remove(key);
    }

    void setObserver(KeyValueStoreObserver* observer) override { m_observer = observer; }

    /// Sets a value as another device would; without one, removes it. Main thread.
    void setExternally(const QString& key, const std::optional<QCborValue>& value) {
        {
            const std::lock_guard guard(m_guard);
            if (value) {
                m_values.insert(key, *value);
            } else {
                m_values.remove(key);
            }
        }
        if (m_observer != nullptr) {
            m_observer->valuesChangedExternally({key});
        }
    }

    /// How often setValue stored another value.
    int writeCount() const {
        const std::lock_guard guard(m_guard);
        return m_writes;
    }

    bool writesFail = false;

  private:
    mutable std::mutex m_guard;
    QMap<QString, QCborValue> m_values;
    int m_writes = 0;
    KeyValueStoreObserver* m_observer = nullptr;
};

} // namespace guide
