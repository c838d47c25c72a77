#pragma once

namespace guide {

/// How screens ask for new listings. Main queue.
class ListingsUpdates {
  public:
    virtual ~ListingsUpdates() = default;
    /// Starts a check, which loads the channels that are due.
    virtual void checkAndUpdateAllChannels() = 0;
};

} // namespace guide
