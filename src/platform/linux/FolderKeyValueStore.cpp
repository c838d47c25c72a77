#include "platform/linux/FolderKeyValueStore.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"
#include "platform/linux/FileStamp.h"
#include "platform/linux/FolderWatcher.h"
#include "platform/linux/KeyValueJson.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QSet>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kSuffix = ".json"_L1;
// Leaves room for the suffix, and for what sync tools add to the names of their copies.
constexpr qsizetype kLongestName = 180;
constexpr qsizetype kDigestDigits = 32;
constexpr std::int64_t kLargestFile = 16 << 20;
// A sync tool often writes several files in quick succession.
constexpr auto kSettlingTime = 250ms;

} // namespace

/// The values in the folder. May be used from any thread.
class FolderKeyValueStore::Files {
  public:
    explicit Files(const QString& folder)
        : m_folder(folder) {}

    std::optional<QCborValue> value(const QString& key) {
        const std::lock_guard lock(m_mutex);
        return read(fileName(key)).value;
    }

    bool set(const QString& key, const QCborValue& value) {
        const std::optional<QByteArray> json = keyValueJson(key, value);
        if (!json) {
            return false;
        }
        const QString name = fileName(key);
        const std::lock_guard lock(m_mutex);
        if (!replaceFile(path(name), *json)) {
            return false;
        }
        m_files.insert(name, {fileStamp(path(name)).value_or(FileStamp{}), key, value});
        m_announced.insert(key, value);
        return true;
    }

    void remove(const QString& key) {
        const QString name = fileName(key);
        const std::lock_guard lock(m_mutex);
        QFile::remove(path(name));
        m_files.remove(name);
        m_announced.remove(key);
    }

    /// The keys whose values changed since the last call, changes by set() and remove() not included.
    QStringList changedKeys() {
        const std::lock_guard lock(m_mutex);
        const QDir folder(m_folder);
        if (!folder.exists()) {
            return {};
        }
        QHash<QString, QCborValue> values;
        const QStringList names = folder.entryList({u"*"_s + kSuffix}, QDir::Files);
        m_files.removeIf([present = QSet<QString>(names.begin(), names.end())](const auto& file) {
            return !present.contains(file.key());
        });
        for (const QString& name : names) {
            if (const File file = read(name); file.value) {
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

  private:
    struct File {
        FileStamp stamp;
        QString key;
        std::optional<QCborValue> value;
    };

    QString path(const QString& name) const { return m_folder + u'/' + name; }

    File read(const QString& name) {
        const std::optional<FileStamp> stamp = fileStamp(path(name));
        if (!stamp) {
            m_files.remove(name);
            return {};
        }
        File& file = m_files[name];
        if (file.stamp == *stamp) {
            return file;
        }
        const std::optional<QByteArray> content = fileContent(path(name), kLargestFile);
        if (!content) {
            return file;
        }
        // If the file is replaced meanwhile, its next stamp differs from this one.
        file.stamp = *stamp;
        if (std::optional<KeyValue> read = keyValueFromJson(*content); read && fileName(read->key) == name) {
            file.key = std::move(read->key);
            file.value = std::move(read->value);
        }
        return file;
    }

    const QString m_folder;
    std::mutex m_mutex;
    /// By name.
    QHash<QString, File> m_files;
    /// By key: the values that need no announcement.
    QHash<QString, QCborValue> m_announced;
};

/// Exists while there is an observer. Main thread.
struct FolderKeyValueStore::Observation {
    KeyValueStoreObserver& observer;
    std::unique_ptr<FolderWatcher> watcher;
};

FolderKeyValueStore::FolderKeyValueStore(const QString& folder, DispatchQueues& queues)
    : m_folder(folder)
    , m_queues(queues)
    , m_queue(queues.makeQueue("keyValueStore", QueueKind::Serial, QueuePriority::Background))
    , m_files(std::make_shared<Files>(folder)) {}

FolderKeyValueStore::~FolderKeyValueStore() = default;

QString FolderKeyValueStore::fileName(const QString& key) {
    const QByteArray utf8 = key.toUtf8();
    // Encodes dots too, so that no name is hidden or refers to another folder.
    QByteArray name = utf8.toPercentEncoding({}, ".~");
    if (name.size() > kLongestName) {
        const QByteArray digest = QCryptographicHash::hash(utf8, QCryptographicHash::Sha256).toHex();
        name = name.left(kLongestName - kDigestDigits - 1) + '~' + digest.left(kDigestDigits);
    }
    return (name.isEmpty() ? u"~"_s : QString::fromLatin1(name)) + kSuffix;
}

std::optional<QCborValue> FolderKeyValueStore::valueForKey(const QString& key) const {
    return m_files->value(key);
}

bool FolderKeyValueStore::setValue(const QString& key, const QCborValue& value) {
    return m_files->set(key, value);
}

void FolderKeyValueStore::removeKey(const QString& key) {
    m_files->remove(key);
}

void FolderKeyValueStore::setObserver(KeyValueStoreObserver* observer) {
    m_observation.reset();
    if (observer == nullptr) {
        return;
    }
    // Values that are present now are not announced.
    m_files->changedKeys();
    m_observation = std::make_shared<Observation>(Observation{*observer, nullptr});
    const std::weak_ptr<Observation> weak = m_observation;
    const auto scheduled = std::make_shared<std::atomic<bool>>(false);
    const auto look = [files = m_files, scheduled, weak, &main = m_queues.mainQueue()] {
        scheduled->store(false);
        const QStringList keys = files->changedKeys();
        if (keys.isEmpty()) {
            return;
        }
        main.async([weak, keys] {
            if (const auto observation = weak.lock()) {
                observation->observer.valuesChangedExternally(keys);
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
