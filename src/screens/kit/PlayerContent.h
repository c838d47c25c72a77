#pragma once

#include "screens/kit/Content.h"
#include "screens/kit/PictureKey.h"

#include <QString>

class QObject;

namespace guide {

/// What the player shows over the picture.
struct PlayerState {
    /// Where the stream comes from.
    QString channel = {};
    PictureKey icon = {};
    /// The show that is on, and its times; empty when unknown.
    QString title = {};
    QString times = {};
    /// 0 to 1; below 0 when unknown.
    double progress = -1;
    /// Nothing has arrived yet, or nothing more is arriving.
    bool waiting = true;
    bool paused = false;
    /// 0 to 1.
    double volume = 1;
    bool muted = false;
    /// Whether there are other channels to change to.
    bool hasOtherChannels = false;
    bool fullScreen = false;

    friend bool operator==(const PlayerState&, const PlayerState&) = default;
};

class PlayerContentObserver {
  public:
    virtual ~PlayerContentObserver() = default;
    virtual void playerStateChanged() = 0;
};

/// A moving picture with its controls. Main queue.
class PlayerContent : public Content {
  public:
    ContentKind kind() const final { return ContentKind::Player; }

    const PlayerState& state() const { return m_state; }
    /// One observer at a time. It must outlive the content or be unregistered with nullptr.
    void setObserver(PlayerContentObserver* observer) { m_observer = observer; }

    // ---- the user's events

    virtual void togglePaused() = 0;
    /// 0 to 1; a volume that was muted is heard again.
    virtual void setVolume(double volume) = 0;
    virtual void toggleMuted() = 0;
    virtual void setFullScreen(bool fullScreen) = 0;
    /// Changes to the channel that many places further, counting from the last to the first.
    virtual void changeChannel(int by) = 0;
    virtual void leave() = 0;

    /// What draws the picture, an object of the user interface; null when nothing does. Must be set to null
    /// before the object is destroyed.
    virtual void setVideoOutput(QObject* output) = 0;

  protected:
    void setState(const PlayerState& state) {
        if (state != m_state) {
            m_state = state;
            if (m_observer) {
                m_observer->playerStateChanged();
            }
        }
    }

  private:
    PlayerState m_state;
    PlayerContentObserver* m_observer = nullptr;
};

} // namespace guide
