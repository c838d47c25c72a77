#pragma once

#include "platform/MediaPlayer.h"
#include "platform/queues/DispatchQueue.h"

#include <QThread>

#include <memory>

namespace guide {

/// Players on Qt Multimedia. They live on a thread of their own, where stopping a stream, loading codecs and
/// opening the sound device may take their time.
class QtMediaPlayers final : public MediaPlayers {
  public:
    /// The queue must outlive every player.
    explicit QtMediaPlayers(DispatchQueue& mainQueue);
    /// Waits a few seconds for streams that are ending; one that does not end is left behind.
    ~QtMediaPlayers() override;

    std::unique_ptr<MediaPlayer> makePlayer(const QUrl& url, std::function<void()> statusChanged) override;

  private:
    DispatchQueue& m_mainQueue;
    /// Started for the first player.
    std::unique_ptr<QThread> m_thread;
};

} // namespace guide
