#include "platform/linux/SharedFolderKeyValueStore.h"

#include "platform/linux/KeyValueFiles.h"
#include "platform/linux/watch/FolderTreeWatch.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QObject>
#include <QSet>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kLookInterval = 5min;
// Leaves room for the stamp.
constexpr qsizetype kMostBytes = KeyValueFiles::kLargestFile - 1024;

enum class Fault { None, Missing, Unwritable, Failing };

const char* text(Fault fault) {
    switch (fault) {
    case Fault::None:
        break;
    case Fault::Missing:
        return "the folder is missing";
    case Fault::Unwritable:
        return "the folder cannot be written";
    case Fault::Failing:
        return "a file of the folder cannot be written";
    }
    return "";
}

QString localFile(const SharedFolderOptions& options) {
    constexpr qsizetype kDigits = 16;
    const QByteArray digest =
        QCryptographicHash::hash(options.folder.toUtf8(), QCryptographicHash::Sha256).toHex();
    return options.keepsIn + u"/folder-"_s + QString::fromLatin1(digest.left(kDigits)) + u".values"_s;
}

/// Delivers calls on the thread that made it. Its last owner may be on another one.
std::shared_ptr<QObject> makeContext() {
    return {new QObject, [](QObject* context) {
                if (context->thread() == QThread::currentThread()) {
                    delete context;
                } else {
                    context->deleteLater();
                }
            }};
}

} // namespace

/// Main thread.
struct SharedFolderKeyValueStore::Observers {
    KeyValueStoreObserver* values = nullptr;
    std::function<void()> state;
};

/// Exchanges the values with the folder. On the queue of the store, except for what is said to be for any
/// thread.
class SharedFolderKeyValueStore::Exchange final : public std::enable_shared_from_this<Exchange> {
  public:
    Exchange(const SharedFolderOptions& options, std::shared_ptr<SharedValues> values,
             const std::shared_ptr<Observers>& observers, const Clock& clock, DispatchQueue& mainQueue,
             std::shared_ptr<DispatchQueue> queue)
        : m_firstRetry(options.firstRetry)
        , m_longestRetry(options.longestRetry)
        , m_values(std::move(values))
        , m_observers(observers)
        , m_clock(clock)
        , m_mainQueue(mainQueue)
        , m_queue(std::move(queue))
        , m_files(options.folder, options.device) {
        const SharedValues::Others others = m_values->others();
        m_state.lastSeen = others.lastSeen;
        m_state.device = others.lastWriter;
    }

    /// Any thread.
    SharedStoreState state() const {
        const std::lock_guard lock(m_guard);
        return m_state;
    }
    /// Exchanges soon. A write that has failed is not tried again by that: it is a change of the folder
    /// itself. Any thread.
    void look() {
        if (!m_isAwake.exchange(true)) {
            m_queue->async([self = shared_from_this()] { self->exchange(); });
        }
    }
    /// Exchanges soon. Any thread.
    void send() {
        m_mayWrite = true;
        look();
    }
    /// The same, and retries after the shortest pause again. Any thread.
    void retryNow() {
        m_queue->async([self = shared_from_this()] { self->restartPauses(); });
        send();
    }
    /// Exchanges, also what could not be written before.
    void finish() {
        m_mayWrite = true;
        exchange();
    }

    void exchange() {
        m_isAwake = false;
        const bool mayWrite = m_mayWrite.exchange(false) || m_fault != Fault::Failing;
        watch();
        const Fault fault = exchangeFiles(mayWrite);
        m_values->saveSoon();
        if (fault != std::exchange(m_fault, fault) && fault != Fault::None) {
            qWarning().noquote() << "SharedFolderKeyValueStore:" << text(fault);
        }
        if (fault == Fault::None) {
            restartPauses();
        } else {
            retryLater();
        }
        lookLater();
        tellState();
    }

    void setDevice(const QString& device) { m_files.setDevice(device); }

    /// Without it the folder is not watched any more.
    void end() {
        m_hasEnded = true;
        m_watch = nullptr;
    }

  private:
    void watch() {
        const FileStamp found = fileStamp(m_files.folder()).value_or(FileStamp{});
        if (const auto identity = std::pair(found.device, found.inode);
            !m_hasEnded && (!m_watch || identity != m_watched)) {
            m_watched = identity;
            m_watch = std::make_unique<FolderTreeWatch>(m_files.folder(), FolderTreeWatch::Depth::Folder,
                                                        [weak = weak_from_this(), context = m_context] {
                                                            QMetaObject::invokeMethod(context.get(), [weak] {
                                                                if (const auto self = weak.lock()) {
                                                                    self->look();
                                                                }
                                                            });
                                                        });
        }
    }

    Fault exchangeFiles(bool mayWrite) {
        if (!m_files.list() || isUnmounted()) {
            return Fault::Missing;
        }
        const bool isWritable = m_files.isWritable();
        const bool writes = isWritable && mayWrite;
        bool isSent = !writes || write();
        read();
        // Reading shows which values give way.
        isSent = isSent && (writes ? write() : m_values->changesToSend().empty());
        return isSent ? Fault::None : isWritable ? Fault::Failing : Fault::Unwritable;
    }

