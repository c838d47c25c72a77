#pragma once

#include <QObject>

#include <functional>

class QSocketNotifier;

namespace guide {

/// SIGTERM, SIGINT and SIGHUP as an event of the main thread, once, so that the program ends by its ordinary
/// road; a second signal ends it at once. One such object a process, on the main thread.
class TerminationSignals final : public QObject {
  public:
    explicit TerminationSignals(std::function<void()> requested);
    ~TerminationSignals() override;

  private:
    std::function<void()> m_requested;
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace guide
