#include "platform/linux/FolderKeyValueStore.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"
#include "platform/linux/FileStamp.h"
#include "platform/linux/FolderWatcher.h"
#include "platform/linux/KeyValueJson.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
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

/// What sync tools put between the name of a file and its suffix when they keep a second version of it:
/// ".sync-conflict-20261123-014800-ABCDEFG", " (conflicted copy 2026-11-23 014800)", " (laptop's conflicted
/// copy 2026-11-23)", "_conflict-20261123-014800", " (1)", " 2".
bool isConflictMark(const QString& text) {
    static const QRegularExpression kMark(
        u"^(?:[ ._\\-(\\[].*conflict.*| ?\\(\\d+\\)| \\d+|-.*-safeBackup-.*)$"_s,
        QRegularExpression::CaseInsensitiveOption);
    return kMark.match(text).hasMatch();
}

/// Whether the file is that of the key, or a conflict copy of it.
bool isFileOf(const QString& name, const QString& key) {
    const QString own = FolderKeyValueStore::fileName(key);
    const QStringView stem = QStringView(own).chopped(kSuffix.size());
    return name == own ||
           (name.startsWith(stem) && isConflictMark(name.sliced(stem.size()).chopped(kSuffix.size())));
}

} // namespace

/// The values in the folder. May be used from any thread.
class FolderKeyValueStore::Files {
  public:
    Files(const QString& folder, const QString& device)
        : m_folder(folder)
        , m_device(device) {}

    std::optional<QCborValue> value(const QString& key) {
        const std::lock_guard lock(m_mutex);
        if (!m_listed) {
            list();
        }
        return read(fileName(key)).value;
    }

    bool set(const QString& key, const QCborValue& value) {
        const QString name = fileName(key);
        const std::lock_guard lock(m_mutex);
        if (!m_listed) {
            list();
        }
        if (const File file = read(name); file.intact && file.value == value) {
            return true;
        }
        const KeyValueStamp stamp{.counter = std::min(m_counter + 1, kLargestCounter), .device = m_device};
        const std::optional<QByteArray> json = keyValueJson({key, value, stamp});
        if (!json) {
            return false;
        }
        if (!replaceFile(path(name), *json)) {
            // Anything else that fails would fail again at once.
            if (isMissing()) {
                m_refused.insert(key);
            }
            return false;
        }
        m_refused.remove(key);
        m_counter = stamp.counter;
        // Without the state of the file, which another program may have replaced since: it is read again.
        m_files.insert(name, {FileStamp{}, true, key, value, stamp});
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

    /// The keys whose values changed since the last call, changes by set() and remove() not included, and
    /// those that could not be set.
    QStringList changedKeys() {
        const std::lock_guard lock(m_mutex);
        if (isMissing()) {
            return {};
        }
        list();
        QHash<QString, QCborValue> values;
        for (const File& file : std::as_const(m_files)) {
            if (file.value) {
                values.insert(file.key, *file.value);
            }
        }
        QSet<QString> changed = std::exchange(m_refused, {});
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            const auto before = m_announced.constFind(value.key());
            if (before == m_announced.constEnd() || *before != *value) {
                changed.insert(value.key());
            }
        }
        for (auto before = m_announced.cbegin(); before != m_announced.cend(); ++before) {
            if (!values.contains(before.key())) {
                changed.insert(before.key());
            }
        }
        m_announced = std::move(values);
        return changed.values();
    }

    SharedStoreState state() {
        const std::lock_guard lock(m_mutex);
        if (!m_listed) {
            list();
        }
        SharedStoreState state{.connection = SharedStoreConnection::Connected, .isRead = true};
        if (!QFileInfo(m_folder).isWritable()) {
            state.connection = SharedStoreConnection::Offline;
            state.reason = u"The folder is not there, or it cannot be written."_s;
        }
        for (const File& file : std::as_const(m_files)) {
            const QString& device = file.stamp.device;
            const Moment stored(std::chrono::seconds(file.state.seconds));
            if (!device.isEmpty() && !isOwn(device) && (!state.lastSeen || *state.lastSeen < stored)) {
                state.lastSeen = stored;
                state.device = device.left(device.lastIndexOf(u'-'));
            }
        }
        return state;
    }