    /// Whether the folder is the empty one on which the disk with the values is mounted.
    bool isUnmounted() {
        const std::uint64_t volume = fileStamp(m_files.folder()).value_or(FileStamp{}).device;
        const std::uint64_t before = m_values->volume();
        if (m_files.files().isEmpty() && before != 0 && before != volume) {
            return true;
        }
        if (!m_files.files().isEmpty()) {
            m_values->setVolume(volume);
        }
        return false;
    }

    /// Changes of this device first: they were made without knowing of any that arrived meanwhile. False when
    /// one could not be written.
    bool write() {
        const std::vector<SharedValues::Change> changes = m_values->changesToSend();
        bool isWritten = true;
        for (const SharedValues::Change& change : changes) {
            if (wasWritten(change) || write(change)) {
                m_values->sent(change, QUuid());
            } else {
                m_values->attempt(change, 0);
                isWritten = false;
            }
        }
        if (!changes.empty()) {
            m_values->save();
            m_files.list();
        }
        return isWritten;
    }

    /// Whether a process that ended before it could note that made the change in the folder. Another device
    /// may have replaced the file since.
    bool wasWritten(const SharedValues::Change& change) {
        const KeyValueStamp stamp{.counter = change.attempt, .device = m_files.device()};
        const KeyValueFiles::File file = m_files.read(change.key);
        return change.attempt > 0 && file.intact && !file.stamp.isOlderThan(stamp);
    }

    bool write(const SharedValues::Change& change) {
        m_values->attempt(change, m_files.nextCounter());
        m_values->save();
        const std::optional<KeyValue> written = change.bytes ? keyValueFromJson(*change.bytes) : std::nullopt;
        return written ? m_files.write(change.key, written->value) : m_files.remove(change.key);
    }

    void read() {
        std::vector<SharedValues::StoredKey> stored;
        QSet<QString> unreadable;
        const auto& files = m_files.files();
        for (auto file = files.cbegin(); file != files.cend(); ++file) {
            if (file->value && KeyValueFiles::fileName(file->key) == file.key()) {
                stored.push_back({file->key, file->content});
            } else {
                unreadable.insert(file.key());
            }
        }
        for (const QString& key : m_values->keys()) {
            if (unreadable.contains(KeyValueFiles::fileName(key))) {
                stored.push_back({key, QUuid()});
            }
        }
        QStringList toRead;
        QStringList changed = m_values->compare(stored, toRead);
        for (const QString& key : std::as_const(toRead)) {
            const KeyValueFiles::File file = files.value(KeyValueFiles::fileName(key));
            noteWriter(file);
            const auto bytes = file.value ? keyValueJson({key, *file.value}) : std::nullopt;
            if (bytes && m_values->receive({key, file.content}, *bytes)) {
                changed.append(key);
            }
        }
        m_isRead = true;
        if (changed.isEmpty()) {
            return;
        }
        // Before the profile takes over what was read: a guide that finds a list in its files but not here
        // would share that list, however old.
        m_values->save();
        m_mainQueue.async([weak = m_observers, changed] {
            if (const auto observers = weak.lock(); observers && observers->values != nullptr) {
                observers->values->valuesChangedExternally(changed);
            }
        });
    }

    void noteWriter(const KeyValueFiles::File& file) {
        // A clock that is ahead must not hide what is stored later.
        const Moment stored =
            std::min<Moment>(Moment(std::chrono::seconds(file.state.seconds)), m_clock.now());
        const SharedValues::Others before = m_values->others();
        const bool isLater = !before.lastSeen || std::min(*before.lastSeen, m_clock.now()) <= stored;
        if (file.isFromAnotherThan(m_files.device()) && isLater) {
            m_values->setOthers({stored, file.writer()});
        }
    }

    void restartPauses() {
        m_pause = m_firstRetry;
        // The pause that goes on is not the one.
        ++m_pauseNumber;
        m_isRetrying = false;
    }

    void retryLater() {
        if (m_hasEnded || std::exchange(m_isRetrying, true)) {
            return;
        }
        m_queue->asyncAfter(m_pause, [weakly = weak_from_this(), number = m_pauseNumber] {
            const auto self = weakly.lock();
            if (self && self->m_pauseNumber == number) {
                self->m_isRetrying = false;
                self->m_pause = std::min(2 * self->m_pause, self->m_longestRetry);
                self->finish();
            }
        });
    }

    /// Folders of networks do not report what other machines change in them, nor is a mount reported.
    void lookLater() {
        if (m_hasEnded || std::exchange(m_isLooking, true)) {
            return;
        }
        m_queue->asyncAfter(kLookInterval, [weakly = weak_from_this()] {
            if (const auto self = weakly.lock()) {
                self->m_isLooking = false;
                self->look();
            }
        });
    }

