#include "core/TVChannels.h"

#include "platform/archive/Archive.h"
#include "platform/files/FileReplacement.h"

#include <QCborArray>
#include <QDebug>
#include <QFile>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

using ChannelMap = std::unordered_map<ObjectId, std::shared_ptr<TVChannel>>;

QCborArray encodedSelection(const std::vector<ObjectId>& selected) {
    QCborArray array;
    for (const ObjectId& id : selected) {
        array.append(id.data());
    }
    return array;
}

std::vector<ObjectId> readSelection(const QString& path) {
    QFile file(path);
    const std::optional<QCborValue> root =
        file.open(QIODevice::ReadOnly) ? unarchivedRoot(file.readAll()) : std::nullopt;
    if (!root || !root->isArray()) {
        qInfo("TVChannels: selectedChannels returned nil");
        return {};
    }
    const QCborArray array = root->toArray();
    qInfo().noquote().nospace() << "TVChannels: channelArray.count=" << array.size();
    std::vector<ObjectId> selected;
    selected.reserve(static_cast<std::size_t>(array.size()));
    for (const auto& value : array) {
        if (value.isByteArray()) {
            selected.emplace_back(value.toByteArray());
        }
    }
    return selected;
}

} // namespace

struct TVChannels::State final : CatalogueObserver {
    /// The selection and its records, immutable once published.
    struct Snapshot {
        std::vector<ObjectId> selected;
        ChannelMap channels;
    };
    using SharedSnapshot = std::shared_ptr<const Snapshot>;

    QString path;
    QString cachesFolder;
    KeyValueStore& keyValueStore;
    const Catalogue& catalogue;

    std::mutex guard;
    SharedSnapshot current; // guarded; null until the first read
    bool unwritten = false; // guarded

    State(const Folders& folders, KeyValueStore& ownKeyValueStore, const Catalogue& ownCatalogue)
        : path(folders.documents + u"/selectedChannels.plist"_s)
        , cachesFolder(folders.caches)
        , keyValueStore(ownKeyValueStore)
        , catalogue(ownCatalogue) {}

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
            current = makeSnapshot(readSelection(path), nullptr);
        }
        return current;
    }

    // On the writer queue. Writes the newest selection, so that several changes in a row cost one write.
    bool write() {
        SharedSnapshot newest;
        {
            const std::lock_guard lock(guard);
            if (!unwritten) {
                return true;
            }
            newest = current;
        }
        const QCborArray array = encodedSelection(newest->selected);
        if (!replaceFile(path, archivedData(array))) {
            qWarning().noquote() << "TVChannels: cannot write" << path;
            return false;
        }
        keyValueStore.setValue(u"SelectedChannels"_s, array);
        const std::lock_guard lock(guard);
        unwritten = current->selected != newest->selected;
        return true;
    }
};

TVChannels::TVChannels(const Folders& folders, KeyValueStore& keyValueStore, DispatchQueues& queues,
                       const Catalogue& catalogue)
    : m_writer(queues.makeQueue("selected", QueueKind::Serial, QueuePriority::Default))
    , m_state(std::make_shared<State>(folders, keyValueStore, catalogue)) {
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
    {
        const std::lock_guard lock(m_state->guard);
        const State::SharedSnapshot previous = m_state->current;
        if (previous && previous->selected == selected) {
            return;
        }
        m_state->current = m_state->makeSnapshot(std::move(selected), previous.get());
        m_state->unwritten = true;
    }
    m_writer->asyncBarrier([state = m_state] { state->write(); });
}

std::shared_ptr<TVChannel> TVChannels::channelWithChannelId(const ObjectId& channel) const {
    const State::SharedSnapshot snapshot = m_state->snapshot();
    const auto found = snapshot->channels.find(channel);
    return found == snapshot->channels.end() ? nullptr : found->second;
}

void TVChannels::retryWriting() {
    m_writer->asyncBarrier([state = m_state] { state->write(); });
}

bool TVChannels::finishWriting() {
    {
        const std::lock_guard lock(m_state->guard);
        if (!m_state->unwritten) {
            return true;
        }
    }
    std::optional<bool> written;
    m_writer->sync([this, &written] { written = m_state->write(); });
    // After the queues have shut down the block is dropped and no other thread writes.
    return written ? *written : m_state->write();
}

} // namespace guide
