#pragma once

namespace guide {

/// What the store announces to the layers above. Must outlive the store's queues.
class ListingsObserver {
  public:
    virtual ~ListingsObserver() = default;
    /// Lists were replaced; queries made from now on find the new ones. Called on the thread that merged
    /// them, which it must not block.
    virtual void listingsReplaced() = 0;
};

} // namespace guide