  private:
    struct File {
        FileStamp state;
        /// In this state it holds the value.
        bool intact = false;
        QString key = {};
        std::optional<QCborValue> value = {};
        KeyValueStamp stamp = {};
    };

    QString path(const QString& name) const { return m_folder + u'/' + name; }
    bool isMissing() const { return !QFileInfo(m_folder).isDir(); }

    /// Reads the files that have changed, and resolves conflict copies.
    void list() {
        if (isMissing()) {
            return;
        }
        m_listed = true;
        const QStringList names = QDir(m_folder).entryList({u"*"_s + kSuffix}, QDir::Files);
        m_files.removeIf([present = QSet<QString>(names.begin(), names.end())](const auto& file) {
            return !present.contains(file.key());
        });
        QStringList copies;
        for (const QString& name : names) {
            if (const File file = read(name); file.value && fileName(file.key) != name) {
                copies.append(name);
            }
        }
        for (const QString& name : std::as_const(copies)) {
            resolve(name);
        }
    }

    void resolve(const QString& copyName) {
        const File copy = m_files.take(copyName);
        const QString name = fileName(copy.key);
        const File file = read(name);
        if (!file.value || file.stamp.isOlderThan(copy.stamp)) {
            const auto content = fileContent(path(copyName), kLargestFile);
            if (!content || !replaceFile(path(name), *content)) {
                return;
            }
            read(name);
        }
        qInfo().noquote() << "FolderKeyValueStore: resolved" << copyName;
        QFile::remove(path(copyName));
    }

    File read(const QString& name) {
        const std::optional<FileStamp> state = fileStamp(path(name));
        if (!state) {
            if (isMissing()) {
                return m_files.value(name);
            }
            m_files.remove(name);
            return {};
        }
        File& file = m_files[name];
        if (file.state == *state) {
            return file;
        }
        const std::optional<QByteArray> content = fileContent(path(name), kLargestFile);
        if (!content) {
            return file;
        }
        // If the file is replaced meanwhile, its next state differs from this one.
        file.state = *state;
        std::optional<KeyValue> read = keyValueFromJson(*content);
        file.intact = read && isFileOf(name, read->key);
        if (file.intact) {
            file.key = std::move(read->key);
            file.value = std::move(read->value);
            file.stamp = std::move(read->stamp);
            m_counter = std::max(m_counter, file.stamp.counter);
        }
        return file;
    }

    /// The name before the digits may have been another one.
    bool isOwn(const QString& device) const {
        const auto digits = [](QStringView of) { return of.sliced(of.lastIndexOf(u'-') + 1); };
        return digits(device) == digits(m_device);
    }

    const QString m_folder;
    const QString m_device;
    std::mutex m_mutex;
    bool m_listed = false;
    /// The largest of all stamps seen.
    std::int64_t m_counter = 0;
    /// By name.
    QHash<QString, File> m_files;
    /// By key: the values that need no announcement.
    QHash<QString, QCborValue> m_announced;
    /// The keys that could not be set because the folder was missing.
    QSet<QString> m_refused;
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
    , m_files(std::make_shared<Files>(folder, device)) {}

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

SharedStoreState FolderKeyValueStore::sharedState() const {
    return m_files->state();
}

void FolderKeyValueStore::setStateObserver(std::function<void()> changed) {
    *m_stateChanged = std::move(changed);
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
    const auto look = [files = m_files, scheduled, weak, &main = m_queues.mainQueue(),
                       weakState = std::weak_ptr(m_stateChanged)] {
        scheduled->store(false);
        const QStringList keys = files->changedKeys();
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
