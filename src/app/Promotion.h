#pragma once

namespace guide {

/// Advertising, usage measurement and consent. Builds without a provider use it as it is: nothing is shown,
/// measured or asked. Main queue.
class Promotion {
  public:
    virtual ~Promotion() = default;
    /// At the start of the launch, before anything that could be measured.
    virtual void startMeasurementAndAds() {}
    /// At the end of the launch, when there is a window to ask in.
    virtual void configureConsent() {}
    /// At each activation.
    virtual void prepareInterstitialWhenDue() {}
};

} // namespace guide
