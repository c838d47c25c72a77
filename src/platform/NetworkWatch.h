#pragma once

#include <functional>

namespace guide {

/// Reports that the device has got a network. Main thread.
class NetworkWatch {
  public:
    virtual ~NetworkWatch() = default;
    /// `appeared` is called on the main thread whenever a default route appears; null ends that.
    virtual void watch(std::function<void()> appeared) = 0;
};

} // namespace guide
