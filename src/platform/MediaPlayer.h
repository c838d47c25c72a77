#pragma once

#include <QUrl>

#include <cstdint>
#include <functional>
#include <memory>

class QObject;

namespace guide {

enum class MediaStatus {
    /// Nothing has arrived yet.
    Opening,
    /// Pictures or sound are there; also while paused.
    Ready,
    /// The stream has come to its end.
    Ended,
    Failed,
};

enum class MediaFailure {
    None,
    /// There is no such stream, it does not answer, it broke off, or it is something else than a stream.
    Unavailable,
    /// This device has nothing that decodes it.
    NoDecoder,
};

struct MediaState {
    MediaStatus status = MediaStatus::Opening;
    MediaFailure failure = MediaFailure::None;
    /// Differs whenever more of the stream was played: with each picture and with the position of the sound.
    std::uint64_t progress = 0;
};

/// Plays one stream. Main queue; nothing waits for the stream or its decoders.
class MediaPlayer {
  public:
    /// Ends the stream in the background.
    virtual ~MediaPlayer() = default;

    /// Starts or resumes. Opens a stream that has ended or failed again, from its start.
    virtual void play() = 0;
    virtual void pause() = 0;
    /// 0 to 1.
    virtual void setVolume(double volume) = 0;
    virtual void setMuted(bool muted) = 0;
    /// What draws the pictures, an object of the user interface; null when nothing does. Must be set to null
    /// before the object is destroyed.
    virtual void setVideoOutput(QObject* output) = 0;

    virtual MediaState state() const = 0;
};

/// Makes players. Main queue.
class MediaPlayers {
  public:
    virtual ~MediaPlayers() = default;
    /// `statusChanged` is called on the main queue after the status has changed, and not after the player's
    /// destruction. The stream is opened by play().
    virtual std::unique_ptr<MediaPlayer> makePlayer(const QUrl& url, std::function<void()> statusChanged) = 0;
};

} // namespace guide
