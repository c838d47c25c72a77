#include "app/own/OwnSourceLoad.h"

#include "app/LoadingMark.h"
#include "app/own/SourceSchedule.h"
#include "core/own/SourceAddress.h"
#include "parsers/own/SourcePreviewReader.h"
#include "parsers/playlists/PlaylistKeys.h"
#include "sources/SourceId.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <ranges>
#include <utility>

namespace guide {

namespace {

bool isContent(SourceResult result) {
    return result == SourceResult::Read || result == SourceResult::Incomplete;
}

/// In place of the other file.
bool moveFile(const QString& from, const QString& to) {
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

LoadItem loadItem(const OwnFeedItem& item) {
    return {item.channel, item.feedChannel, item.language};
}

} // namespace

std::vector<OwnFeedItem> ownFeedItems(const OwnSourceList& sources, const OwnSourceId& feed,
                                      const TVChannels& channels) {
    const auto owner = std::ranges::find(sources, feed, &OwnSource::id);
    const auto shift = owner == sources.end() ? std::chrono::minutes(0) : owner->shift;
    std::vector<OwnFeedItem> items;
    for (const OwnSource& source : sources) {
        for (const OwnChannel& channel : source.channels) {
            if (!channel.guide || channel.guide->source != feed) {
                continue;
            }
            const ObjectId id = ownChannelId(source.id, channel.key);
            if (const auto record = channels.channelWithChannelId(id)) {
                items.push_back({id, channel.guide->channel, record->language(), shift + channel.shift});
            }
        }
    }
    return items;
}

OwnSourceLoad::OwnSourceLoad(const OwnSourceUpdatesEnvironment& environment,
                             const std::atomic<bool>& cancelled, Plan plan)
    : m_environment(environment)
    , m_cancelled(cancelled)
    , m_plan(std::move(plan))
    , m_folder(environment.caches, m_plan.source.id)
    , m_isFetching(m_plan.fetch || !QFile::exists(contentOf(m_plan.source, environment.caches)))
    , m_record(environment.records.record(m_plan.source.id)) {}

void OwnSourceLoad::run() {
    const FetchedSource fetched = fetch();
    if (m_cancelled) {
        return;
    }
    m_record.status.output = fetched.output;
    if (m_plan.source.kind == OwnSourceKind::Playlist) {
        readPlaylist(fetched);
    } else if (isContent(fetched.result)) {
        readFeed(fetched);
    } else if (fetched.result == SourceResult::Unchanged) {
        renew();
        takeResult(fetched, SourceResult::Unchanged);
    } else {
        for (const OwnFeedItem& item : m_plan.items) {
            setFailure(item.channel, failureOf(fetched.result, fetched.detail));
        }
        takeResult(fetched, fetched.result);
    }
    if (m_cancelled) {
        m_results = {};
        return;
    }
    for (const OwnFeedItem& item : m_plan.items) {
        if (const auto record = m_environment.channels.channelWithChannelId(item.channel)) {
            record->endReloadRequest();
        }
    }
}

FetchedSource OwnSourceLoad::fetch() const {
    if (!m_isFetching) {
        return keptContent();
    }
    const OwnSource& source = m_plan.source;
    const auto address = m_environment.fetcher.wholeAddress(source);
    if (!address) {
        return {.result = SourceResult::SecretMissing};
    }
    if (!isOwnFile(source) && !m_folder.create()) {
        return {.result = SourceResult::NoRoom};
    }
    // A content that is gone cannot be unchanged.
    const bool isKept = QFile::exists(contentOf(source, m_environment.caches));
    FetchedSource fetched =
        m_environment.fetcher.fetch({.kind = source.kind,
                                     .address = *address,
                                     .incoming = m_folder.incoming(),
                                     .etag = isKept ? m_record.etag : QByteArray(),
                                     .lastModified = isKept ? m_record.lastModified : QByteArray(),
                                     .stopped = [this] { return m_cancelled.load(); },
                                     .progress = {}});
    return fetched.result == SourceResult::Unchanged && m_plan.isWanting ? keptContent() : fetched;
}

FetchedSource OwnSourceLoad::keptContent() const {
    return {.result = SourceResult::Read,
            .path = contentOf(m_plan.source, m_environment.caches),
            .etag = m_record.etag,
            .lastModified = m_record.lastModified,
            .charset = m_record.charset};
}

void OwnSourceLoad::readFeed(const FetchedSource& fetched) {
    OwnFeed feed;
    {
        const LoadingMark mark(m_environment.channels,
                               m_plan.items | std::views::transform(&OwnFeedItem::channel));
        feed = readOwnFeed(fetched.path, fetched.charset, m_plan.items,
                           {.clock = m_environment.clock,
                            .alphabet = m_environment.alphabet,
                            .locale = m_environment.device.locale(),
                            .zone = timeZoneForLanguage(m_plan.source.language),
                            .physicalMemory = m_environment.device.physicalMemory(),
                            .stopped = [this] { return m_cancelled.load(); }});
    }
    if (m_cancelled) {
        return;
    }
    SourceResult result = fetched.result == SourceResult::Incomplete && feed.result == SourceResult::Read
                              ? SourceResult::Incomplete
                              : feed.result;
    if (!isContent(result)) {
        for (const OwnFeedItem& item : m_plan.items) {
            setFailure(item.channel, failureOf(result, fetched.detail));
        }
        takeResult(fetched, result);
        return;
    }
    SourceStatus& status = m_record.status;
    const Moment now = m_environment.clock.now();
    const FeedExtent extent{feed.channelsWithShows, feed.shows};
    if (result == SourceResult::Read && m_isFetching && isFarPoorer(extent, status, now)) {
        result = SourceResult::Poor;
    } else if (result == SourceResult::Read && feed.newest && *feed.newest < now) {
        result = SourceResult::Over;
    }
    // What is kept was counted when it was read first.
    if (result == SourceResult::Read || result == SourceResult::Over) {
        status.channels = feed.channels;
        status.channelsWithShows = feed.channelsWithShows;
        status.shows = feed.shows;
        status.newestShow = feed.newest;
        status.unpackedBytes = feed.unpackedBytes;
    }
    merge(std::move(feed), result != SourceResult::Read);
    takeResult(fetched, result);
}

void OwnSourceLoad::merge(OwnFeed feed, bool broken) {
    std::vector<LoadItem> items;
    items.reserve(m_plan.items.size());
    std::ranges::transform(m_plan.items, std::back_inserter(items), loadItem);
    MergeResult merged;
    m_environment.loadQueue->sync([&] {
        merged =
            m_environment.listings.merge(items, std::move(feed.lists), m_environment.clock.now(),
                                         ListingsType::XMLTV, {.incomplete = broken, .keepsRicher = true});
    });
    SourceStatus& status = m_record.status;
    status.keptBack.clear();
    status.missing.clear();
    for (const LoadItem& item : items) {
        const auto record = m_environment.channels.channelWithChannelId(item.channel);
        const auto outcome = merged.outcomes.find(item.channel);
        if (!record || outcome == merged.outcomes.end()) {
            continue;
        }
        switch (outcome->second) {
        case MergeOutcome::Stored:
            m_results.stored.push_back(item.channel);
            setFailure(item.channel, std::nullopt);
            break;
        case MergeOutcome::Poorer:
            status.keptBack << record->title();
            setFailure(item.channel, std::nullopt);
            break;
        case MergeOutcome::Empty:
        case MergeOutcome::OnlyPast:
            status.missing << record->title();
            setFailure(item.channel, LoadFailure{.reason = outcome->second == MergeOutcome::Empty
                                                               ? LoadFailureReason::NoShows
                                                               : LoadFailureReason::OnlyPastShows,
                                                 .host = m_plan.source.name});
            break;
        }
    }
    if (merged.lists.empty()) {
        return;
    }
    const auto showCount = static_cast<unsigned>(std::max(0, m_environment.showCount()));
    m_environment.queues.mainQueue().async([&applicationState = m_environment.applicationState,
                                            offerTop = m_environment.offerTop,
                                            top = topLists(items, merged, showCount)] {
        if (applicationState.applicationState() != ApplicationState::Background) {
            offerTop(top);
        }
    });
}

/// The server says that nothing has changed: the lists are as new as they can be.
void OwnSourceLoad::renew() {
    for (const OwnFeedItem& item : m_plan.items) {
        const auto record = m_environment.channels.channelWithChannelId(item.channel);
        if (!record) {
            continue;
        }
        record->endReloadRequest();
        if (record->timeLoaded()) {
            m_environment.listings.addToSaveSchedule(item.channel);
            m_results.stored.push_back(item.channel);
        }
        setFailure(item.channel, std::nullopt);
    }
}

/// Takes the streams and icons of the chosen channels from the list.
void OwnSourceLoad::readPlaylist(const FetchedSource& fetched) {
    if (!isContent(fetched.result)) {
        takeResult(fetched, fetched.result);
        return;
    }
    const SourcePreview preview =
        sourcePreview(fetched.path, {.now = m_environment.clock.now(),
                                     .zone = m_environment.device.timeZone(),
                                     .charset = fetched.charset,
                                     .physicalMemory = m_environment.device.physicalMemory(),
                                     .stopped = [this] { return m_cancelled.load(); }});
    if (m_cancelled) {
        return;
    }
    if (preview.kind != SourceKind::Playlist) {
        const bool isFeed = preview.kind == SourceKind::Feed;
        takeResult(fetched, isFeed ? SourceResult::Unknown : preview.result);
        return;
    }
    const QStringList keys = playlistKeys(preview.playlist);
    QHash<QString, const PlaylistEntry*> entries;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        entries.insert(keys[i], &preview.playlist.entries[static_cast<std::size_t>(i)]);
    }
    SourceStatus& status = m_record.status;
    const int count = static_cast<int>(keys.size());
    if (isFarPoorer({.channelsWithShows = count, .shows = status.shows}, status, m_environment.clock.now())) {
        takeResult(fetched, SourceResult::Poor);
        return;
    }
    status.channels = count;
    status.channelsWithShows = count;
    status.missing.clear();
    // The record may have changed meanwhile.
    if (auto source = m_environment.sources.find(m_plan.source.id)) {
        for (OwnChannel& channel : source->channels) {
            if (const PlaylistEntry* entry = entries.value(channel.key)) {
                channel.stream = entry->stream;
                channel.icon = entry->logo;
            } else {
                status.missing << channel.title;
            }
        }
        m_environment.sources.put(*std::move(source));
    }
    takeResult(fetched, SourceResult::Read);
}

/// Keeps the content if it is good, and records the attempt.
void OwnSourceLoad::takeResult(const FetchedSource& fetched, SourceResult result) {
    const Moment now = m_environment.clock.now();
    SourceStatus& status = m_record.status;
    const bool isDownload =
        fetched.path.startsWith(m_folder.path + u'/') && fetched.path != m_folder.content();
    const bool isFirst = !QFile::exists(m_folder.content());
    if (isDownload && isContent(fetched.result)) {
        const bool isGood = result == SourceResult::Read || (isFirst && isContent(result));
        if (!isGood) {
            QFile::remove(fetched.path);
        } else if (!moveFile(fetched.path, m_folder.content())) {
            result = SourceResult::NoRoom;
        }
    }
    if (result == SourceResult::Read) {
        m_record.etag = fetched.etag;
        m_record.lastModified = fetched.lastModified;
        m_record.charset = fetched.charset;
    }
    status.result = result;
    status.detail = fetched.detail;
    status.running = false;
    if (result == SourceResult::Read || result == SourceResult::Unchanged) {
        status.lastSuccess = now;
    }
    if (m_isFetching) {
        status.lastTry = now;
        status.nextTry = nextTryAfter({.result = result, .at = now, .notBefore = fetched.notBefore},
                                      m_plan.source.interval, m_environment.random);
    }
    m_environment.records.set(m_plan.source.id, m_record);
}

void OwnSourceLoad::setFailure(const ObjectId& channel, std::optional<LoadFailure> failure) {
    const auto record = m_environment.channels.channelWithChannelId(channel);
    if (!record) {
        return;
    }
    if (failure && failure->reason == LoadFailureReason::NoAnswer) {
        m_results.failed.push_back(channel);
    }
    record->setLoadFailure(std::move(failure));
    // Said even if nothing has changed, because a person may be waiting for it.
    m_results.failureChanged.insert(channel);
}

LoadFailure OwnSourceLoad::failureOf(SourceResult result, const QString& detail) const {
    const QString host = hostOfAddress(m_plan.source.address);
    switch (result) {
    case SourceResult::NoAnswer:
        return {.reason = LoadFailureReason::NoAnswer, .host = host};
    case SourceResult::Status:
        return {.reason = LoadFailureReason::Status, .host = host, .status = detail.toInt()};
    case SourceResult::Page:
    case SourceResult::Empty:
    case SourceResult::Unknown:
        return {.reason = LoadFailureReason::NotASchedule, .host = host};
    default:
        return {.reason = LoadFailureReason::OwnSource, .host = m_plan.source.name};
    }
}

} // namespace guide
