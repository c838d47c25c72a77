#pragma once

#include "platform/MediaPlayer.h"

#include <QStringList>

#include <vector>

namespace guide {

/// Keeps the players' streams, so that a test can let them play, end and fail.
class FakeMediaPlayers final : public MediaPlayers {
  public:
    struct Stream {
        QUrl url;
        std::function<void()> statusChanged;
        MediaState state = {};
        /// How often play() was called.
        int played = 0;
        bool paused = false;
        bool alive = true;
        double volume = -1;
        bool muted = false;

        void report(MediaStatus status, MediaFailure failure = MediaFailure::None) {
            state.status = status;
            state.failure = failure;
            statusChanged();
        }
    };

    std::unique_ptr<MediaPlayer> makePlayer(const QUrl& url, std::function<void()> statusChanged) override {
        streams.push_back(std::make_shared<Stream>(Stream{url, std::move(statusChanged)}));
        return std::make_unique<Player>(streams.back());
    }
    Stream& last() { return *streams.back(); }

    std::vector<std::shared_ptr<Stream>> streams;

  private:
    class Player final : public MediaPlayer {
      public:
        explicit Player(std::shared_ptr<Stream> stream)
            : m_stream(std::move(stream)) {}
        ~Player() override { m_stream->alive = false; }

        void play() override {
            ++m_stream->played;
            m_stream->paused = false;
            m_stream->state.status = MediaStatus::Opening;
        }
        void pause() override { m_stream->paused = true; }
        void setVolume(double volume) override { m_stream->volume = volume; }
        void setMuted(bool muted) override { m_stream->muted = muted; }
        void setVideoOutput(QObject*) override {}
        MediaState state() const override { return m_stream->state; }

      private:
        const std::shared_ptr<Stream> m_stream;
    };
};

} // namespace guide
