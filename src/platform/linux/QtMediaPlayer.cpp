#include "platform/linux/QtMediaPlayer.h"

#include "platform/linux/QtMediaStream.h"

#include <QAudio>
#include <QThread>
#include <QVideoSink>

#include <utility>

namespace guide {

namespace {

constexpr std::chrono::seconds kTimeToEnd{4};

/// Hands everything to the stream, which lives on another thread.
class QtMediaPlayer final : public MediaPlayer {
  public:
    QtMediaPlayer(const QUrl& url, QThread& thread, DispatchQueue& mainQueue,
                  std::function<void()> statusChanged)
        : m_report(std::make_shared<StreamReport>(mainQueue, std::move(statusChanged)))
        , m_stream(new QtMediaStream(url, m_report)) {
        m_stream->moveToThread(&thread);
    }
    ~QtMediaPlayer() override {
        setVideoOutput(nullptr);
        m_report->close();
        m_stream->deleteLater();
    }

    void play() override {
        onThread([stream = m_stream] { stream->play(); });
    }
    void pause() override {
        onThread([stream = m_stream] { stream->pause(); });
    }
    void setVolume(double volume) override {
        const auto linear = static_cast<float>(
            QAudio::convertVolume(volume, QAudio::LogarithmicVolumeScale, QAudio::LinearVolumeScale));
        onThread([stream = m_stream, linear] { stream->setVolume(linear); });
    }
    void setMuted(bool muted) override {
        onThread([stream = m_stream, muted] { stream->setMuted(muted); });
    }
    void setVideoOutput(QObject* output) override {
        QObject::disconnect(m_outputGone);
        m_report->setOutput(qobject_cast<QVideoSink*>(output));
        if (output) {
            m_outputGone = QObject::connect(output, &QObject::destroyed,
                                            [report = m_report] { report->setOutput(nullptr); });
        }
    }
    MediaState state() const override { return m_report->state(); }

  private:
    template <class Call>
    void onThread(Call call) {
        QMetaObject::invokeMethod(m_stream, std::move(call), Qt::QueuedConnection);
    }

    const std::shared_ptr<StreamReport> m_report;
    /// Deletes itself on its thread.
    QtMediaStream* const m_stream;
    QMetaObject::Connection m_outputGone;
};

} // namespace

QtMediaPlayers::QtMediaPlayers(DispatchQueue& mainQueue)
    : m_mainQueue(mainQueue) {}

QtMediaPlayers::~QtMediaPlayers() {
    if (!m_thread) {
        return;
    }
    m_thread->quit();
    if (!m_thread->wait(QDeadlineTimer(kTimeToEnd))) {
        qWarning("A stream does not end");
        // Destroying a thread that runs would end the process.
        (void)m_thread.release();
    }
}

std::unique_ptr<MediaPlayer> QtMediaPlayers::makePlayer(const QUrl& url,
                                                        std::function<void()> statusChanged) {
    if (!m_thread) {
        m_thread = std::make_unique<QThread>();
        m_thread->setObjectName(QStringLiteral("media"));
        m_thread->start();
    }
    return std::make_unique<QtMediaPlayer>(url, *m_thread, m_mainQueue, std::move(statusChanged));
}

} // namespace guide
