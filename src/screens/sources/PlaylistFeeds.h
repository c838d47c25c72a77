#pragma once

#include "screens/sources/SourceActions.h"

#include <functional>
#include <vector>

namespace guide {

/// The feeds that a playlist names, of which the user ticks those to be loaded. Those that were loaded are
/// sources from then on; they are removed again when the playlist is not added. Main queue.
class PlaylistFeeds : public std::enable_shared_from_this<PlaylistFeeds> {
  public:
    struct Feed {
        QString address;
        bool ticked = false;
        /// A source of the user.
        bool loaded = false;
        /// Why it could not be loaded; empty when it could, or was not tried.
        QString problem;
    };

    /// The actions must outlive it.
    PlaylistFeeds(SourceActions& actions, const Playlist& playlist);
    ~PlaylistFeeds();
    PlaylistFeeds(const PlaylistFeeds&) = delete;
    PlaylistFeeds& operator=(const PlaylistFeeds&) = delete;

    const std::vector<Feed>& feeds() const { return m_feeds; }
    void setTicked(std::size_t feed, bool ticked);
    /// Whether a ticked feed is not loaded yet.
    bool anyToLoad() const;
    bool loading() const { return m_token != nullptr; }
    int channelsRead() const { return m_channels; }
    std::int64_t bytesRead() const { return m_bytes; }

    /// Loads the ticked feeds, one after the other. `ended` is told why one of them could not be loaded,
    /// which is no longer ticked; empty when all could.
    void load(std::function<void()> progressed, std::function<void(const QString& problem)> ended);
    void cancel();
    /// The playlist was added: the feeds stay.
    void keep() { m_added.clear(); }

  private:
    void loadNext();
    void take(std::size_t feed, const SourceProposal& proposal);

    SourceActions& m_actions;
    std::vector<Feed> m_feeds;
    std::vector<OwnSourceId> m_added;
    std::function<void()> m_progressed;
    std::function<void(const QString&)> m_ended;
    QString m_problem;
    SourceActions::Token m_token;
    int m_channels = 0;
    std::int64_t m_bytes = 0;
};

} // namespace guide
