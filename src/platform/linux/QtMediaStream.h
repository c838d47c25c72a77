#pragma once

#include "platform/MediaPlayer.h"
#include "platform/queues/DispatchQueue.h"

#include <QAudioOutput>
#include <QMediaPlayer>
#include <QObject>
#include <QUrl>
#include <QVideoSink>

#include <functional>
#include <memory>
#include <mutex>

namespace guide {

/// What a stream tells its player, and where its pictures go. Any thread, except as noted.
class StreamReport : public std::enable_shared_from_this<StreamReport> {
  public:
    StreamReport(DispatchQueue& mainQueue, std::function<void()> statusChanged)
        : m_mainQueue(mainQueue)
        , m_statusChanged(std::move(statusChanged)) {}

    MediaState state();

    // ---- called by the player, on the main queue

    void setOutput(QVideoSink* output);
    /// Reports nothing from now on.
    void close();

    // ---- called by the stream

    /// The stream is opened, maybe again.
    void setOpening();
    void advance();
    void setReady() { setStatus(MediaStatus::Ready, MediaFailure::None); }
    void setEnded() { setStatus(MediaStatus::Ended, MediaFailure::None); }
    void setFailed(MediaFailure failure) { setStatus(MediaStatus::Failed, failure); }
    void draw(const QVideoFrame& frame);

  private:
    void setStatus(MediaStatus status, MediaFailure failure);

    DispatchQueue& m_mainQueue;
    std::mutex m_guard;
    MediaState m_state;    // guarded
    bool m_closed = false; // guarded
    /// Main queue; empty once the report is closed.
    std::function<void()> m_statusChanged;
    std::mutex m_outputGuard;
    QVideoSink* m_output = nullptr; // guarded by m_outputGuard
};

/// One stream on Qt Multimedia, on a thread where its calls may block.
class QtMediaStream final : public QObject {
  public:
    QtMediaStream(const QUrl& url, std::shared_ptr<StreamReport> report);
    /// Takes up to a few seconds when the stream is stuck.
    ~QtMediaStream() override;

    void play();
    void pause();
    /// Linear, 0 to 1.
    void setVolume(float volume);
    void setMuted(bool muted);

  private:
    void open();
    void close();

    const QUrl m_url;
    const std::shared_ptr<StreamReport> m_report;
    float m_volume = 1;
    bool m_muted = false;
    /// Ended or failed.
    bool m_over = false;
    std::unique_ptr<QVideoSink> m_sink;
    /// Null on a device without sound.
    std::unique_ptr<QAudioOutput> m_audio;
    /// Null before the stream is opened.
    std::unique_ptr<QMediaPlayer> m_player;
};

} // namespace guide
