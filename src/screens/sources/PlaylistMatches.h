#pragma once

#include "screens/sources/SourceActions.h"

#include <QHash>

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

namespace guide {

/// The channels of a feed, by their ids.
class FeedChannels {
  public:
    FeedChannels(QString name, std::vector<PreviewChannel> channels);

    /// Of the source.
    const QString& name() const { return m_name; }
    const std::vector<PreviewChannel>& channels() const { return m_channels; }
    /// Null when there is none.
    const PreviewChannel* find(const QString& id) const;

  private:
    QString m_name;
    std::vector<PreviewChannel> m_channels;
    QHash<QString, std::size_t> m_places;
};

/// A playlist's entries with the channels that give them their schedules. A copy shares the feeds.
struct MatchedPlaylist {
    std::vector<MatchedEntry> entries;
    std::map<OwnSourceId, std::shared_ptr<const FeedChannels>> feeds;

    /// Null when it is not known.
    const PreviewChannel* channel(const GuideChannel& guide) const;
};

/// Matches a playlist to all feeds that were added, and keeps the user's corrections. Main queue.
class PlaylistMatches : public std::enable_shared_from_this<PlaylistMatches> {
  public:
    struct Counts {
        int byId = 0;
        int byName = 0;
        int review = 0;
        int none = 0;
    };

    /// The actions must outlive it.
    PlaylistMatches(SourceActions& actions, Playlist playlist, std::vector<GuideCorrection> corrections);

    /// Called after each change of the matches. May be empty.
    void setObserver(std::function<void()> changed) { m_changed = std::move(changed); }
    /// Also again, when feeds were added. `matched` is called after the observer and may be empty.
    void match(std::function<void()> matched = {});
    bool ready() const { return m_ready; }

    const MatchedPlaylist& matched() const { return m_matched; }
    const std::vector<MatchedEntry>& entries() const { return m_matched.entries; }
    /// Null when there is none.
    const MatchedEntry* find(const QString& key) const;
    Counts counts() const;

    const std::vector<GuideCorrection>& corrections() const { return m_corrections; }
    void correct(const QString& key, const std::optional<GuideChannel>& guide);

  private:
    void loadFeeds();
    void finishIfComplete();
    void takeLanguage(MatchedEntry& entry) const;
    void tellObserver() const;

    SourceActions& m_actions;
    const Playlist m_playlist;
    std::vector<GuideCorrection> m_corrections;
    MatchedPlaylist m_matched;
    std::function<void()> m_changed;
    std::function<void()> m_matchedOnce;
    bool m_ready = false;
    SourceActions::Token m_matching;
    std::map<OwnSourceId, SourceActions::Token> m_loading;
};

} // namespace guide
