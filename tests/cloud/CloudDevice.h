#pragma once

#include "SyncedGuide.h"
#include "fakes/ManualQueues.h"

#include <QMap>
#include <QTemporaryDir>

#include <vector>

namespace guide::test {

class SharedStore;

/// The values of all devices.
struct SharedValues {
    QMap<QString, QCborValue> values;
    std::vector<SharedStore*> stores;
    int writes = 0;
};

/// One device's view of the values; a change is announced to the others.
class SharedStore final : public KeyValueStore {
  public:
    explicit SharedStore(SharedValues& shared)
        : m_shared(shared) {
        shared.stores.push_back(this);
    }
    ~SharedStore() override { std::erase(m_shared.stores, this); }

    std::optional<QCborValue> valueForKey(const QString& key) const override {
        const auto found = m_shared.values.constFind(key);
        return found == m_shared.values.cend() ? std::nullopt : std::optional(*found);
    }
    bool setValue(const QString& key, const QCborValue& value) override {
        if (refuses) {
            return false;
        }
        if (valueForKey(key) != value) {
            m_shared.values[key] = value;
            ++m_shared.writes;
            announce(key);
        }
        return true;
    }
    void removeKey(const QString& key) override {
        if (m_shared.values.remove(key) > 0) {
            announce(key);
        }
    }
    void setObserver(KeyValueStoreObserver* observer) override { m_observer = observer; }

    bool refuses = false;

  private:
    void announce(const QString& key) {
        for (SharedStore* store : m_shared.stores) {
            if (store != this && store->m_observer) {
                store->m_observer->valuesChangedExternally({key});
            }
        }
    }

    SharedValues& m_shared;
    KeyValueStoreObserver* m_observer = nullptr;
};

struct CloudDevicePlace {
    SharedStore store;
    const QTemporaryDir folder = {};
};

/// One of the user's devices. Its changes reach the others when the queues run.
class CloudDevice : public CloudDevicePlace, public SyncedGuide {
  public:
    CloudDevice(ManualClock& clock, ManualQueues& queues, SharedValues& values)
        : CloudDevicePlace{SharedStore(values)}
        , SyncedGuide(clock, queues, store, folder.path()) {}
};

} // namespace guide::test
