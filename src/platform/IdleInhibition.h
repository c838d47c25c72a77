#pragma once

namespace guide {

/// Keeps the device from blanking its screen while nobody touches it. Main queue. Failures are not reported.
class IdleInhibition {
  public:
    virtual ~IdleInhibition() = default;
    virtual void setInhibited(bool inhibited) = 0;
};

} // namespace guide
