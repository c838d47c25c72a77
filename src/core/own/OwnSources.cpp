#include "core/own/OwnSources.h"

#include "core/MirroredFile.h"
#include "core/own/OwnSourceArchive.h"
#include "core/own/SourceAddress.h"
#include "platform/archive/Archive.h"

#include <algorithm>
#include <mutex>
#include <unordered_set>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = 256LL << 20;

/// That of the channel, of its source, or of the feed that its schedule comes from.
QString languageOf(const OwnSource& source, const OwnChannel& channel, const OwnSourceList& sources) {
    if (!channel.language.isEmpty() || !source.language.isEmpty() || !channel.guide) {
        return channel.language.isEmpty() ? source.language : channel.language;
    }
    const auto feed = std::ranges::find(sources, channel.guide->source, &OwnSource::id);
    return feed == sources.end() ? QString() : feed->language;
}

CatalogueChannel catalogueChannel(const OwnSource& source, const OwnChannel& channel,
                                  const OwnSourceList& sources) {
    const ObjectId id = ownChannelId(source.id, channel.key);
    CatalogueChannel made{.id = id,
                          .title = channel.title,
                          .language = languageOf(source, channel, sources),
                          .region = {},
                          .icon = ownIconName(id)};
    if (!channel.stream.isEmpty()) {
        made.stream = channel.stream;
    }
    return made;
}

/// Takes away what refers to a source that is gone.
void forgetGuide(OwnSource& source, const OwnSourceId& gone) {
    for (OwnChannel& channel : source.channels) {
        if (channel.guide && channel.guide->source == gone) {
            channel.guide.reset();
        }
    }
    std::erase_if(source.corrections, [&gone](const GuideCorrection& correction) {
        return correction.guide && correction.guide->source == gone;
    });
}

/// Streams of a playlist often hold a password; another device reads them from the playlist again.
StoredSources withoutSecrets(StoredSources stored) {
    for (OwnSource& source : stored.sources) {
        for (OwnChannel& channel : source.channels) {
            const auto address = sourceAddress(channel.stream);
            if (source.hasSecret || !address || !address->secret.isEmpty()) {
                channel.stream.clear();
            }
        }
    }
    return stored;
}

} // namespace

struct OwnSources::State {
    /// Immutable once published.
    struct Snapshot {
        StoredSources stored;
        std::unordered_set<ObjectId> removedChannels;
    };

    MirroredFile file;
    std::function<void()> changed;
    mutable std::mutex guard;
    std::shared_ptr<const Snapshot> current; // guarded

    State(const Folders& folders, KeyValueStore& keyValueStore, DispatchQueues& queues)
        : file({folders.documents + u"/ownSources.plist"_s, kOwnSourcesKey, kMostBytes, folders.writable},
               keyValueStore, queues.makeQueue("ownSources", QueueKind::Serial, QueuePriority::Default)) {
        StoredSources stored;
        const auto take = [&stored](const QCborValue& value) {
            auto read = ownSourcesOfValue(value);
            if (!read) {
                return false;
            }
            stored = *std::move(read);
            return true;
        };
        const MirroredFile::Found found = file.read(
            [&take](const QByteArray& content) {
                const auto root = unarchivedRoot(content);
                return root && take(*root);
            },
            take);
        publish(std::move(stored));
        if (found == MirroredFile::Found::Copy || (found == MirroredFile::Found::File && file.wasRefused())) {
            file.write(content());
        } else if (found == MirroredFile::Found::File && !file.hasCopy()) {
            // The copy may only be out of reach, and newer.
            file.writeMissing(content());
        }
    }

    std::shared_ptr<const Snapshot> snapshot() const {
        const std::lock_guard lock(guard);
        return current;
    }

    // Under the guard, or before anything else sees the object.
    void publish(StoredSources stored) {
        auto snapshot = std::make_shared<Snapshot>();
        for (const RemovedSource& removed : stored.removed) {
            snapshot->removedChannels.insert(removed.channels.begin(), removed.channels.end());
        }
        snapshot->stored = std::move(stored);
        current = std::move(snapshot);
    }

    // Under the guard, or before anything else sees the object.
    std::function<MirroredFile::Content()> content() const {
        return [written = current] {
            return MirroredFile::Content{archivedData(ownSourcesValue(written->stored)),
                                         ownSourcesValue(withoutSecrets(written->stored))};
        };
    }

