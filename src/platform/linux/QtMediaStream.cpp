#include "platform/linux/QtMediaStream.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QVideoFrame>

#include <libintl.h>
#include <utility>

namespace guide {

namespace {

/// GStreamer reports a missing decoder like any other failure; only its text, which is in the user's
/// language, tells the difference.
bool isMissingDecoder(QMediaPlayer::Error error, const QString& text) {
    return error == QMediaPlayer::FormatError ||
           text == QString::fromUtf8(
                       dgettext("gstreamer-1.0", "Your GStreamer installation is missing a plug-in."));
}

} // namespace

// ---- the report

MediaState StreamReport::state() {
    const std::lock_guard lock(m_guard);
    return m_state;
}

void StreamReport::setOpening() {
    const std::lock_guard lock(m_guard);
    m_state.status = MediaStatus::Opening;
    m_state.failure = MediaFailure::None;
}

void StreamReport::setOutput(QVideoSink* output) {
    const std::lock_guard lock(m_outputGuard);
    m_output = output;
}

void StreamReport::close() {
    m_statusChanged = nullptr;
    const std::lock_guard lock(m_guard);
    m_closed = true;
}

void StreamReport::advance() {
    const std::lock_guard lock(m_guard);
    ++m_state.progress;
}

void StreamReport::draw(const QVideoFrame& frame) {
    const std::lock_guard lock(m_outputGuard);
    if (m_output) {
        m_output->setVideoFrame(frame);
    }
}

void StreamReport::setStatus(MediaStatus status, MediaFailure failure) {
    const std::lock_guard lock(m_guard);
    // The first failure says what is wrong; others follow from it.
    if (m_closed || m_state.status == status || m_state.status == MediaStatus::Failed) {
        return;
    }
    m_state.status = status;
    m_state.failure = failure;
    m_mainQueue.async([self = shared_from_this()] {
        // A copy, because the call may end the player.
        if (const std::function<void()> statusChanged = self->m_statusChanged) {
            statusChanged();
        }
    });
}

// ---- the stream

QtMediaStream::QtMediaStream(const QUrl& url, std::shared_ptr<StreamReport> report)
    : m_url(url)
    , m_report(std::move(report)) {}

QtMediaStream::~QtMediaStream() {
    close();
}

void QtMediaStream::open() {
    close();
    m_over = false;
    m_report->setOpening();
    m_player = std::make_unique<QMediaPlayer>();
    m_sink = std::make_unique<QVideoSink>();
    // Emitted on a thread of the decoder.
    connect(
        m_sink.get(), &QVideoSink::videoFrameChanged, this,
        [report = m_report](const QVideoFrame& frame) {
            report->advance();
            report->draw(frame);
            report->setReady();
        },
        Qt::DirectConnection);
    connect(m_player.get(), &QMediaPlayer::positionChanged, this, [this](qint64 position) {
        if (position > 0) {
            m_report->advance();
            m_report->setReady();
        }
    });
    connect(m_player.get(), &QMediaPlayer::mediaStatusChanged, this,
            [this](QMediaPlayer::MediaStatus status) {
                if (status == QMediaPlayer::EndOfMedia) {
                    m_over = true;
                    m_report->setEnded();
                }
            });
    connect(m_player.get(), &QMediaPlayer::errorOccurred, this,
            [this](QMediaPlayer::Error error, const QString& text) {
                m_over = true;
                m_report->setFailed(isMissingDecoder(error, text) ? MediaFailure::NoDecoder
                                                                  : MediaFailure::Unavailable);
            });
    m_player->setVideoSink(m_sink.get());
    if (!QMediaDevices::defaultAudioOutput().isNull()) {
        m_audio = std::make_unique<QAudioOutput>();
        m_audio->setVolume(m_volume);
        m_audio->setMuted(m_muted);
        m_player->setAudioOutput(m_audio.get());
    }
    m_player->setSource(m_url);
}

void QtMediaStream::close() {
    if (m_player) {
        // Its last signals are about a stream that nobody wants any more.
        m_player->disconnect(this);
        m_sink->disconnect(this);
        m_player->stop();
    }
    m_player.reset();
    m_audio.reset();
    m_sink.reset();
}

void QtMediaStream::play() {
    if (!m_player || m_over) {
        open();
    }
    m_player->play();
}

void QtMediaStream::pause() {
    if (m_player && !m_over) {
        m_player->pause();
    }
}

void QtMediaStream::setVolume(float volume) {
    m_volume = volume;
    if (m_audio) {
        m_audio->setVolume(volume);
    }
}

void QtMediaStream::setMuted(bool muted) {
    m_muted = muted;
    if (m_audio) {
        m_audio->setMuted(muted);
    }
}

} // namespace guide
