#include "parsers/playlists/ChannelMatching.h"
#include "parsers/playlists/FeedChannels.h"
#include "parsers/playlists/Playlist.h"
#include "probe/Command.h"
#include "probe/ProbePages.h"

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

} // namespace

std::vector<Command> playlistCommands() {
    return {{u"match"_s,
             {u"PLAYLIST FEED..."_s, {}, {}, 2, -1},
             u"which channels of the feeds the entries of a playlist are, and why"_s,
             match}};
}

} // namespace guide::probe
