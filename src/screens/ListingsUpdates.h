#pragma once

#include "core/ObjectId.h"

#include <vector>

namespace guide {

/// How screens ask for new listings. Main queue.
class ListingsUpdates {
  public:
    virtual ~ListingsUpdates() = default;
    /// Starts a check, which loads the channels that are due.
    virtual void checkAndUpdateAllChannels() = 0;
    /// The same; the user asked for these channels, so their sources are asked even if nothing is due.
    virtual void updateByHand(const std::vector<ObjectId>& channels) = 0;
};

} // namespace guide
