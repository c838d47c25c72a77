#include "parsers/own/SourcePreviewReader.h"
#include "parsers/playlists/ChannelMatching.h"
#include "parsers/playlists/FeedChannels.h"
#include "parsers/playlists/Playlist.h"
#include "platform/memory/ManualClock.h"
#include "probe/Command.h"
#include "probe/ProbePages.h"
#include "sources/WebURL.h"
#include "sources/own/SourceDownload.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QTemporaryDir>

#include <algorithm>
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

/// In the order of SourceKind.
const std::array<QString, 5> kSourceKinds{u"feed"_s, u"playlist"_s, u"page"_s, u"empty"_s, u"unknown"_s};

QString warningText(SourceWarning warning, const SourcePreview& preview) {
    switch (warning) {
    case SourceWarning::Poor:
        return u"fewer than a quarter of the channels have shows in the next 24 hours"_s;
    case SourceWarning::Over:
        return u"the last show is past"_s;
    case SourceWarning::Shifted:
        return u"the evening news are not in the evening"_s;
    case SourceWarning::Incomplete:
        return u"the document breaks off"_s;
    case SourceWarning::Repaired:
        return u"%1 bytes are no characters"_s.arg(preview.replacedBytes);
    }
    return {};
}

/// What is written about a file that cannot be used; empty for other results.
QString faultText(SourceResult result) {
    switch (result) {
    case SourceResult::Damaged:
        return u"the packed file is damaged"_s;
    case SourceResult::TooLarge:
        return u"the file unpacks to too much"_s;
    default:
        return {};
    }
}

QJsonObject sourceJSON(const SourcePreview& preview) {
    const bool isFeed = preview.kind == SourceKind::Feed;
    const bool isPlaylist = preview.kind == SourceKind::Playlist;
    const auto ofFeed = [isFeed](int number) { return isFeed ? QJsonValue(number) : QJsonValue::Null; };
    const auto named = isFeed ? preview.channels.size() : preview.playlist.entries.size();
    QJsonObject languages;
    for (const auto& [language, channels] : preview.languages.asKeyValueRange()) {
        languages.insert(language, channels);
    }
    QJsonArray warnings;
    for (const SourceWarning warning : preview.warnings) {
        warnings.append(warningText(warning, preview));
    }
    if (const QString fault = faultText(preview.result); !fault.isEmpty()) {
        warnings.append(fault);
    }
    return {{u"kind"_s, kSourceKinds[static_cast<std::size_t>(preview.kind)]},
            {u"channels"_s, isFeed || isPlaylist ? QJsonValue(qint64(named)) : QJsonValue::Null},
            {u"channelsWithShows"_s, ofFeed(preview.channelsWithShows)},
            {u"channelsOnAir"_s, ofFeed(preview.channelsOnAir)},
            {u"channelsLive"_s, ofFeed(preview.channelsLive)},
            {u"shows"_s, ofFeed(preview.shows)},
            {u"first"_s, jsonMoment(preview.first)},
            {u"last"_s, jsonMoment(preview.last)},
            {u"unpackedBytes"_s, qint64(preview.unpackedBytes)},
            {u"languages"_s, languages},
            {u"feeds"_s, QJsonArray::fromStringList(preview.playlist.feeds)},
            {u"warnings"_s, warnings}};
}

/// Why nothing was fetched.
QString reasonOf(const SourceDownload& download) {
    switch (download.result) {
    case SourceResult::Status:
        return u"status %1"_s.arg(download.detail);
    case SourceResult::Busy:
        return u"the server wants to be asked later"_s;
    case SourceResult::TooManyRedirects:
        return u"too many redirects"_s;
    case SourceResult::ForbiddenRedirect:
        return u"redirected to %1"_s.arg(download.detail);
    case SourceResult::TooLarge:
        return u"too large"_s;
    case SourceResult::NoRoom:
        return u"it cannot be stored"_s;
    default:
        return u"no answer"_s;
    }
}

Outcome source(Context& context) {
    const QString& place = context.arguments.operands.front();
    PreviewRequest request{.now = context.now,
                           .zone = context.device.timeZone(),
                           .physicalMemory = context.device.physicalMemory()};
    QString path = place;
    const QTemporaryDir folder;
    bool isCut = false;
    if (const QUrl url(place); isWebURL(url)) {
        path = folder.filePath(u"source"_s);
        SourceDownload download;
        withClient(
            context, [&](HTTPClient& client, NetworkActivity& activity, const HTTPUserAgent& userAgent) {
                const ManualClock clock(context.now);
                download = downloadSource(
                    {.clock = clock, .client = client, .networkActivity = activity, .userAgent = userAgent},
                    {.url = url, .path = path});
            });
        if (download.result == SourceResult::Empty) {
            SourcePreview nothing;
            nothing.kind = SourceKind::Empty;
            return sourceJSON(nothing);
        }
        if (download.file.isEmpty()) {
            return Failure{u"%1: %2"_s.arg(place, reasonOf(download))};
        }
        path = download.file;
        isCut = download.result == SourceResult::Incomplete;
        request.charset = download.charset;
    }
    SourcePreview preview = sourcePreview(path, request);
    if (preview.result == SourceResult::NoFile) {
        return Failure{u"%1 cannot be read"_s.arg(place)};
    }
    if (isCut && std::ranges::find(preview.warnings, SourceWarning::Incomplete) == preview.warnings.end()) {
        preview.warnings.push_back(SourceWarning::Incomplete);
    }
    QJsonObject json = sourceJSON(preview);
    if (preview.kind == SourceKind::Unknown && QFileInfo(place).isExecutable()) {
        json[u"kind"_s] = u"grabber"_s;
    }
    return json;
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
