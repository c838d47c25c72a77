#include "alarms/TVShows.h"

#include "alarms/FavoritesFile.h"
#include "core/SelectionFile.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDebug>
#include <QFile>

#include <mutex>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = 16 << 20;

QString mirrorKey() {
    return u"Favorites"_s;
}

} // namespace

struct TVShows::State final : std::enable_shared_from_this<State> {
    using Snapshot = std::shared_ptr<const FavoritesSnapshot>;

    const QString path;
    const bool writable;
    KeyValueStore& keyValueStore;
    const std::shared_ptr<DispatchQueue> writer;
    const Snapshot none = std::make_shared<const FavoritesSnapshot>();

    std::mutex guard;
    Snapshot current;       // guarded; null until the first successful read
    bool unwritten = false; // guarded
    bool damaged = false;   // guarded; the file has to be kept when it is replaced

    State(const Folders& folders, KeyValueStore& ownKeyValueStore, DispatchQueues& queues)
        : path(folders.documents + u"/favorites.plist"_s)
        , writable(folders.writable)
        , keyValueStore(ownKeyValueStore)
        , writer(queues.makeQueue("favorites", QueueKind::Serial, QueuePriority::Default)) {}

    // Under the guard. The file of an intact profile is not written again: its rules may be older than those
    // that another device has mirrored.
    void read() {
        const std::optional<QByteArray> content = fileContent(path, kMostBytes);
        std::optional<std::vector<Favorite>> rules = content ? favoritesOfFile(*content) : std::nullopt;
        damaged = !rules && QFile::exists(path);
        if (damaged) {
            rules = favoritesOfMirror(keyValueStore.valueForKey(mirrorKey()).value_or(QCborValue()));
            qWarning().noquote() << "TVShows:" << path
                                 << (rules ? "is damaged, using the copy" : "is damaged");
        }
        if (!rules) {
            return;
        }
        current = std::make_shared<const FavoritesSnapshot>(*std::move(rules));
        if (damaged || !keyValueStore.valueForKey(mirrorKey())) {
            setUnwritten();
        }
    }

    // Under the guard.
    void setUnwritten() {
        unwritten = writable;
        submitWrite();
    }

    void submitWrite() {
        if (writable) {
            writer->asyncBarrier([state = shared_from_this()] { state->write(); });
        }
    }

    // On the writer queue. Writes the newest rules, so that several changes in a row cost one write.
    bool write() {
        Snapshot newest;
        bool keep = false;
        {
            const std::lock_guard lock(guard);
            if (!unwritten) {
                return true;
            }
            newest = current;
            keep = std::exchange(damaged, false);
        }
        if (keep) {
            keepDamagedFile(path);
        }
        if (!replaceFile(path, favoritesFileContent(newest->rules()))) {
            qWarning().noquote() << "TVShows: cannot write" << path;
            return false;
        }
        keyValueStore.setValue(mirrorKey(), favoritesMirror(newest->rules()));
        const std::lock_guard lock(guard);
        unwritten = current != newest;
        return true;
    }
};

TVShows::TVShows(const Folders& folders, KeyValueStore& keyValueStore, DispatchQueues& queues)
    : m_state(std::make_shared<State>(folders, keyValueStore, queues)) {}

TVShows::~TVShows() {
    finishWriting();
    // Leaves nothing to write for a block that is still queued.
    const std::lock_guard lock(m_state->guard);
    m_state->unwritten = false;
}

std::optional<std::vector<Favorite>> TVShows::favorites() {
    const std::lock_guard lock(m_state->guard);
    if (!m_state->current) {
        m_state->read();
    }
    return m_state->current ? std::optional(m_state->current->rules()) : std::nullopt;
}

void TVShows::setFavorites(std::vector<Favorite> rules) {
    const std::lock_guard lock(m_state->guard);
    if (!m_state->current) {
        // Finds out whether there is a damaged file to keep.
        m_state->read();
    }
    const bool modified = !m_state->current || m_state->current->rules() != rules;
    qInfo("newFavorites: modified=%s", modified ? "true" : "false");
    if (!modified) {
        return;
    }
    m_state->current = std::make_shared<const FavoritesSnapshot>(std::move(rules));
    m_state->setUnwritten();
}

std::shared_ptr<const FavoritesSnapshot> TVShows::snapshot() const {
    const std::lock_guard lock(m_state->guard);
    return m_state->current ? m_state->current : m_state->none;
}

void TVShows::retryWriting() {
    m_state->submitWrite();
}

bool TVShows::finishWriting() {
    {
        const std::lock_guard lock(m_state->guard);
        if (!m_state->unwritten) {
            return true;
        }
    }
    std::optional<bool> written;
    m_state->writer->sync([this, &written] { written = m_state->write(); });
    // After the queues have shut down the block is dropped and no other thread writes.
    return written ? *written : m_state->write();
}

} // namespace guide
