#include "platform/linux/FolderKeyValueStore.h"

#include "platform/linux/FolderWatcher.h"
#include "platform/linux/KeyValueFiles.h"

#include <QSet>

#include <atomic>
#include <chrono>
#include <mutex>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// A sync tool often writes several files in quick succession.
constexpr auto kSettlingTime = 250ms;

} // namespace

/// The values in the folder. May be used from any thread.
class FolderKeyValueStore::Values {
  public:
    Values(const QString& folder, const QString& device)
        : m_files(folder, device) {}

    std::optional<QCborValue> value(const QString& key) {
        const std::lock_guard lock(m_mutex);
        list();
        return m_files.read(key).value;
    }

    bool set(const QString& key, const QCborValue& value) {
        const std::lock_guard lock(m_mutex);
        list();
        if (!m_isListed || !m_files.write(key, value)) {
            return false;
        }
        m_announced.insert(key, value);
        return true;
    }

    void remove(const QString& key) {
        const std::lock_guard lock(m_mutex);
        m_files.remove(key);
        m_announced.remove(key);
    }

    /// The keys whose values changed since the last call, changes by set() and remove() not included.
    QStringList changedKeys() {
        const std::lock_guard lock(m_mutex);
        if (!m_files.list()) {
            return {};
        }
        m_isListed = true;
        QHash<QString, QCborValue> values;
        for (const KeyValueFiles::File& file : m_files.files()) {
            if (file.value) {
                values.insert(file.key, *file.value);
            }
        }
        QStringList changed;
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            const auto before = m_announced.constFind(value.key());
            if (before == m_announced.constEnd() || *before != *value) {
                changed.append(value.key());
            }
        }
        for (auto before = m_announced.cbegin(); before != m_announced.cend(); ++before) {
            if (!values.contains(before.key())) {
                changed.append(before.key());
            }
        }
        m_announced = std::move(values);
        return changed;
    }

    SharedStoreState state() {
        const std::lock_guard lock(m_mutex);
        list();
        SharedStoreState state{.connection = SharedStoreConnection::Connected, .isRead = true};
        if (!m_files.isWritable()) {
            state.connection = SharedStoreConnection::Offline;
            state.reason = u"The folder is not there, or it cannot be written."_s;
        }
        for (const KeyValueFiles::File& file : m_files.files()) {
            const Moment stored(std::chrono::seconds(file.state.seconds));
            if (file.isFromAnotherThan(m_files.device()) && (!state.lastSeen || *state.lastSeen < stored)) {
                state.lastSeen = stored;
                state.device = file.writer();
            }
        }
        return state;
    }

  private:
    void list() { m_isListed = m_isListed || m_files.list(); }

    std::mutex m_mutex;
    // guarded
    KeyValueFiles m_files;
    bool m_isListed = false;
    /// By key: the values that need no announcement.
    QHash<QString, QCborValue> m_announced;
};

/// Exists while there is an observer. Main thread.
struct FolderKeyValueStore::Observation {
    KeyValueStoreObserver& observer;
    std::unique_ptr<FolderWatcher> watcher;
};

FolderKeyValueStore::FolderKeyValueStore(const QString& folder, const QString& device, DispatchQueues& queues)
    : m_folder(folder)
    , m_queues(queues)
    , m_queue(queues.makeQueue("keyValueStore", QueueKind::Serial, QueuePriority::Background))
    , m_values(std::make_shared<Values>(folder, device)) {}

FolderKeyValueStore::~FolderKeyValueStore() = default;

std::optional<QCborValue> FolderKeyValueStore::valueForKey(const QString& key) const {
    return m_values->value(key);
}

SharedStoreState FolderKeyValueStore::sharedState() const {
    return m_values->state();
}

void FolderKeyValueStore::setStateObserver(std::function<void()> changed) {
    *m_stateChanged = std::move(changed);
}

bool FolderKeyValueStore::setValue(const QString& key, const QCborValue& value) {
    return m_values->set(key, value);
}

void FolderKeyValueStore::removeKey(const QString& key) {
    m_values->remove(key);
}

void FolderKeyValueStore::setObserver(KeyValueStoreObserver* observer) {
    m_observation.reset();
    if (observer == nullptr) {
        return;
    }
    // Values that are present now are not announced.
    m_values->changedKeys();
    m_observation = std::make_shared<Observation>(Observation{*observer, nullptr});
    const std::weak_ptr<Observation> weak = m_observation;
    const auto scheduled = std::make_shared<std::atomic<bool>>(false);
    const auto look = [values = m_values, scheduled, weak, &main = m_queues.mainQueue(),
                       weakState = std::weak_ptr(m_stateChanged)] {
        scheduled->store(false);
        const QStringList keys = values->changedKeys();
        main.async([weak, weakState, keys] {
            if (const auto observation = weak.lock(); observation && !keys.isEmpty()) {
                observation->observer.valuesChangedExternally(keys);
            }
            if (const auto stateChanged = weakState.lock(); stateChanged && *stateChanged) {
                (*stateChanged)();
            }
        });
    };
    m_observation->watcher = std::make_unique<FolderWatcher>(m_folder, [scheduled, look, queue = m_queue] {
        if (!scheduled->exchange(true)) {
            queue->asyncAfter(kSettlingTime, look);
        }
    });
}

} // namespace guide
