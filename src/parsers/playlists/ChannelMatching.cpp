#include "parsers/playlists/ChannelMatching.h"

#include "parsers/playlists/ChannelNames.h"

#include <QHash>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace guide {

namespace {

/// More than a person would look through.
constexpr std::size_t kMostCandidates = 20;

/// Channels by a key, each once, in their order.
using Places = QHash<QString, std::vector<int>>;

void add(Places& places, const QString& key, int channel) {
    if (key.isEmpty()) {
        return;
    }
    std::vector<int>& found = places[key];
    if (found.empty() || found.back() != channel) {
        found.push_back(channel);
    }
}

class Matcher {
  public:
    explicit Matcher(const std::vector<FeedChannel>& channels)
        : m_channels(channels) {
        for (std::size_t place = 0; place < channels.size(); ++place) {
            const auto channel = static_cast<int>(place);
            add(m_byId, channels[place].id, channel);
            add(m_byIdKey, channelIdKey(channels[place].id), channel);
            for (const QString& name : channels[place].names) {
                const ChannelNameKeys keys = channelNameKeys(name);
                add(m_byName, keys.exact, channel);
                add(m_byNearName, keys.near, channel);
            }
        }
    }

    ChannelMatch match(const PlaylistEntry& entry) const {
        std::vector<int> candidates;
        if (!entry.id.isEmpty()) {
            for (const auto& [places, key] :
                 {std::pair(&m_byId, entry.id), std::pair(&m_byIdKey, channelIdKey(entry.id))}) {
                if (const auto clear = clearHit(*places, key, candidates)) {
                    return {MatchKind::Id, *clear, {}};
                }
            }
        }
        std::vector<ChannelNameKeys> names;
        for (const QString& name : {entry.guideName, entry.name}) {
            if (!name.isEmpty()) {
                names.push_back(channelNameKeys(name));
            }
        }
        for (const ChannelNameKeys& keys : names) {
            if (const auto clear = clearHit(m_byName, keys.exact, candidates)) {
                return {MatchKind::Name, *clear, {}};
            }
        }
        for (const ChannelNameKeys& keys : names) {
            collect(m_byNearName, keys.near, candidates);
        }
        return {candidates.empty() ? MatchKind::None : MatchKind::Review, -1, std::move(candidates)};
    }

  private:
    /// The only channel with the key in the first feed that has any; otherwise adds those that there are to
    /// the candidates.
    std::optional<int> clearHit(const Places& places, const QString& key,
                                std::vector<int>& candidates) const {
        const auto found = places.constFind(key);
        if (key.isEmpty() || found == places.cend()) {
            return std::nullopt;
        }
        const int feed = feedOf(found->front());
        if (found->size() == 1 || feedOf((*found)[1]) != feed) {
            return found->front();
        }
        collect(places, key, candidates);
        return std::nullopt;
    }

    int feedOf(int channel) const { return m_channels[static_cast<std::size_t>(channel)].feed; }

    static void collect(const Places& places, const QString& key, std::vector<int>& candidates) {
        const auto found = places.constFind(key);
        if (key.isEmpty() || found == places.cend()) {
            return;
        }
        for (const int channel : *found) {
            if (candidates.size() < kMostCandidates &&
                std::ranges::find(candidates, channel) == candidates.end()) {
                candidates.push_back(channel);
            }
        }
    }

    const std::vector<FeedChannel>& m_channels;
    Places m_byId;
    Places m_byIdKey;
    Places m_byName;
    Places m_byNearName;
};

} // namespace

std::vector<ChannelMatch> matchChannels(const std::vector<PlaylistEntry>& entries,
                                        const std::vector<FeedChannel>& channels) {
    const Matcher matcher(channels);
    std::vector<ChannelMatch> matches;
    matches.reserve(entries.size());
    for (const PlaylistEntry& entry : entries) {
        matches.push_back(matcher.match(entry));
    }
    return matches;
}

} // namespace guide
