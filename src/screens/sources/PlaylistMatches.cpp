#include "screens/sources/PlaylistMatches.h"

#include <algorithm>
#include <utility>

namespace guide {

FeedChannels::FeedChannels(QString name, std::vector<PreviewChannel> channels)
    : m_name(std::move(name))
    , m_channels(std::move(channels)) {
    for (std::size_t place = 0; place < m_channels.size(); ++place) {
        m_places.insert(m_channels[place].id, place);
    }
}

const PreviewChannel* FeedChannels::find(const QString& id) const {
    const auto found = m_places.constFind(id);
    return found == m_places.constEnd() ? nullptr : &m_channels[*found];
}

const PreviewChannel* MatchedPlaylist::channel(const GuideChannel& guide) const {
    const auto feed = feeds.find(guide.source);
    return feed == feeds.end() ? nullptr : feed->second->find(guide.channel);
}

PlaylistMatches::PlaylistMatches(SourceActions& actions, Playlist playlist,
                                 std::vector<GuideCorrection> corrections)
    : m_actions(actions)
    , m_playlist(std::move(playlist))
    , m_corrections(std::move(corrections)) {}

void PlaylistMatches::match(std::function<void()> matched) {
    m_matchedOnce = std::move(matched);
    m_ready = false;
    m_matching = m_actions.match(m_playlist, m_corrections, {},
                                 [weak = weak_from_this()](std::vector<MatchedEntry> entries) {
                                     if (const auto self = weak.lock()) {
                                         self->m_matching.reset();
                                         self->m_matched.entries = std::move(entries);
                                         self->finishIfComplete();
                                     }
                                 });
    loadFeeds();
}

/// What is on now tells the user whether a match is right.
void PlaylistMatches::loadFeeds() {
    const SharedOwnSources sources = m_actions.sources();
    for (const OwnSource& source : *sources) {
        if (source.kind == OwnSourceKind::Playlist || m_matched.feeds.contains(source.id) ||
            m_loading.contains(source.id)) {
            continue;
        }
        // The answer comes after the call, so that the token is stored by then.
        m_loading[source.id] =
            m_actions.channelsOf(source.id, [weak = weak_from_this(), id = source.id,
                                             name = source.name](std::vector<PreviewChannel> channels) {
                if (const auto self = weak.lock()) {
                    self->m_matched.feeds[id] =
                        std::make_shared<const FeedChannels>(name, std::move(channels));
                    self->m_loading.erase(id);
                    self->finishIfComplete();
                }
            });
    }
}

void PlaylistMatches::finishIfComplete() {
    if (!m_matching && m_loading.empty()) {
        m_ready = true;
        for (MatchedEntry& entry : m_matched.entries) {
            takeLanguage(entry);
        }
        tellObserver();
        if (const auto matched = std::exchange(m_matchedOnce, nullptr)) {
            matched();
        }
    }
}

/// The feed's shows tell it better than the playlist.
void PlaylistMatches::takeLanguage(MatchedEntry& entry) const {
    const PreviewChannel* channel = entry.guide ? m_matched.channel(*entry.guide) : nullptr;
    entry.guideLanguage = channel ? channel->language : QString();
}

void PlaylistMatches::tellObserver() const {
    if (m_changed) {
        m_changed();
    }
}

const MatchedEntry* PlaylistMatches::find(const QString& key) const {
    const auto found = std::ranges::find(m_matched.entries, key, &MatchedEntry::key);
    return found == m_matched.entries.end() ? nullptr : &*found;
}

PlaylistMatches::Counts PlaylistMatches::counts() const {
    Counts counts;
    for (const MatchedEntry& entry : m_matched.entries) {
        switch (entry.match) {
        case MatchKind::Id:
            ++counts.byId;
            break;
        case MatchKind::Name:
            ++counts.byName;
            break;
        case MatchKind::Review:
            ++counts.review;
            break;
        case MatchKind::None:
            ++counts.none;
            break;
        }
    }
    return counts;
}

void PlaylistMatches::correct(const QString& key, const std::optional<GuideChannel>& guide) {
    const auto entry = std::ranges::find(m_matched.entries, key, &MatchedEntry::key);
    if (entry == m_matched.entries.end()) {
        return;
    }
    entry->guide = guide;
    entry->match = guide ? MatchKind::Name : MatchKind::None;
    entry->corrected = true;
    takeLanguage(*entry);
    std::erase_if(m_corrections, [&key](const GuideCorrection& each) { return each.key == key; });
    m_corrections.push_back({key, guide});
    tellObserver();
}

} // namespace guide
