#include "app/own/PlaylistMatching.h"

#include "parsers/playlists/ChannelMatching.h"
#include "parsers/playlists/PlaylistKeys.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace guide {

std::vector<MatchedEntry> matchedEntries(const Playlist& playlist,
                                         const std::vector<GuideCorrection>& corrections,
                                         const std::vector<FeedToMatch>& feeds) {
    std::vector<FeedChannel> channels;
    for (std::size_t feed = 0; feed < feeds.size(); ++feed) {
        for (const PreviewChannel& channel : feeds[feed].preview->channels) {
            channels.push_back({channel.id, channel.names, static_cast<int>(feed)});
        }
    }
    const auto guideOf = [&](int place) {
        const FeedChannel& channel = channels[static_cast<std::size_t>(place)];
        return GuideChannel{feeds[static_cast<std::size_t>(channel.feed)].source, channel.id};
    };
    QHash<QString, const GuideCorrection*> corrected;
    for (const GuideCorrection& correction : corrections) {
        corrected.insert(correction.key, &correction);
    }
    const std::vector<ChannelMatch> found = matchChannels(playlist.entries, channels);
    const QStringList keys = playlistKeys(playlist);
    std::vector<MatchedEntry> entries;
    entries.reserve(found.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        MatchedEntry entry{.key = keys[static_cast<qsizetype>(i)],
                           .entry = playlist.entries[i],
                           .match = found[i].kind,
                           .corrected = false,
                           .guide = {},
                           .guideLanguage = {},
                           .candidates = {}};
        if (found[i].channel >= 0) {
            entry.guide = guideOf(found[i].channel);
        }
        std::ranges::transform(found[i].candidates, std::back_inserter(entry.candidates), guideOf);
        if (const GuideCorrection* correction = corrected.value(entry.key)) {
            entry.corrected = true;
            entry.guide = correction->guide;
        }
        entries.push_back(std::move(entry));
    }
    return entries;
}

QHash<QString, std::size_t> clearMatches(const Playlist& playlist, const QSet<QString>& keys,
                                         const std::vector<PreviewChannel>& channels) {
    const QStringList all = playlistKeys(playlist);
    std::vector<PlaylistEntry> entries;
    QStringList entryKeys;
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (keys.contains(all[i])) {
            entries.push_back(playlist.entries[static_cast<std::size_t>(i)]);
            entryKeys << all[i];
        }
    }
    std::vector<FeedChannel> offered;
    offered.reserve(channels.size());
    for (const PreviewChannel& channel : channels) {
        offered.push_back({channel.id, channel.names, 0});
    }
    QHash<QString, std::size_t> places;
    const std::vector<ChannelMatch> found = matchChannels(entries, offered);
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (found[i].channel >= 0) {
            places.insert(entryKeys[static_cast<qsizetype>(i)], static_cast<std::size_t>(found[i].channel));
        }
    }
    return places;
}

} // namespace guide
