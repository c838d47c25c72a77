#include "core/TVChannels.h"

#include "core/SelectionFile.h"
#include "platform/archive/Archive.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDebug>
#include <QFile>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

using ChannelMap = std::unordered_map<ObjectId, std::shared_ptr<TVChannel>>;

constexpr qint64 kMostBytes = 1 << 20;

QString mirrorKey() {
    return u"SelectedChannels"_s;
}

} // namespace

struct TVChannels::State final : CatalogueObserver, std::enable_shared_from_this<State> {
    /// The selection and its records, immutable once published.
    struct Snapshot {
        std::vector<ObjectId> selected;
        ChannelMap channels;
    };
    using SharedSnapshot = std::shared_ptr<const Snapshot>;

    QString path;
    QString cachesFolder;
    const bool writable;
    KeyValueStore& keyValueStore;
    const Catalogue& catalogue;
    const std::shared_ptr<DispatchQueue> writer;

    std::mutex guard;
    SharedSnapshot current; // guarded; null until the first read
    bool unwritten = false; // guarded
    bool damaged = false;   // guarded; the file has to be kept when it is replaced

    State(const Folders& folders, KeyValueStore& ownKeyValueStore, DispatchQueues& queues,
          const Catalogue& ownCatalogue)
        : path(folders.documents + u"/selectedChannels.plist"_s)
        , cachesFolder(folders.caches)
        , writable(folders.writable)
        , keyValueStore(ownKeyValueStore)
        , catalogue(ownCatalogue)
        , writer(queues.makeQueue("selected", QueueKind::Serial, QueuePriority::Default)) {}

    void catalogueReplaced() override {
        const std::lock_guard lock(guard);
        if (current) {
            current = makeSnapshot(current->selected, current.get());
        }
    }

    SharedSnapshot makeSnapshot(std::vector<ObjectId> selected, const Snapshot* previous) const {
        const SharedCatalogueSnapshot channels = catalogue.snapshot();
        auto snapshot = std::make_shared<Snapshot>();
        snapshot->channels.reserve(selected.size());
        for (const ObjectId& id : selected) {
            if (std::shared_ptr<TVChannel> channel = recordOf(id, *channels, previous)) {
                snapshot->channels.emplace(id, std::move(channel));
            }
        }
        snapshot->selected = std::move(selected);
        return snapshot;
    }

    std::shared_ptr<TVChannel> recordOf(const ObjectId& id, const CatalogueSnapshot& channels,
                                        const Snapshot* previous) const {
        const CatalogueChannel* channel = channels.find(id);
        if (!channel) {
            return nullptr;
        }
        std::shared_ptr<TVChannel> earlier;
        if (previous) {
            const auto known = previous->channels.find(id);
            if (known != previous->channels.end()) {
                earlier = known->second;
            }
        }
        if (earlier && earlier->catalogueChannel() == *channel) {
            return earlier;
        }
        qDebug().noquote().nospace() << "channelID=" << id.hex() << " put...";
        auto record = std::make_shared<TVChannel>(*channel, cachesFolder);
        if (earlier) {
            record->takeLoadStateFrom(*earlier);
        }
        qDebug().noquote().nospace() << "channelID=" << id.hex() << " did put.";
        return record;
    }

    // Holds the guard while reading, so that the file is read only once.
    SharedSnapshot snapshot() {
        const std::lock_guard lock(guard);
        if (!current) {
            current = makeSnapshot(readSelection(), nullptr);
        }
        return current;
    }

    // Under the guard. The key-value store holds a copy for a file that is damaged; a file that is missing
    // has never been written.
    std::vector<ObjectId> readSelection() {
        const std::optional<QByteArray> content = fileContent(path, kMostBytes);
        auto selected = content ? selectionOfFile(*content) : std::nullopt;
        if (!selected) {
            qInfo("TVChannels: selectedChannels returned nil");
            damaged = QFile::exists(path);
            selected = damaged
                           ? selectionOfValue(keyValueStore.valueForKey(mirrorKey()).value_or(QCborValue()))
                           : std::nullopt;
            if (!selected) {
                return {};
            }
            qWarning().noquote() << "TVChannels:" << path << "is damaged, using the copy";
            setUnwritten();
        }
        qInfo().noquote().nospace() << "TVChannels: channelArray.count=" << selected->size();
        return *std::move(selected);
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

    // On the writer queue. Writes the newest selection, so that several changes in a row cost one write.
    bool write() {
        SharedSnapshot newest;
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
        const QCborValue value = selectionValue(newest->selected);
        if (!replaceFile(path, archivedData(value))) {
            qWarning().noquote() << "TVChannels: cannot write" << path;
            return false;
        }
        keyValueStore.setValue(mirrorKey(), value);
        const std::lock_guard lock(guard);
        unwritten = current->selected != newest->selected;
        return true;
    }
};

TVChannels::TVChannels(const Folders& folders, KeyValueStore& keyValueStore, DispatchQueues& queues,
                       const Catalogue& catalogue)
    : m_state(std::make_shared<State>(folders, keyValueStore, queues, catalogue)) {
    catalogue.addObserver(*m_state);
}

TVChannels::~TVChannels() {
    m_state->catalogue.removeObserver(*m_state);
    finishWriting();
    // Leaves nothing to write for a block that is still queued.
    const std::lock_guard lock(m_state->guard);
    m_state->unwritten = false;
}

std::vector<ObjectId> TVChannels::selected() const {
    return m_state->snapshot()->selected;
}

void TVChannels::setSelected(std::vector<ObjectId> selected) {
    qInfo().noquote().nospace() << "TVChannels: newSelectedCount=" << selected.size();
    const std::lock_guard lock(m_state->guard);
    const State::SharedSnapshot previous = m_state->current;
    if (previous && previous->selected == selected) {
        return;
    }
    m_state->current = m_state->makeSnapshot(std::move(selected), previous.get());
    m_state->setUnwritten();
}

std::shared_ptr<TVChannel> TVChannels::channelWithChannelId(const ObjectId& channel) const {
    const State::SharedSnapshot snapshot = m_state->snapshot();
    const auto found = snapshot->channels.find(channel);
    return found == snapshot->channels.end() ? nullptr : found->second;
}

void TVChannels::retryWriting() {
    m_state->submitWrite();
}

bool TVChannels::finishWriting() {
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
