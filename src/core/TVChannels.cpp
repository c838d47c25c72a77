#include "core/TVChannels.h"

#include "core/MirroredFile.h"
#include "core/SelectionFile.h"
#include "platform/archive/Archive.h"

#include <QDebug>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

using ChannelMap = std::unordered_map<ObjectId, std::shared_ptr<TVChannel>>;

constexpr qint64 kMostBytes = 1 << 20;

} // namespace

struct TVChannels::State final : CatalogueObserver {
    /// The selection and its records, immutable once published.
    struct Snapshot {
        std::vector<ObjectId> selected;
        ChannelMap channels;
    };
    using SharedSnapshot = std::shared_ptr<const Snapshot>;

    const QString cachesFolder;
    const Catalogue& catalogue;
    MirroredFile file;

    std::mutex guard;
    SharedSnapshot current; // guarded; null until the first read

    State(const Folders& folders, KeyValueStore& keyValueStore, DispatchQueues& queues,
          const Catalogue& ownCatalogue)
        : cachesFolder(folders.caches)
        , catalogue(ownCatalogue)
        , file({folders.documents + u"/selectedChannels.plist"_s, u"SelectedChannels"_s, kMostBytes,
                folders.writable},
               keyValueStore, queues.makeQueue("selected", QueueKind::Serial, QueuePriority::Default)) {}

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
            read();
        }
        return current;
    }

    // Under the guard. A file that is missing has never been written.
    void read() {
        std::vector<ObjectId> selected;
        const auto take = [&selected](std::optional<std::vector<ObjectId>> ids) {
            if (ids) {
                selected = *std::move(ids);
                return true;
            }
            return false;
        };
        const MirroredFile::Found found =
            file.read([&take](const QByteArray& content) { return take(selectionOfFile(content)); },
                      [&take](const QCborValue& copy) { return take(selectionOfValue(copy)); });
        qInfo().noquote().nospace() << "TVChannels: channelArray.count=" << selected.size();
        current = makeSnapshot(std::move(selected), nullptr);
        if (found == MirroredFile::Found::Copy || (found == MirroredFile::Found::File && file.wasRefused())) {
            file.write(content());
        }
    }

    // Under the guard. False when the selection is equal.
    bool replace(std::vector<ObjectId> selected) {
        qInfo().noquote().nospace() << "TVChannels: newSelectedCount=" << selected.size();
        if (current && current->selected == selected) {
            return false;
        }
        current = makeSnapshot(std::move(selected), current.get());
        return true;
    }

    // Under the guard.
    std::function<MirroredFile::Content()> content() const {
        return [written = current] {
            const QCborValue value = selectionValue(written->selected);
            return MirroredFile::Content{archivedData(value), value};
        };
    }
};

TVChannels::TVChannels(const Folders& folders, KeyValueStore& keyValueStore, DispatchQueues& queues,
                       const Catalogue& catalogue)
    : m_state(std::make_unique<State>(folders, keyValueStore, queues, catalogue)) {
    catalogue.addObserver(*m_state);
}

TVChannels::~TVChannels() {
    m_state->catalogue.removeObserver(*m_state);
}

std::vector<ObjectId> TVChannels::selected() const {
    return m_state->snapshot()->selected;
}

void TVChannels::setSelected(std::vector<ObjectId> selected, Block before) {
    const std::lock_guard lock(m_state->guard);
    if (m_state->replace(std::move(selected))) {
        m_state->file.beforeWriting(std::move(before));
        m_state->file.write(m_state->content());
    }
}

void TVChannels::takeSelected(std::vector<ObjectId> selected, const QCborValue& stored, Block before) {
    const std::lock_guard lock(m_state->guard);
    if (m_state->replace(std::move(selected))) {
        m_state->file.beforeWriting(std::move(before));
        m_state->file.writeTaken(m_state->content(), stored);
    }
}

bool TVChannels::hasUnshared() const {
    return m_state->file.hasUnshared();
}

std::shared_ptr<TVChannel> TVChannels::channelWithChannelId(const ObjectId& channel) const {
    const State::SharedSnapshot snapshot = m_state->snapshot();
    const auto found = snapshot->channels.find(channel);
    return found == snapshot->channels.end() ? nullptr : found->second;
}

void TVChannels::retryWriting() {
    m_state->file.retryWriting();
}

bool TVChannels::finishWriting() {
    return m_state->file.finishWriting();
}

void TVChannels::removeDamaged() {
    m_state->file.removeDamaged();
}

} // namespace guide
