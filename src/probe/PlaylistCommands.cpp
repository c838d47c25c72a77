#include "parsers/own/FeedPreview.h"
#include "parsers/own/SourceContent.h"
#include "parsers/playlists/ChannelMatching.h"
#include "parsers/playlists/FeedChannels.h"
#include "parsers/playlists/Playlist.h"
#include "probe/Command.h"
#include "probe/ProbePages.h"
#include "sources/WebURL.h"

#include <QFile>
#include <QJsonArray>

#include <array>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

/// In the order of MatchKind.
const std::array<QString, 4> kKinds{u"id"_s, u"name"_s, u"review"_s, u"none"_s};

Outcome match(Context& context) {
    const auto pages = pagesFromFiles(context.arguments.operands, context);
    if (const auto* failure = std::get_if<Failure>(&pages)) {
        return *failure;
    }
    const auto& files = std::get<std::vector<QByteArray>>(pages);
    const QString text = playlistText(files.front());
    if (!isPlaylist(text)) {
        return Failure{u"%1 is not a playlist"_s.arg(context.arguments.operands.front())};
    }
    const Playlist playlist = readPlaylist(text);
    std::vector<FeedChannel> channels;
    for (std::size_t file = 1; file < files.size(); ++file) {
        for (FeedChannel& channel : feedChannels(files[file], static_cast<int>(file) - 1)) {
            channels.push_back(std::move(channel));
        }
    }
    const std::vector<ChannelMatch> matches = matchChannels(playlist.entries, channels);

    const auto idOf = [&channels](int place) { return channels[static_cast<std::size_t>(place)].id; };
    std::array<int, kKinds.size()> counts{};
    QJsonArray entries;
    for (std::size_t place = 0; place < matches.size(); ++place) {
        const ChannelMatch& found = matches[place];
        const auto kind = static_cast<std::size_t>(found.kind);
        ++counts[kind];
        QJsonArray candidates;
        for (const int candidate : found.candidates) {
            candidates.append(idOf(candidate));
        }
        const bool matched = found.channel >= 0;
        const PlaylistEntry& entry = playlist.entries[place];
        entries.append(QJsonObject{
            {u"name"_s, entry.name},
            {u"id"_s, entry.id.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(entry.id)},
            {u"how"_s, kKinds[kind]},
            {u"channel"_s, matched ? QJsonValue(idOf(found.channel)) : QJsonValue(QJsonValue::Null)},
            {u"feed"_s, matched ? QJsonValue(channels[static_cast<std::size_t>(found.channel)].feed)
                                : QJsonValue(QJsonValue::Null)},
            {u"candidates"_s, candidates}});
    }
    QJsonObject byKind;
    for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
        byKind.insert(kKinds[kind], counts[kind]);
    }
    return QJsonObject{{u"counts"_s, byKind}, {u"entries"_s, entries}};
}

/// The bytes of a file, or of what the network answers for a web address.
std::variant<QByteArray, Failure> bytesOf(const Context& context, const QString& place) {
    const QUrl url(place);
    if (isWebURL(url)) {
        QString why;
        std::optional<QByteArray> bytes;
        withNetwork(context, why, [&](const PageFetcher& fetcher, const HTTPUserAgent& userAgent) {
            bytes = fetcher.netPageForRequest(pageRequest(url, userAgent), true).page;
        });
        return bytes ? std::variant<QByteArray, Failure>(*std::move(bytes))
                     : Failure{u"%1: %2"_s.arg(place, why.isEmpty() ? u"no answer"_s : why)};
    }
    QFile file(place);
    if (!file.open(QIODevice::ReadOnly)) {
        return Failure{u"%1 cannot be read: %2"_s.arg(place, file.errorString())};
    }
    return file.readAll();
}

/// In the order of SourceKind.
const std::array<QString, 5> kSourceKinds{u"feed"_s, u"playlist"_s, u"page"_s, u"empty"_s, u"unknown"_s};

void addFeed(QJsonObject& preview, const FeedPreview& feed, Moment now, QJsonArray& warnings) {
    preview[u"channels"_s] = feed.channels;
    preview[u"channelsWithShows"_s] = feed.channelsWithShows;
    preview[u"channelsOnAir"_s] = feed.channelsOnAir;
    preview[u"channelsLive"_s] = feed.channelsLive;
    preview[u"shows"_s] = feed.shows;
    preview[u"first"_s] = jsonMoment(feed.first);
    preview[u"last"_s] = jsonMoment(feed.last);
    QJsonObject languages;
    for (const auto& [language, channels] : feed.languages.asKeyValueRange()) {
        languages.insert(language, channels);
    }
    preview[u"languages"_s] = languages;
    if (feed.incomplete) {
        warnings.append(u"the document breaks off"_s);
    }
    if (feed.isOver(now)) {
        warnings.append(u"the last show is past"_s);
    } else if (feed.isPoor()) {
        warnings.append(u"fewer than a quarter of the channels have shows in the next 24 hours"_s);
    }
}

Outcome source(Context& context) {
    auto bytes = bytesOf(context, context.arguments.operands.front());
    if (const auto* failure = std::get_if<Failure>(&bytes)) {
        return *failure;
    }
    const SourceContent content = sourceContent(std::get<QByteArray>(std::move(bytes)),
                                                DecompressionLimits{context.device.physicalMemory()});
    const auto kind = static_cast<std::size_t>(content.kind);
    QJsonObject preview{{u"kind"_s, kSourceKinds[kind]}, {u"unpackedBytes"_s, content.text.size()}};
    QJsonArray warnings;
    QJsonArray feeds;
    if (content.kind == SourceKind::Feed) {
        addFeed(preview, feedPreview(content.text, context.now), context.now, warnings);
    } else if (content.kind == SourceKind::Playlist) {
        const Playlist playlist = readPlaylist(QString::fromUtf8(content.text));
        preview[u"channels"_s] = qint64(playlist.entries.size());
        feeds = QJsonArray::fromStringList(playlist.feeds);
    }
    if (content.damaged) {
        warnings.append(u"the packed file is damaged or cut off"_s);
    }
    if (content.replaced > 0) {
        warnings.append(u"%1 bytes are no characters"_s.arg(content.replaced));
    }
    preview[u"feeds"_s] = feeds;
    preview[u"warnings"_s] = warnings;
    return preview;
}

} // namespace

std::vector<Command> playlistCommands() {
    return {{u"source"_s,
             {u"ADDRESS-OR-FILE"_s, {}, {}, 1, 1},
             u"what a feed or playlist has to offer"_s,
             source},
            {u"match"_s,
             {u"PLAYLIST FEED..."_s, {}, {}, 2, -1},
             u"which channels of the feeds the entries of a playlist are, and why"_s,
             match}};
}

} // namespace guide::probe
