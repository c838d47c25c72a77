#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace guide {

/// What is playing.
struct MediaSessionState {
    QString channel = {};
    /// Empty when unknown.
    QString title = {};
    bool paused = false;
    bool canChangeChannel = false;
    /// 0 to 1; 0 while muted.
    double volume = 1;
    bool fullScreen = false;

    friend bool operator==(const MediaSessionState&, const MediaSessionState&) = default;
};

/// What the desktop asks of the player. Called on the main queue.
struct MediaCommands {
    std::function<void(bool paused)> setPaused;
    std::function<void()> togglePaused;
    std::function<void()> stop;
    std::function<void(int by)> changeChannel;
    std::function<void(double volume)> setVolume;
    std::function<void(bool fullScreen)> setFullScreen;
    std::function<void()> raise;
};

/// Lets the desktop show and control what is playing: media keys, the lock screen, remote controls. Main
/// queue.
class MediaSession {
  public:
    virtual ~MediaSession() = default;
    virtual void setCommands(MediaCommands commands) = 0;
    /// Unset when nothing is playing: the desktop then sees no player.
    virtual void setState(const std::optional<MediaSessionState>& state) = 0;
};

} // namespace guide
