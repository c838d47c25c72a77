// What a person adds: playlists and feeds from anywhere.

#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "fakes/Packing.h"
#include "parsers/own/FeedPreview.h"
#include "parsers/own/SourceContent.h"
#include "parsers/playlists/ChannelMatching.h"
#include "parsers/playlists/FeedChannels.h"
#include "parsers/playlists/Playlist.h"
#include "platform/encoding/Utf8.h"

namespace guide::fuzz {

namespace {

/// Unpacking may use a quarter of it.
constexpr std::uint64_t kMemory = 64 << 20;

/// Parts: a feed, a playlist.
void matchPlaylist(QByteArrayView bytes) {
    std::vector<QByteArray> parts = FuzzInput(bytes).parts(2);
    parts.resize(2);
    const Playlist playlist = readPlaylist(playlistText(parts[1]));
    for (const QString& feed : playlist.feeds) {
        require(feed.startsWith(u"http", Qt::CaseInsensitive), "a feed has a web address");
    }
    for (const PlaylistEntry& entry : playlist.entries) {
        require(!entry.name.isEmpty() || !entry.id.isEmpty(), "an entry says which channel it is");
    }
    const std::vector<FeedChannel> channels = feedChannels(parts[0], 0);
    const std::vector<ChannelMatch> matches = matchChannels(playlist.entries, channels);
    require(matches.size() == playlist.entries.size(), "every entry has an answer");
    for (const ChannelMatch& match : matches) {
        const bool certain = match.kind == MatchKind::Id || match.kind == MatchKind::Name;
        require(certain == (match.channel >= 0), "an entry is matched to a channel, or not");
        require(match.channel < static_cast<int>(channels.size()), "the channel exists");
        require((match.kind == MatchKind::Review) == !match.candidates.empty(), "a review has candidates");
    }
}

void previewSource(QByteArrayView bytes) {
    constexpr Moment kNow{std::chrono::sys_days(std::chrono::year(2026) / 11 / 21)};
    const FuzzInput input(bytes);
    const SourceContent content =
        sourceContent(input.whole(), DecompressionLimits{kMemory},
                      input.choice(2) == 1 ? QStringLiteral("iso-8859-2") : QString());
    require(isValidUtf8(content.text), "a source is UTF-8");
    const FeedPreview preview = feedPreview(content.text, kNow);
    require(preview.channelsOnAir <= preview.channelsLive &&
                preview.channelsLive <= preview.channelsWithShows &&
                preview.channelsWithShows <= preview.channels && preview.channelsWithShows <= preview.shows,
            "every count is part of the next");
    require(preview.first.has_value() == (preview.shows > 0) && preview.first <= preview.last,
            "the first show precedes the last");
    int channels = 0;
    for (const int count : preview.languages) {
        channels += count;
    }
    require(channels == preview.channelsWithShows, "every channel with shows is counted in one language");
}

const char* const kFeed =
    R"(<?xml version="1.0" encoding="UTF-8"?><tv><channel id="a.cz"><display-name>A</display-name>
</channel><programme channel="a.cz" start="20261121000000 +0100" stop="20261121010000 +0100"><title>Film o psovi</title>
<desc>Který se vrací domů.</desc></programme></tv>)";

} // namespace

std::vector<FuzzTarget> ownSourceTargets() {
    return {
        {.name = "playlist",
         .run = matchPlaylist,
         .seeds =
             [] {
                 return std::vector<QByteArray>{fuzzInput(
                     {kFeed,
                      "#EXTM3U x-tvg-url=\"http://a.example/1.xml.gz\" tvg-shift=1\n#PLAYLIST:P\n#EXTGRP:G\n"
                      "#EXTINF:-1 tvg-id=\"a.cz\" tvg-name='PL| A HD' group-title=\"X;Y\",A, "
                      "B\nhttp://s/1\n"})};
             },
         .literals = {"parsers/playlists/Playlist.cpp", "parsers/playlists/ChannelNames.cpp"},
         .maxMemoryPerByte = 0},
        {.name = "source-preview",
         .run = previewSource,
         .seeds =
             [] {
                 return std::vector<QByteArray>{fuzzInput({kFeed}), fuzzInput({gzipped(kFeed)}),
                                                fuzzInput({xzPacked(kFeed)}), fuzzInput({kFeed}, 1)};
             },
         .literals = {"parsers/own/SourceContent.cpp", "parsers/own/FeedPreview.cpp"},
         .maxMemoryPerByte = 0},
    };
}

} // namespace guide::fuzz
