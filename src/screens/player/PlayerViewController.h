#pragma once

#include "platform/MediaPlayer.h"
#include "screens/MinuteTick.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/kit/PlayerContent.h"
#include "screens/kit/ViewController.h"
#include "screens/shell/ScreenEnvironment.h"
#include "store/ShownEnds.h"

#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace guide {

/// What the user has set on a player, and the next one starts with.
struct PlayerSettings {
    double volume = 1;
    bool muted = false;
    bool fullScreen = false;
};

/// Plays a stream over the whole window and shows what is on. Main queue.
class PlayerViewController final : public ViewController, private PlayerContent {
  public:
    /// A stream that plays nothing for this long is given up.
    static constexpr std::chrono::seconds kPatience{25};

    struct Events {
        /// The player has given up or the stream has come to its end. Called once; the message is empty at a
        /// normal end.
        std::function<void(const QString& message)> ended;
        /// The user leaves the player.
        std::function<void()> left;
        std::function<void(const QUrl& stream)> channelChosen;
        /// state() has changed. Called before the observer.
        std::function<void()> stateChanged;
    };

    PlayerViewController(std::shared_ptr<const ScreenEnvironment> environment, MediaPlayers& players,
                         const QUrl& url, const PlayerSettings& settings, Events events);

    const QUrl& url() const { return m_url; }
    PlayerSettings settings() const;

    /// Starts or resumes, and from then on watches whether the stream plays.
    void play();
    void pause();

    /// Shows what the store has for the channel.
    void reloadShows();

    PlayerContent& content() override { return *this; }

    using PlayerContent::state;

    // ---- the user's events

    void togglePaused() override;
    void setVolume(double volume) override;
    void toggleMuted() override;
    void setFullScreen(bool fullScreen) override;
    void changeChannel(int by) override;
    void leave() override { m_events.left(); }
    void setVideoOutput(QObject* output) override { m_player->setVideoOutput(output); }

  protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;

  private:
    void showChannel();
    void showNow();
    /// The streams of the selected channels, in order, each once.
    std::vector<QUrl> streams() const;

    void statusChanged();
    void setWatch();
    void watch();
    void open();
    void end(const QString& message);
    void change(const std::function<void(PlayerState&)>& apply);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const QUrl m_url;
    const Events m_events;
    /// Unset for a stream that belongs to no channel.
    std::optional<ObjectId> m_channel;
    std::unique_ptr<MediaPlayer> m_player;
    ShowSpan m_shows;
    ShownEnds m_ends;
    MinuteTick m_minuteTick;
    LatestAnswer m_list;
    bool m_ended = false;
    bool m_wasReady = false;
    /// When the watch last looked.
    std::uint64_t m_progress = 0;
    /// How long nothing more has been played, and how long the stream has been open.
    std::chrono::seconds m_still{0};
    std::chrono::seconds m_open{0};
    /// Of the latest timer; earlier ones do nothing.
    std::uint64_t m_watch = 0;
};

} // namespace guide
