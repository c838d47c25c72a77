#include "core/RemoteHostAlert.h"

#include <QCoreApplication>

#include <chrono>
#include <mutex>
#include <utility>

namespace guide {

namespace {

constexpr std::chrono::seconds kSilence{60};

} // namespace

struct RemoteHostAlert::State {
    const Clock& clock;
    DispatchQueue& mainQueue;
    AlertPresenter& presenter;
    std::mutex guard;
    std::chrono::sys_seconds lastAlert{}; // guarded
    bool presented = false;               // main queue

    std::chrono::sys_seconds now() const { return std::chrono::floor<std::chrono::seconds>(clock.now()); }

    void stamp() {
        const std::chrono::sys_seconds moment = now();
        const std::lock_guard lock(guard);
        lastAlert = moment;
    }

    // True for the one caller that may alert. Setting the clock back does not prolong the silence.
    bool claim() {
        const std::chrono::sys_seconds moment = now();
        const std::lock_guard lock(guard);
        if (moment >= lastAlert && moment - lastAlert <= kSilence) {
            return false;
        }
        lastAlert = moment;
        return true;
    }
};

RemoteHostAlert::RemoteHostAlert(const Clock& clock, DispatchQueue& mainQueue, AlertPresenter& presenter)
    : m_state(new State{clock, mainQueue, presenter, {}}) {}

RemoteHostAlert::~RemoteHostAlert() = default;

void RemoteHostAlert::noRemoteHostAlert(const TransferError& error) {
    if (!m_state->claim()) {
        return;
    }
    m_state->mainQueue.async([weakState = std::weak_ptr(m_state), error] {
        const std::shared_ptr<State> state = weakState.lock();
        // An alert is still open.
        if (!state || std::exchange(state->presented, true)) {
            return;
        }
        const QString title = !error.failureReason.isEmpty()
                                  ? error.failureReason
                                  : QCoreApplication::translate(
                                        "RemoteHostAlert", "Unable to establish connection to remote server");
        const QString message =
            !error.recoverySuggestion.isEmpty()
                ? error.recoverySuggestion
                : QCoreApplication::translate("RemoteHostAlert", "Check your Internet connection.");
        state->presenter.presentAlert(title, message, [weakState] {
            if (const std::shared_ptr<State> pressed = weakState.lock()) {
                pressed->presented = false;
                pressed->stamp();
                pressed->presenter.moviePlayerPlaybackDidFinish();
            }
        });
    });
}

void RemoteHostAlert::restartSilence() {
    m_state->stamp();
}

} // namespace guide
