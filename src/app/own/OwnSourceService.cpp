#include "app/own/OwnSourceService.h"

#include "app/own/ChosenChannels.h"
#include "app/own/PlaylistMatching.h"
#include "app/own/SourceSchedule.h"
#include "core/own/SourceAddress.h"
#include "sources/own/Grabber.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

/// What was fetched for a proposal. Its folder is deleted with it.
struct OwnSourceService::Content {
    QString folder;
    QString file;
    SourceAddress address;
    QByteArray etag;
    QByteArray lastModified;
    QString charset;
    /// What a program said.
    QString output;

    Content() = default;
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;
    ~Content() {
        if (!folder.isEmpty()) {
            QDir(folder).removeRecursively();
            // Fails while another proposal is there.
            QDir().rmdir(QFileInfo(folder).path());
        }
    }
};

/// What a block in the background works with.
struct OwnSourceService::Work {
    std::function<bool()> stopped;
    /// Tells the screens how far it is.
    std::function<void(int channels, std::int64_t bytes)> progress;
};

namespace {

/// A program rather than a document: it can be executed, and does not begin like a schedule or list.
bool isProgramFile(const QString& path) {
    const QFileInfo info(path);
    if (!info.isFile() || !info.isExecutable()) {
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray start = file.read(4);
    return start.startsWith("#!") || start == "\x7f"
                                              "ELF";
}

OwnSourceKind kindOf(const QString& address, SourceKind content) {
    if (!isWebAddress(address) && isProgramFile(address)) {
        return OwnSourceKind::Grabber;
    }
    return content == SourceKind::Playlist ? OwnSourceKind::Playlist : OwnSourceKind::Feed;
}

} // namespace

OwnSourceService::OwnSourceService(OwnSourceServiceEnvironment environment)
    : m_environment(std::move(environment))
    , m_queue(m_environment.queues.makeQueue("vorel.tv.ownSources.screens", QueueKind::Concurrent,
                                             QueuePriority::UserInitiated))
    , m_previews(m_queue) {
    // What an earlier run did not get to add.
    QDir(m_environment.caches + "/sources/proposals"_L1).removeRecursively();
}

OwnSourceService::~OwnSourceService() {
    *m_alive = false;
}

template <class Result>
SourceActions::Token OwnSourceService::inBackground(std::function<Result(const Work&)> make,
                                                    std::function<void(Result)> answer) {
    const auto token = std::make_shared<char>();
    const auto isDropped = [weak = std::weak_ptr<void>(token)] { return weak.expired(); };
    m_blocks.async(*m_queue, [this, make = std::move(make), answer = std::move(answer), isDropped,
                              alive = m_alive]() mutable {
        if (isDropped() || m_environment.stopped()) {
            return;
        }
        auto result = std::make_shared<Result>(
            make({.stopped = [this, isDropped] { return isDropped() || m_environment.stopped(); },
                  .progress = {}}));
        m_environment.queues.mainQueue().async(
            [answer = std::move(answer), result = std::move(result), isDropped, alive] {
                if (*alive && !isDropped()) {
                    answer(std::move(*result));
                }
            });
    });
    return token;
}

SourceActions::Token OwnSourceService::isProgram(const QString& input, std::function<void(bool)> answered) {
    return inBackground<bool>(
        [input](const Work&) {
            const auto address = sourceAddress(input);
            return address && !isWebAddress(address->open) && isProgramFile(address->open);
        },
        std::move(answered));
}

std::optional<QString> OwnSourceService::newHostOf(const QString& input) const {
    const auto address = sourceAddress(input);
    const QString host = address ? hostOfAddress(address->open) : QString();
    const SharedOwnSources sources = m_environment.sources.snapshot();
    const bool isKnown = host.isEmpty() || m_agreedHosts.contains(host) ||
                         std::ranges::any_of(*sources, [&host](const OwnSource& source) {
                             return hostOfAddress(source.address) == host;
                         });
    return isKnown ? std::nullopt : std::optional(host);
}

PreviewRequest OwnSourceService::previewRequest(const QString& charset, const QString& language,
                                                const Work& work) const {
    return {.now = m_environment.clock.now(),
            .zone = m_environment.device.timeZone(),
            .charset = charset,
            .language = language,
            .physicalMemory = m_environment.device.physicalMemory(),
            .stopped = work.stopped,
            .progress = work.progress};
}

SourceProposal OwnSourceService::proposal(const QString& input, const Work& work) const {
    SourceProposal proposal{
        .input = input, .kind = {}, .name = {}, .preview = {}, .detail = {}, .content = {}};
    const auto address = sourceAddress(input);
    if (!address) {
        proposal.preview.result = SourceResult::NoFile;
        return proposal;
    }
    const auto content = std::make_shared<Content>();
    content->address = *address;
    content->folder = m_environment.caches + "/sources/proposals/"_L1 + OwnSourceId::generate().hex();
    const QString whole = address->secret.isEmpty() ? address->open : address->secret;
    proposal.kind = kindOf(whole, SourceKind::Feed);
    proposal.name = nameOfAddress(address->open);
    if (!QDir().mkpath(content->folder)) {
        proposal.preview.result = SourceResult::NoRoom;
        return proposal;
    }
    const FetchedSource fetched =
        m_environment.fetcher.fetch({.kind = proposal.kind,
                                     .address = whole,
                                     .incoming = content->folder + "/content"_L1,
                                     .stopped = work.stopped,
                                     .progress = [&work](std::int64_t bytes) { work.progress(0, bytes); }});
    proposal.detail = fetched.detail;
    if (fetched.result != SourceResult::Read && fetched.result != SourceResult::Incomplete) {
        proposal.preview.result = fetched.result;
        return proposal;
    }
    content->file = fetched.path;
    content->etag = fetched.etag;
    content->lastModified = fetched.lastModified;
    content->charset = fetched.charset;
    content->output = fetched.output;
    proposal.preview = sourcePreview(fetched.path, previewRequest(fetched.charset, {}, work));
    proposal.kind = kindOf(whole, proposal.preview.kind);
    if (!proposal.preview.playlist.name.isEmpty()) {
        proposal.name = proposal.preview.playlist.name;
    }
    proposal.content = content;
    return proposal;
}

SourceActions::Token OwnSourceService::propose(const QString& input, Progress progress, Proposed proposed) {
    if (const auto host = newHostOf(input)) {
        m_agreedHosts.insert(*host);
    }
    const auto told = [this, progress = std::move(progress), alive = m_alive](int channels,
                                                                              std::int64_t bytes) {
        if (progress) {
            m_environment.queues.mainQueue().async([progress, channels, bytes, alive] {
                if (*alive) {
                    progress(channels, bytes);
                }
            });
        }
    };
    return inBackground<SourceProposal>(
        [this, input, told](const Work& work) {
            return proposal(input, {.stopped = work.stopped, .progress = told});
        },
        std::move(proposed));
}

std::shared_ptr<const SourcePreview> OwnSourceService::keptPreview(const OwnSource& source,
                                                                   const Work& work) const {
    const QString charset = m_environment.records.record(source.id).charset;
    const QString path = contentOf(source, m_environment.caches);
    const PreviewRequest request = previewRequest(charset, source.language, work);
    const auto preview = m_previews.previewOf(
        path, charset + u' ' + source.language, request.now, [&]() -> std::shared_ptr<const SourcePreview> {
            SourcePreview made = sourcePreview(path, request);
            return work.stopped() ? nullptr : std::make_shared<const SourcePreview>(std::move(made));
        });
    return preview ? preview : std::make_shared<const SourcePreview>();
}

SourceProposal OwnSourceService::keptProposal(const OwnSource& source, const Work& work) const {
    return {.input = source.address,
            .kind = source.kind,
            .name = source.name,
            .preview = *keptPreview(source, work),
            .detail = {},
            .content = {}};
}

SourceActions::Token OwnSourceService::proposeAgain(const OwnSourceId& source, Progress /*progress*/,
                                                    Proposed proposed) {
    return inBackground<SourceProposal>(
        [this, record = m_environment.sources.find(source)](const Work& work) {
            return record ? keptProposal(*record, work) : SourceProposal();
        },
        std::move(proposed));
}

SourceActions::Token OwnSourceService::findGrabbers(std::function<void(QStringList)> found) {
    return inBackground<QStringList>([](const Work&) { return guide::findGrabbers(); }, std::move(found));
}

OwnSourceId OwnSourceService::add(const SourceProposal& proposal, const OwnSource& settings,
                                  const QStringList& chosen, const std::vector<MatchedEntry>& matches) {
    OwnSource source = settings;
    source.id = OwnSourceId::generate();
    source.kind = proposal.kind;
    source.name = settings.name.isEmpty() ? proposal.name : settings.name;
    const auto content = std::static_pointer_cast<const Content>(proposal.content);
    SourceRecord record;
    if (content) {
        source.address = content->address.open;
        source.hasSecret = !content->address.secret.isEmpty();
        if (source.hasSecret) {
            // Nothing asks for it before the next try: the content is read from where it is kept.
            m_blocks.async(*m_queue, [this, id = source.id, secret = content->address.secret] {
                m_environment.fetcher.secrets().setSecret(secretKey(id), secret);
            });
        }
        const SourceFolder folder(m_environment.caches, source.id);
        if (content->file.startsWith(content->folder + u'/') && folder.create()) {
            std::rename(QFile::encodeName(content->file).constData(),
                        QFile::encodeName(folder.content()).constData());
        }
        record.etag = content->etag;
        record.lastModified = content->lastModified;
        record.charset = content->charset;
    }
    if (source.language.isEmpty()) {
        source.language = proposal.preview.commonLanguage();
    }
    source.channels = chosenChannels(source, proposal, chosen, matches);
    const SourcePreview& preview = proposal.preview;
    const Moment now = m_environment.clock.now();
    const bool isList = source.kind == OwnSourceKind::Playlist;
    const int entries = static_cast<int>(preview.playlist.entries.size());
    const bool isCut =
        std::ranges::find(preview.warnings, SourceWarning::Incomplete) != preview.warnings.end();
    const SourceResult result = isCut ? SourceResult::Incomplete : preview.result;
    record.status = {.result = result,
                     .detail = {},
                     .lastTry = now,
                     .lastSuccess = now,
                     .nextTry =
                         nextTryAfter({.result = result, .at = now}, source.interval, m_environment.random),
                     .channels = isList ? entries : static_cast<int>(preview.channels.size()),
                     .channelsWithShows = isList ? entries : preview.channelsWithShows,
                     .shows = preview.shows,
                     .newestShow = preview.last,
                     .unpackedBytes = preview.unpackedBytes,
                     .keptBack = {},
                     .missing = {},
                     .output = content ? content->output : QString()};
    m_environment.records.set(source.id, std::move(record));
    m_environment.sources.put(source);
    m_environment.select(idsOf(source));
    m_environment.updates.check();
    if (!isList) {
        matchWith(source.id, preview.channels);
    }
    return source.id;
}

void OwnSourceService::matchWith(const OwnSourceId& feed, const std::vector<PreviewChannel>& channels) {
    using Places = QHash<QString, std::size_t>;
    const SharedOwnSources sources = m_environment.sources.snapshot();
    const auto offered = std::make_shared<const std::vector<PreviewChannel>>(channels);
    for (const OwnSource& source : *sources) {
        const QSet<QString> wanting = channelsToMatch(source);
        if (wanting.isEmpty()) {
            continue;
        }
        m_matching[{source.id, feed}] = inBackground<Places>(
            [this, source, wanting, offered](const Work& work) {
                return clearMatches(keptPreview(source, work)->playlist, wanting, *offered);
            },
            [this, id = source.id, feed, offered](const Places& places) {
                m_matching.erase({id, feed});
                takeMatches(id, feed, *offered, places);
            });
    }
}

void OwnSourceService::takeMatches(const OwnSourceId& id, const OwnSourceId& feed,
                                   const std::vector<PreviewChannel>& channels,
                                   const QHash<QString, std::size_t>& places) {
    auto playlist = m_environment.sources.find(id);
    if (!playlist || !m_environment.sources.find(feed)) {
        return;
    }
    // The user may have decided meanwhile.
    const QSet<QString> wanting = channelsToMatch(*playlist);
    bool isChanged = false;
    for (OwnChannel& channel : playlist->channels) {
        const auto place = places.constFind(channel.key);
        if (place == places.cend() || !wanting.contains(channel.key)) {
            continue;
        }
        const PreviewChannel& guide = channels[*place];
        channel.guide = GuideChannel{feed, guide.id};
        if (!channel.languageCorrected && !guide.language.isEmpty()) {
            channel.language = guide.language;
        }
        isChanged = true;
    }
    if (isChanged) {
        update(*playlist);
    }
}

void OwnSourceService::choose(const OwnSourceId& id, const SourceProposal& proposal,
                              const QStringList& chosen, const std::vector<MatchedEntry>& matches) {
    if (auto source = m_environment.sources.find(id)) {
        source->channels = chosenChannels(*source, proposal, chosen, matches);
        update(*source);
    }
}

void OwnSourceService::update(const OwnSource& source) {
    const auto before = m_environment.sources.find(source.id);
    if (!before) {
        return;
    }
    const std::vector<ObjectId> earlier = idsOf(*before);
    const std::vector<ObjectId> now = idsOf(source);
    // Before they leave the catalogue, so that their removal can be undone.
    if (const auto gone = without(earlier, now); !gone.empty()) {
        m_environment.unselect(gone);
    }
    m_environment.sources.put(source);
    if (const auto added = without(now, earlier); !added.empty()) {
        m_environment.select(added);
    }
    m_environment.updates.readAgain(toReadAgain(*before, source));
}

void OwnSourceService::remove(const OwnSourceId& source) {
    const auto record = m_environment.sources.find(source);
    if (!record) {
        return;
    }
    m_environment.forget(idsOf(*record));
    m_environment.sources.remove(source);
    m_environment.records.remove(source);
    m_blocks.async(*m_queue, [this, source, hasSecret = record->hasSecret] {
        SourceFolder(m_environment.caches, source).remove();
        m_environment.pictures.removeAll(source);
        if (hasSecret) {
            m_environment.fetcher.secrets().removeSecret(secretKey(source));
        }
    });
}

void OwnSourceService::setAddress(const OwnSourceId& id, const QString& typed) {
    auto source = m_environment.sources.find(id);
    const auto address = sourceAddress(typed);
    if (!source || !address) {
        return;
    }
    source->address = address->open;
    source->hasSecret = !address->secret.isEmpty();
    SourceRecord record = m_environment.records.record(id);
    record.etag.clear();
    record.lastModified.clear();
    record.status.lastTry.reset();
    // What was read from the other address says nothing about how rich this one is.
    record.status.lastSuccess.reset();
    record.status.channelsWithShows = 0;
    m_environment.records.set(id, std::move(record));
    m_environment.sources.put(*source);
    m_blocks.async(*m_queue, [this, id, secret = address->secret] {
        if (secret.isEmpty()) {
            m_environment.fetcher.secrets().removeSecret(secretKey(id));
        } else {
            m_environment.fetcher.secrets().setSecret(secretKey(id), secret);
        }
        m_environment.updates.askNow({id});
    });
}

void OwnSourceService::refresh(const OwnSourceId& source) {
    m_environment.updates.askNow({source});
}

SourceActions::Token OwnSourceService::match(const Playlist& playlist,
                                             const std::vector<GuideCorrection>& corrections,
                                             const std::vector<OwnSourceId>& feeds,
                                             std::function<void(std::vector<MatchedEntry>)> matched) {
    const SharedOwnSources sources = m_environment.sources.snapshot();
    return inBackground<std::vector<MatchedEntry>>(
        [this, playlist, corrections, feeds, sources](const Work& work) {
            std::vector<FeedToMatch> read;
            for (const OwnSource& source : *sources) {
                const bool isWanted = source.kind != OwnSourceKind::Playlist &&
                                      (feeds.empty() || std::ranges::find(feeds, source.id) != feeds.end());
                if (isWanted && !work.stopped()) {
                    read.push_back({source.id, keptPreview(source, work)});
                }
            }
            return matchedEntries(playlist, corrections, read);
        },
        std::move(matched));
}

SourceActions::Token OwnSourceService::channelsOf(const OwnSourceId& feed,
                                                  std::function<void(std::vector<PreviewChannel>)> answered) {
    return inBackground<std::vector<PreviewChannel>>(
        [this, record = m_environment.sources.find(feed)](const Work& work) {
            return record ? keptPreview(*record, work)->channels : std::vector<PreviewChannel>();
        },
        std::move(answered));
}

SourceStatus OwnSourceService::status(const OwnSourceId& source) const {
    return m_environment.records.record(source).status;
}

bool OwnSourceService::hasPicture(const OwnSourceId& source, const QString& channel) const {
    return m_environment.pictures.pathOf(source, ownChannelId(source, channel)).has_value();
}

SourceActions::Token OwnSourceService::setPicture(const OwnSourceId& source, const QString& channel,
                                                  const QString& file, std::function<void(bool)> answered) {
    const ObjectId id = ownChannelId(source, channel);
    return inBackground<bool>(
        [this, source, id, file](const Work&) { return m_environment.pictures.set(source, id, file); },
        [this, answered = std::move(answered)](bool isSet) {
            if (isSet) {
                m_environment.fetchIcons();
            }
            answered(isSet);
        });
}

void OwnSourceService::removePicture(const OwnSourceId& source, const QString& channel) {
    m_environment.pictures.remove(source, ownChannelId(source, channel));
    m_environment.fetchIcons();
}

void OwnSourceService::setIconsFromOtherHosts(bool on) {
    m_environment.settings.setIconsFromOtherHosts(on);
    m_environment.fetchIcons();
}

} // namespace guide
