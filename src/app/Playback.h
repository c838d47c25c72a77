#pragma once

#include "platform/IdleInhibition.h"
#include "platform/MediaPlayer.h"
#include "platform/MediaSession.h"
#include "platform/UserDefaults.h"
#include "screens/kit/TabBarController.h"
#include "screens/player/PlayerViewController.h"

#include <QUrl>

#include <functional>
#include <memory>

namespace guide {

/// The application's player: at most one, over the tabs. Main queue.
class Playback {
  public:
    struct Surroundings {
        std::shared_ptr<const ScreenEnvironment> screens;
        TabBarController& tabs;
        MediaPlayers& players;
        /// Null where there is none.
        MediaSession* session = nullptr;
        IdleInhibition* idleInhibition = nullptr;
        UserDefaults& userDefaults;
        /// Called when the user has answered the alert about a stream that does not play.
        std::function<void()> alertAnswered;
        /// Brings the window to the front.
        std::function<void()> raise;
    };

    explicit Playback(Surroundings surroundings);
    Playback(const Playback&) = delete;
    Playback& operator=(const Playback&) = delete;
    ~Playback();

    /// Replaces the stream that is playing, if there is one. Refuses an address that cannot be a stream,
    /// with a notice.
    void playURL(const QUrl& url);
    /// Goes on with the stream, unless the user has paused it.
    void play();
    void moviePlayerPlaybackDidFinish();
    /// Shows what the store has for the channel.
    void reloadShows();

    /// Null when nothing is playing.
    const std::shared_ptr<PlayerViewController>& player() const { return m_player; }

  private:
    bool isPlayable(const QUrl& url) const;
    PlayerSettings settings() const;
    void present(const QUrl& url, const PlayerSettings& settings);
    void keepSettings();
    void ended(const QString& message);
    void stateChanged();
    MediaCommands commands();

    const Surroundings m_surroundings;
    std::shared_ptr<PlayerViewController> m_player;
};

} // namespace guide