    void tellState() {
        const SharedValues::Others others = m_values->others();
        SharedStoreState now{.connection = SharedStoreConnection::Connected};
        if (m_fault != Fault::None) {
            now.connection = SharedStoreConnection::Offline;
            now.reason = u"The folder is not there, or it cannot be written."_s;
        }
        {
            const std::lock_guard lock(m_guard);
            now.isRead = m_isRead;
            now.lastSeen = others.lastSeen;
            now.device = others.lastWriter;
            if (std::exchange(m_state, now) == now) {
                return;
            }
        }
        m_mainQueue.async([weak = m_observers] {
            if (const auto observers = weak.lock(); observers && observers->state) {
                observers->state();
            }
        });
    }

    const std::chrono::milliseconds m_firstRetry;
    const std::chrono::milliseconds m_longestRetry;
    const std::shared_ptr<SharedValues> m_values;
    const std::weak_ptr<Observers> m_observers;
    const Clock& m_clock;
    DispatchQueue& m_mainQueue;
    const std::shared_ptr<DispatchQueue> m_queue;
    /// Of the main thread.
    const std::shared_ptr<QObject> m_context = makeContext();
    std::atomic<bool> m_isAwake = false;
    std::atomic<bool> m_mayWrite = true;

    KeyValueFiles m_files;
    Fault m_fault = Fault::None;
    std::chrono::milliseconds m_pause = m_firstRetry;
    int m_pauseNumber = 0;
    bool m_isRetrying = false;
    bool m_isLooking = false;
    bool m_hasEnded = false;
    bool m_isRead = false;
    /// Device and inode of the watched folder; zeros while it is missing.
    std::pair<std::uint64_t, std::uint64_t> m_watched;
    std::unique_ptr<FolderTreeWatch> m_watch;

    mutable std::mutex m_guard;
    // guarded
    SharedStoreState m_state;
};

SharedFolderKeyValueStore::SharedFolderKeyValueStore(const SharedFolderOptions& options, const Clock& clock,
                                                     DispatchQueues& queues)
    : m_observers(std::make_shared<Observers>())
    , m_values(std::make_shared<SharedValues>(
          localFile(options), options.folder,
          queues.makeQueue("sharedValues", QueueKind::Serial, QueuePriority::Background)))
    , m_queue(queues.makeQueue("sharedFolder", QueueKind::Serial, QueuePriority::Background)) {
    if (options.joins) {
        m_values->clear();
    }
    m_exchange =
        std::make_shared<Exchange>(options, m_values, m_observers, clock, queues.mainQueue(), m_queue);
    m_exchange->send();
}

SharedFolderKeyValueStore::~SharedFolderKeyValueStore() {
    m_values->save();
    // Not here: the folder may not answer.
    m_queue->async([exchange = m_exchange] { exchange->end(); });
}

std::optional<QCborValue> SharedFolderKeyValueStore::valueForKey(const QString& key) const {
    return m_values->value(key);
}

bool SharedFolderKeyValueStore::set(const QString& key, const QCborValue& value,
                                    SharedValues::Yields yields) {
    const SharedValues::SetOutcome outcome = m_values->set(key, value, kMostBytes, yields);
    if (outcome == SharedValues::SetOutcome::Changed) {
        m_values->saveSoon();
        m_exchange->send();
    }
    return outcome != SharedValues::SetOutcome::Refused;
}

bool SharedFolderKeyValueStore::setValue(const QString& key, const QCborValue& value) {
    return set(key, value, SharedValues::Yields::No);
}

bool SharedFolderKeyValueStore::setMissingValue(const QString& key, const QCborValue& value) {
    return valueForKey(key) ||
           set(key, value, sharedState().isRead ? SharedValues::Yields::No : SharedValues::Yields::Yes);
}

void SharedFolderKeyValueStore::removeKey(const QString& key) {
    m_values->removeAnyway(key);
    m_values->saveSoon();
    m_exchange->send();
}

void SharedFolderKeyValueStore::setObserver(KeyValueStoreObserver* observer) {
    m_observers->values = observer;
}

SharedStoreState SharedFolderKeyValueStore::sharedState() const {
    return m_exchange->state();
}

void SharedFolderKeyValueStore::setStateObserver(std::function<void()> changed) {
    m_observers->state = std::move(changed);
}

void SharedFolderKeyValueStore::setDevice(const QString& device) {
    m_queue->async([exchange = m_exchange, device] { exchange->setDevice(device); });
}

void SharedFolderKeyValueStore::retryNow() {
    m_exchange->retryNow();
}

bool SharedFolderKeyValueStore::finishWriting(std::chrono::milliseconds atMost) {
    DispatchGroup group;
    group.async(*m_queue, [exchange = m_exchange] { exchange->finish(); });
    return group.wait(atMost) && m_values->changesToSend().empty();
}

void SharedFolderKeyValueStore::forget() {
    m_values->forget(SharedValues::Keeps::Nothing);
}

} // namespace guide
