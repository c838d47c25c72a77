#include "platform/linux/TerminationSignals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace guide {

namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

// A signal handler can only use static objects.
int signalPipe[2] = {-1, -1};

void onSignal(int signal) {
    const int savedError = errno;
    const char byte = 1;
    // A full pipe already contains a signal.
    [[maybe_unused]] const auto written = ::write(signalPipe[1], &byte, 1);
    std::signal(signal, SIG_DFL);
    errno = savedError;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> requested)
    : m_requested(std::move(requested)) {
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        qWarning("cannot create a pipe for signals; they will end the program at once");
        return;
    }
    m_notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        m_requested();
    });
    for (const int signal : kSignals) {
        std::signal(signal, onSignal);
    }
}

TerminationSignals::~TerminationSignals() {
    for (const int signal : kSignals) {
        std::signal(signal, SIG_DFL);
    }
    delete std::exchange(m_notifier, nullptr);
    for (int& end : signalPipe) {
        if (end >= 0) {
            ::close(std::exchange(end, -1));
        }
    }
}

} // namespace guide
