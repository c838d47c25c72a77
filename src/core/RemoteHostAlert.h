#pragma once

#include "platform/Clock.h"
#include "platform/http/HTTPClient.h"
#include "platform/queues/DispatchQueue.h"

#include <QString>

#include <memory>

namespace guide {

/// Shows alerts to the user. Main queue.
class AlertPresenter {
  public:
    virtual ~AlertPresenter() = default;
    /// Shows an alert with the one action "OK"; the block is called, on the main queue, when it is pressed.
    virtual void presentAlert(const QString& title, const QString& message, Block okPressed) = 0;
    /// Closes the player if one is open.
    virtual void moviePlayerPlaybackDidFinish() = 0;
};

/// Tells the user that a server cannot be reached, at most once in 60 seconds and with one alert at a time.
/// Any thread.
class RemoteHostAlert {
  public:
    /// The presenter and the queue must outlive every block posted to the queue.
    RemoteHostAlert(const Clock& clock, DispatchQueue& mainQueue, AlertPresenter& presenter);
    ~RemoteHostAlert();

    /// Called for a transfer that ended in an error without a body. Does nothing unless more than
    /// 60 seconds have passed since the time stamp, which it then sets, or while the last alert is
    /// unanswered.
    void noRemoteHostAlert(const TransferError& error);

    /// Sets the time stamp of the last alert to now: at each activation, so that a device that has just woken
    /// up has time to reconnect.
    void restartSilence();

  private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace guide
