#pragma once

#include "platform/queues/DispatchQueue.h"

#include <functional>
#include <memory>

namespace guide {

/// Counts running transfers and reports when there are any. Any thread.
class NetworkActivity {
  public:
    /// The indicator is called on the main queue, with true when the first transfer starts and with false
    /// when the last one ends.
    NetworkActivity(DispatchQueues& queues, std::function<void(bool visible)> indicator);
    ~NetworkActivity();

    void startNetworkActivity();
    /// Does nothing without a matching start.
    void stopNetworkActivity();

  private:
    struct State;
    std::shared_ptr<DispatchQueue> m_queue;
    std::shared_ptr<State> m_state;
};

} // namespace guide
