// What a person adds: playlists and feeds from anywhere.

#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "fakes/Files.h"
#include "fakes/Packing.h"
#include "fakes/Zipping.h"
#include "parsers/own/OwnFeedReader.h"
#include "parsers/own/SourcePreviewReader.h"
#include "parsers/playlists/ChannelMatching.h"
#include "parsers/playlists/FeedChannels.h"
#include "parsers/playlists/Playlist.h"
#include "parsers/xmltv/FeedListing.h"
#include "parsers/xmltv/ProgrammeSkipScan.h"
#include "platform/encoding/TextFile.h"
#include "platform/encoding/Utf8.h"
#include "platform/memory/ManualClock.h"

#include <QFileInfo>
#include <QTemporaryDir>

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

/// A file with this content, in memory where the system allows it.
QString fileWith(const QByteArray& content) {
    static const QTemporaryDir folder(QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                                          ? QStringLiteral("/dev/shm/guide-fuzz-XXXXXX")
                                          : QString());
    const QString path = folder.filePath(QStringLiteral("source"));
    require(test::writeFile(path, content), "the file can be written");
    return path;
}

QString charsetOf(const FuzzInput& input) {
    return input.choice(2) == 1 ? QStringLiteral("iso-8859-2") : QString();
}

/// Part: a file. The size of the room must not change the text.
void readWindows(QByteArrayView bytes) {
    const FuzzInput input(bytes);
    const QString path = fileWith(input.whole());
    QByteArray texts[2];
    constexpr std::size_t kRooms[] = {std::size_t{256} << 10, 5};
    constexpr std::size_t kWindow = 64;
    for (std::size_t i = 0; i < 2; ++i) {
        TextFile file(path, {.charset = charsetOf(input), .physicalMemory = kMemory, .window = kWindow});
        QByteArray room(static_cast<qsizetype>(kRooms[i]), Qt::Uninitialized);
        while (const std::size_t got = file.read({room.data(), kRooms[i]})) {
            texts[i] += room.first(static_cast<qsizetype>(got));
        }
    }
    require(texts[0] == texts[1], "a text does not depend on the room");
    require(isValidUtf8(texts[0]) && !texts[0].contains('\0'), "a text is UTF-8 without control characters");
    const WantedChannels wanted({QStringLiteral("a.cz")});
    const QByteArray kept = test::filteredPieces(texts[0], FeedScan::kWindow, wanted);
    require(kept == test::filteredPieces(texts[0], 3, wanted), "a scan does not depend on the windows");
    if (const auto whole = withoutUnwantedProgrammes(texts[0], wanted)) {
        require(kept == whole->feed, "a scan in windows keeps what the one of the whole keeps");
    }
}

void previewSource(QByteArrayView bytes) {
    constexpr Moment kNow{std::chrono::sys_days(std::chrono::year(2026) / 11 / 21)};
    const FuzzInput input(bytes);
    const SourcePreview preview = sourcePreview(
        fileWith(input.whole()),
        {.now = kNow, .zone = QTimeZone::utc(), .charset = charsetOf(input), .physicalMemory = kMemory});
    const auto named = static_cast<int>(preview.channels.size());
    require(preview.channelsOnAir <= preview.channelsLive &&
                preview.channelsLive <= preview.channelsWithShows && preview.channelsWithShows <= named &&
                preview.channelsWithShows <= preview.shows,
            "every count is part of the next");
    require(preview.first.has_value() == (preview.shows > 0) && preview.first <= preview.last,
            "the first show precedes the last");
    int channels = 0;
    for (const int count : preview.languages) {
        channels += count;
    }
    require(channels == preview.channelsWithShows, "every channel with shows is counted in one language");
    for (const PreviewChannel& channel : preview.channels) {
        require(!channel.id.isEmpty(), "a channel has an id");
        require(channel.icon.isEmpty() || channel.icon.startsWith(u"http", Qt::CaseInsensitive) ||
                    channel.icon.startsWith(u"//"),
                "an icon is on the web");
    }
}

/// Part: a file.
void readOwn(QByteArrayView bytes) {
    static const ManualClock clock{Moment{std::chrono::sys_days(std::chrono::year(2026) / 11 / 20)}};
    static const Alphabet alphabet;
    ObjectId::Bytes id{0xff};
    const ObjectId channel(id);
    const FuzzInput input(bytes);
    OwnFeed feed = readOwnFeed(
        fileWith(input.whole()), charsetOf(input),
        {{.channel = channel, .feedChannel = QStringLiteral("a.cz"), .language = QStringLiteral("cs")}},
        {.clock = clock, .alphabet = alphabet, .physicalMemory = kMemory});
    std::optional<Moment> last;
    for (const ExtendedTVEntry& show : feed.lists[channel]) {
        const TVEntry& entry = *show.basic;
        require(entry.identificator() && !entry.identificator()->isEmpty(), "a show has a title");
        require(entry.dateTime() && entry.endDateTime() && *entry.dateTime() < *entry.endDateTime(),
                "a show ends after its start");
        require(!last || *last < *entry.dateTime(), "shows are sorted and start at different times");
        last = entry.dateTime();
    }
}

QByteArray zipped(const QByteArray& content) {
    const QString path = fileWith({});
    require(test::writeZip(path, {{"a.txt", "a"}, {"b.xml", content}}), "the archive can be written");
    return test::contentOf(path);
}

const char* const kFeed =
    R"(<?xml version="1.0" encoding="UTF-8"?><tv><channel id="a.cz"><display-name>A</display-name>
</channel><programme channel="a.cz" start="20261121000000 +0100" stop="20261121010000 +0100"><title>Film o psovi</title>
<desc>Který se vrací domů.</desc></programme></tv>)";

} // namespace

std::vector<FuzzTarget> ownSourceTargets() {
    const auto seeds = [] {
        return std::vector<QByteArray>{fuzzInput({kFeed}),           fuzzInput({gzipped(kFeed)}),
                                       fuzzInput({xzPacked(kFeed)}), fuzzInput({zipped(kFeed)}),
                                       fuzzInput({kFeed}, 1),        fuzzInput({"<tv>\x9A\xE1\xFF</tv>"})};
    };
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
         .seeds = seeds,
         .literals = {"parsers/own/SourceText.cpp", "parsers/own/PreviewFeed.cpp",
                      "parsers/own/EveningNews.cpp", "parsers/xmltv/FeedScan.cpp"},
         .maxMemoryPerByte = 0},
        {.name = "own-feed",
         .run = readOwn,
         .seeds =
             [seeds] {
                 std::vector<QByteArray> all = seeds();
                 all.push_back(
                     fuzzInput({R"(<tv><programme channel="a.cz" start="20261121000000"><title>A & B</title>
</programme><programme channel="a.cz" start="20261121010000 Z" stop="20261123010000 Z"><title lang="cs">A</title><title>B</title>
<episode-num system="xmltv_ns">1.2/3.</episode-num><previously-shown/></programme></tv>)"}));
                 return all;
             },
         .literals = {"parsers/xmltv/XMLTVSaxParser.cpp", "parsers/xmltv/FeedElementFacts.cpp"},
         .maxMemoryPerByte = 0},
        {.name = "windows",
         .run = readWindows,
         .seeds = seeds,
         .literals = {"parsers/xmltv/FeedMarkup.cpp", "parsers/xmltv/FeedScan.cpp",
                      "platform/encoding/TextFile.cpp"},
         .maxMemoryPerByte = 0},
    };
}

} // namespace guide::fuzz
