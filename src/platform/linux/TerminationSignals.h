#pragma once

#include <QObject>

#include <functional>

class QSocketNotifier;

namespace guide {

/// Reports SIGTERM, SIGINT and SIGHUP once on the main thread, so that the program shuts down normally; a
/// second signal ends it at once. At most one such object per process, on the main thread.
class TerminationSignals final : public QObject {
  public:
    explicit TerminationSignals(std::function<void()> requested);
    ~TerminationSignals() override;

  private:
    std::function<void()> m_requested;
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace guide