    /// Shares again what another device does not know: a process may have ended before it was shared.
    void shareWhatLacks(const StoredSources& other) {
        const auto lacks = [](const auto& theirs, const auto& ours, auto id) {
            return std::ranges::any_of(ours, [&](const auto& each) {
                return std::ranges::find(theirs, std::invoke(id, each), id) == theirs.end();
            });
        };
        const std::lock_guard lock(guard);
        const StoredSources& stored = current->stored;
        if (lacks(other.sources, stored.sources, &OwnSource::id) ||
            lacks(other.removed, stored.removed, &RemovedSource::id)) {
            file.write(content());
        }
    }

    /// Replaces the records by what `change` makes of them.
    template <class Change>
    bool update(const Change& change) {
        {
            const std::lock_guard lock(guard);
            StoredSources stored = current->stored;
            change(stored);
            if (stored == current->stored) {
                return false;
            }
            publish(std::move(stored));
            file.write(content());
        }
        if (changed) {
            changed();
        }
        return true;
    }
};

OwnSources::OwnSources(const Folders& folders, KeyValueStore& keyValueStore, DispatchQueues& queues)
    : m_state(std::make_unique<State>(folders, keyValueStore, queues)) {}

OwnSources::~OwnSources() = default;

SharedOwnSources OwnSources::snapshot() const {
    const auto snapshot = m_state->snapshot();
    return {snapshot, &snapshot->stored.sources};
}

std::optional<OwnSource> OwnSources::find(const OwnSourceId& id) const {
    const SharedOwnSources sources = snapshot();
    const auto found = std::ranges::find(*sources, id, &OwnSource::id);
    return found == sources->end() ? std::nullopt : std::optional(*found);
}

void OwnSources::put(OwnSource source) {
    m_state->update([&source](StoredSources& stored) {
        const auto known = std::ranges::find(stored.sources, source.id, &OwnSource::id);
        if (known == stored.sources.end()) {
            stored.sources.push_back(std::move(source));
        } else {
            *known = std::move(source);
        }
    });
}

void OwnSources::remove(const OwnSourceId& id) {
    m_state->update([&id](StoredSources& stored) {
        const auto known = std::ranges::find(stored.sources, id, &OwnSource::id);
        if (known == stored.sources.end()) {
            return;
        }
        RemovedSource removed{.id = id, .channels = {}};
        for (const OwnChannel& channel : known->channels) {
            removed.channels.push_back(ownChannelId(id, channel.key));
        }
        stored.sources.erase(known);
        stored.removed.push_back(std::move(removed));
        std::ranges::for_each(stored.sources, [&id](OwnSource& source) { forgetGuide(source, id); });
    });
}

bool OwnSources::isRemoved(const ObjectId& channel) const {
    return m_state->snapshot()->removedChannels.contains(channel);
}

std::vector<CatalogueChannel> OwnSources::catalogueChannels() const {
    std::vector<CatalogueChannel> channels;
    const SharedOwnSources sources = snapshot();
    for (const OwnSource& source : *sources) {
        for (const OwnChannel& channel : source.channels) {
            channels.push_back(catalogueChannel(source, channel, *sources));
        }
    }
    return channels;
}

bool OwnSources::takeFrom(const QCborValue& value) {
    const std::optional<StoredSources> other = ownSourcesOfValue(value);
    if (!other) {
        return false;
    }
    const bool isChanged = m_state->update([&other](StoredSources& stored) {
        for (const RemovedSource& removed : other->removed) {
            if (std::ranges::find(stored.removed, removed.id, &RemovedSource::id) == stored.removed.end()) {
                stored.removed.push_back(removed);
            }
        }
        for (const OwnSource& source : other->sources) {
            if (std::ranges::find(stored.sources, source.id, &OwnSource::id) == stored.sources.end()) {
                stored.sources.push_back(source);
            }
        }
        for (const RemovedSource& removed : stored.removed) {
            std::erase_if(stored.sources,
                          [&removed](const OwnSource& source) { return source.id == removed.id; });
            std::ranges::for_each(stored.sources,
                                  [&removed](OwnSource& source) { forgetGuide(source, removed.id); });
        }
    });
    if (!isChanged) {
        m_state->shareWhatLacks(*other);
    }
    return isChanged;
}

void OwnSources::setObserver(std::function<void()> changed) {
    m_state->changed = std::move(changed);
}

bool OwnSources::finishWriting() {
    return m_state->file.finishWriting();
}

QString ownIconName(const ObjectId& channel) {
    return "own/"_L1 + channel.hex();
}

} // namespace guide
